// Both phones side by side, and one that is flipped.
import assert from "node:assert/strict";
import { test } from "node:test";
import { keyOf, middleOf, phone } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

test("what differs is outlined on both, and nothing else", async (t) => {
  const page = await house.visit(t);
  await page.getByText("Both show the same").waitFor();
  await page.keyboard.type("17700000061");
  await page.getByText("Outlined: what the add-on changes").waitFor();
  const description = phone(page).getByText("诈骗电话");
  await description.waitFor();
  for (const side of /** @type {const} */ (["without", "with"])) {
    await phone(page, side).locator(".outline:only-child").waitFor();
  }
  const outline = phone(page).locator(".outline");
  await middleOf(outline); // the keys are no longer pressed
  const box = await outline.boundingBox();
  const { x, y } = await middleOf(description);
  assert.ok(box && x > box.x && x < box.x + box.width && y > box.y && y < box.y + box.height);
});

test("one switch shows a single phone and flips it", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await page.keyboard.type("17700000061");
  const choices = page.getByRole("group", { name: "Add-on" });
  await choices.getByRole("radio", { name: "With", exact: true }).check({ force: true });
  await phone(page).getByText("诈骗电话").waitFor();
  assert.equal(await phone(page, "without").isVisible(), false);
  await choices.getByRole("radio", { name: "Without" }).check({ force: true });
  await phone(page, "without").getByText("添加到通讯录").waitFor();
  assert.equal(await phone(page).isVisible(), false);
});
