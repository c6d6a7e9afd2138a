// Calls that ring, are answered, and of which the cloud tells more.
import { test } from "node:test";
import { keyOf, phone, press } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

/** @param {import("playwright-core").Page} page @param {string} number */
async function ring(page, number) {
  await page.locator("#caller").fill(number);
  await page.locator("#caller").press("Enter");
}

test("a call rings, is answered, and a second caller is let through", async (t) => {
  const page = await house.visit(t);
  await ring(page, "17700000061");
  await phone(page).getByText("来电").waitFor();
  await phone(page).getByText("诈骗电话 | 37人标记").waitFor();
  await press(page, phone(page).getByRole("button", { name: "接听" }));
  await phone(page)
    .getByText(/^00:0\d$/)
    .waitFor();
  await page.getByRole("button", { name: "Second caller" }).waitFor();
  await ring(page, "13800130011");
  await phone(page).getByText("林小满").waitFor();
});

test("a number is dialled, and during the call the cloud's answer comes in", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await page.keyboard.type("13000000101");
  await press(page, phone(page).getByRole("button", { name: "呼叫" }));
  await phone(page).getByText("山东济南 联通").waitFor();
  await page.getByRole("button", { name: "Other end answers" }).click();
  await phone(page).getByText("装修推销 | 46人标记").waitFor();
  await press(page, phone(page).getByRole("button", { name: "结束" }));
  await keyOf(page, "1").waitFor();
});

test("time is paused and stepped: the clock of a call stands still and goes on", async (t) => {
  const page = await house.visit(t);
  await ring(page, "13800000000");
  await press(page, phone(page).getByRole("button", { name: "接听" }));
  await page.getByRole("button", { name: "Pause" }).click();
  const clock = phone(page).getByText(/^00:\d\d$/);
  const before = await clock.textContent();
  await page.waitForTimeout(1500);
  const after = await clock.textContent();
  if (before !== after) throw new Error(`it went on from ${before} to ${after}`);
  for (let tenth = 0; tenth < 25; tenth++) {
    await page.getByRole("button", { name: "Step 0.1 s" }).click();
  }
  await phone(page).getByText("00:02").or(phone(page).getByText("00:03")).waitFor();
});
