// The list under a finger: scrolled, dragged, opened and left.
import assert from "node:assert/strict";
import { test } from "node:test";
import { drag, middleOf, openTab, phone, press } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

/** @param {import("playwright-core").Page} page */
async function showRecents(page) {
  await press(page, phone(page).getByRole("button", { name: "最近通话" }));
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
}

test("a dragged row shows its menu, and its mark button opens an address", async (t) => {
  const page = await house.visit(t);
  await showRecents(page);
  await openTab(page, "happened");
  await drag(page, phone(page).getByText("诈骗电话 | 37人标记").first(), { x: -150 });
  await press(page, phone(page).getByRole("button", { name: "标记", exact: true }));
  const address = page.getByRole("tabpanel").getByText("zequor://mark?");
  await address.first().waitFor();
  assert.match((await address.first().textContent()) ?? "", /17700000061/);
});

test("the wheel scrolls, a row's key opens its detail, the browser's way back leaves it", async (t) => {
  const page = await house.visit(t);
  await showRecents(page);
  const { x, y } = await middleOf(phone(page).locator("canvas"));
  await page.mouse.move(x, y);
  await page.mouse.wheel(0, 120);
  await page.mouse.wheel(0, 120);
  await phone(page).getByText("桶装水配送").waitFor();
  await page.mouse.wheel(0, -200);
  await page.mouse.wheel(0, -200);
  const info = phone(page).getByRole("button", { name: "更多信息" });
  await info.first().waitFor();
  await press(page, info.first());
  await phone(page).getByText("37位用户标记").waitFor();
  await page.goBack();
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
});
