// Numbers are typed, and what the add-on says of them is read as a screen reader reads it.
import assert from "node:assert/strict";
import { test } from "node:test";
import { keyOf, phone, press } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

test("a number is typed with keys, mouse and keyboard alone, and described", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await page.keyboard.type("1770000");
  for (const digit of "00") await press(page, keyOf(page, digit));
  await keyOf(page, "6").focus();
  await page.keyboard.press("Enter");
  await keyOf(page, "1").focus();
  await page.keyboard.press("Space");
  await phone(page).getByText("177 0000 0061").waitFor();
  await phone(page).getByText("诈骗电话").waitFor();
  assert.equal(await phone(page, "without").getByText("诈骗电话").count(), 0);
  await page.locator("#spoken", { hasText: "诈骗电话" }).waitFor();

  await page.keyboard.press("Backspace");
  await phone(page).getByText("177 0000 006", { exact: true }).waitFor();
});

test("digits that are typed into a field do not reach the phone", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await page.getByLabel("Number", { exact: true }).first().fill("");
  await page.keyboard.type("138");
  await page.locator("h1").click();
  await page.keyboard.type("9");
  await phone(page).getByText("9", { exact: true }).first().waitFor();
  assert.equal(await phone(page).getByText("1389").count(), 0);
});
