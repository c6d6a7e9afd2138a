// What was done is kept: over another version, in a link, as a command.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { test } from "node:test";
import { keyOf, openTab, phone, press, typeMarkedNumber } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();
const number = "177 0000 0061";

/** @param {import("playwright-core").Page} page @param {string} what */
async function copy(page, what) {
  await page.getByRole("button", { name: what, exact: true }).click();
  await page.getByText(`The ${what.toLowerCase()} is copied`).waitFor();
  return page.evaluate(() => navigator.clipboard.readText());
}

test("version and screen are changed in the middle, and keep what was done", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  for (const digit of "1770000006") await page.keyboard.press(digit);
  await press(page, keyOf(page, "1"));
  await phone(page).getByText("诈骗电话").waitFor();
  await page.getByRole("radio", { name: "7.0" }).check({ force: true });
  await phone(page).getByText("添加到通讯录").waitFor();
  await phone(page).getByText(number, { exact: true }).waitFor();
  await press(page, phone(page).getByRole("button", { name: "最近通话" }));
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
  await page.getByRole("radio", { name: "3.5″" }).check({ force: true });
  await page.waitForFunction(
    () => document.querySelector("#phone-with canvas")?.clientHeight === 480,
  );
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
  await press(page, phone(page).getByRole("button", { name: "拨号键盘" }));
  await phone(page).getByText(number, { exact: true }).waitFor();
});

test("a link that is opened afresh shows the same phone, and undo what was before", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  await press(page, phone(page).getByRole("button", { name: "最近通话" }));
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
  await page.waitForTimeout(500); // what was done is told a moment after it is seen
  const link = await copy(page, "Link");
  const other = await house.visit(t, { link: link.slice(house.address.length) });
  await phone(other).getByText("诈骗电话 | 37人标记").first().waitFor();
  await other.getByRole("button", { name: "Undo" }).click();
  await phone(other).getByText(number, { exact: true }).waitFor();
});

test("a link that a person wrote is read, and one that is none is said to be so", async (t) => {
  const link = "#ios=7.0&screen=3.5&show=with&step=type%2013100000051";
  const page = await house.visit(t, { link });
  await phone(page).getByText("房产中介").waitFor();
  assert.equal(await phone(page, "without").count(), 0);
  const other = await house.visit(t, { link: "#z=nonsense" });
  await other.getByText("This link cannot be read").waitFor();
  await keyOf(other, "1").waitFor();
  await other.evaluate((hash) => (location.hash = hash), link);
  await phone(other).getByText("房产中介").waitFor();
});

test("the copied command shows the same on the command line", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  const command = await copy(page, "Command");
  const program = new URL("../../build/bin", import.meta.url).pathname;
  const tree = execFileSync("sh", ["-c", `PATH="${program}:$PATH"; ${command} --tree`], {
    encoding: "utf8",
  });
  assert.match(tree, /诈骗电话/);
  const written = await copy(page, "Test");
  assert.match(written, /"type 1",\n[^]*HasSubstr\("诈骗电话"\)/);
});

test("the saved picture is a PNG of both phones", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  const [download] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Save picture" }).click(),
  ]);
  assert.equal(download.suggestedFilename(), "phone-7.1-4-both.png");
  const stream = await download.createReadStream();
  const chunks = [];
  for await (const chunk of stream) chunks.push(chunk);
  const png = Buffer.concat(chunks);
  assert.equal(png.toString("latin1", 1, 4), "PNG");
  assert.deepEqual([png.readUInt32BE(16), png.readUInt32BE(20)], [640 + 40 + 640, 1136]);
});

test("the steps are listed, and each is a way back", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  for (const digit of "138") await page.keyboard.press(digit);
  await phone(page).getByText("138", { exact: true }).waitFor();
  await openTab(page, "steps");
  await page.getByRole("button", { name: "Back to here: type 3" }).click();
  await phone(page).getByText("13", { exact: true }).waitFor();
});
