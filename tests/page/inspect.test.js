// Whose view is this, where is it, and who moved it?
import assert from "node:assert/strict";
import { test } from "node:test";
import { middleOf, openTab, phone, typeMarkedNumber } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

test("a view of the add-on is found, chosen by keyboard, and told of", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  const tree = page.getByRole("tree");
  await page.getByRole("searchbox").fill("诈骗电话");
  const row = tree.getByRole("treeitem", { name: "诈骗电话" }).last();
  await row.waitFor();
  assert.ok((await tree.getByRole("treeitem").count()) < 10);
  await page.getByRole("searchbox").press("ArrowDown");
  await page.keyboard.press("End");
  await page.keyboard.press("Enter");
  const details = page.getByRole("region", { name: "The chosen view" });
  await details.getByText("the add-on", { exact: true }).waitFor();
  const told = (await details.textContent()) ?? "";
  assert.match(told, /ClassUILabel/);
  assert.match(told, /Last touched by-\[\w+ [\w:]+\]/);
  assert.match(told, /On the screen142, 64 · 56 × 25/);
  assert.match(told, /“诈骗电话/);
  assert.equal(await row.getAttribute("aria-selected"), "true");
});

test("the tree folds and unfolds with arrow keys, and marks what an event changed", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  const items = page.getByRole("tree").getByRole("treeitem");
  await items.first().focus();
  const all = await items.count();
  await page.keyboard.press("ArrowLeft");
  assert.equal(await items.count(), 1);
  assert.equal(await items.first().getAttribute("aria-expanded"), "false");
  await page.keyboard.press("ArrowRight");
  await page.waitForFunction((many) => document.querySelectorAll(".node").length > many / 2, all);
  const changed = page.locator(".node .badge:not(.plain):visible");
  await changed.first().waitFor();
  assert.ok((await changed.count()) < all / 2);
});

test("the pointer inspects and does not touch; the layers turn", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  await page.getByRole("button", { name: "Point at one" }).click();
  const { x, y } = await middleOf(phone(page).getByText("诈骗电话"));
  await page.mouse.click(x, y);
  const details = page.getByRole("region", { name: "The chosen view" });
  await details.getByText("“诈骗电话”").first().waitFor();
  await page.keyboard.press("Escape");
  await page.getByRole("button", { name: "Layers" }).click();
  const model = page.locator(".model");
  const before = await model.evaluate((element) => getComputedStyle(element).transform);
  await page.getByRole("slider", { name: "Turn" }).press("ArrowLeft");
  const after = await model.evaluate((element) => getComputedStyle(element).transform);
  assert.notEqual(after, before);
  assert.ok((await page.locator(".sheet").count()) > 20);
});

test("what happened is told nested and with what the companion returned", async (t) => {
  const page = await house.visit(t);
  await typeMarkedNumber(page);
  await openTab(page, "happened");
  await page.keyboard.press("Backspace");
  const panel = page.getByRole("tabpanel", { name: "What happened" });
  await panel.getByText("delete 1").first().waitFor();
  await panel
    .getByText(/setName:numberLabel:|layoutSubviews/)
    .first()
    .waitFor();
  await panel.getByText("asks").first().waitFor();
});
