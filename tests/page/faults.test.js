// What goes wrong is said, and there is a way on.
import assert from "node:assert/strict";
import { request } from "node:http";
import { test } from "node:test";
import { phone, typeMarkedNumber } from "./hands.js";
import { childrenOf, House } from "./house.js";

const house = House.forThisFile();

test("a phone that dies says so, and plays the events again", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  for (const process of childrenOf(house.server?.pid ?? 0)) globalThis.process.kill(process, 9);
  await phone(page).getByRole("alert").getByText("This phone has stopped").waitFor();
  await phone(page).getByRole("button", { name: "Play the events again" }).click();
  await phone(page).getByText("诈骗电话").waitFor();
  await phone(page).getByRole("alert").waitFor({ state: "hidden" });
});

test("a step that is not possible is refused with its reason", async (t) => {
  const page = await house.visit(t, { link: "#show=with&step=swipe%201" });
  await page.locator(".notice.fault", { hasText: "swipe 1" }).waitFor();
});

/** @param {Record<string, string>} headers @param {string} path @returns {Promise<number>} */
function statusOf(headers, path) {
  return new Promise((resolve, reject) => {
    const { hostname, port } = new URL(house.address);
    const asked = request({ hostname, port, path, headers }, (response) => {
      response.resume();
      resolve(response.statusCode ?? 0);
    });
    asked.once("upgrade", (_response, socket) => {
      socket.destroy();
      resolve(101);
    });
    asked.once("error", reject).end();
  });
}

test("a foreign host or origin is refused", async () => {
  const { host, origin } = new URL(house.address);
  const socket = {
    Connection: "Upgrade",
    Upgrade: "websocket",
    "Sec-WebSocket-Version": "13",
    "Sec-WebSocket-Key": "AAAAAAAAAAAAAAAAAAAAAA==",
  };
  const foreign = "http://elsewhere.example";
  assert.equal(await statusOf({ Host: host }, "/"), 200);
  assert.equal(await statusOf({ Host: "elsewhere.example" }, "/"), 403);
  assert.equal(await statusOf({ Host: host, Origin: origin, ...socket }, "/phone"), 101);
  assert.equal(await statusOf({ Host: host, Origin: foreign, ...socket }, "/phone"), 403);
  assert.equal(
    await statusOf({ Host: "elsewhere.example", Origin: foreign, ...socket }, "/phone"),
    403,
  );
});
