// Small screens, fingers, dark mode, keyboards, and a check of what can be checked by machine.
import assert from "node:assert/strict";
import { test } from "node:test";
import axe from "axe-core";
import { keyOf, openTab, phone, typeMarkedNumber } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();
const tabs = ["inspect", "happened", "number", "steps"];

test("at 390 pixels nothing is cut off, and a finger types", async (t) => {
  const page = await house.visit(t, { width: 390, height: 844, touch: true });
  const key = keyOf(page, "5");
  await key.waitFor();
  const box = await key.boundingBox();
  assert.ok(box);
  await page.touchscreen.tap(box.x + box.width / 2, box.y + box.height / 2);
  await phone(page).getByText("5", { exact: true }).waitFor();
  for (const tab of tabs) {
    await openTab(page, tab);
    const wide = await page.evaluate(() => document.documentElement.scrollWidth);
    assert.equal(wide, 390, tab);
  }
  assert.equal((await phone(page).locator("canvas").boundingBox())?.width, 320);
});

for (const dark of [false, true]) {
  test(`axe finds nothing serious, ${dark ? "dark" : "light"}`, async (t) => {
    const page = await house.visit(t, { dark });
    await typeMarkedNumber(page);
    await page.evaluate(axe.source);
    for (const tab of tabs) {
      await openTab(page, tab);
      const found = await page.evaluate(async () => {
        const { violations } = await /** @type {any} */ (globalThis).axe.run();
        return violations
          .filter((/** @type {any} */ { impact }) => ["serious", "critical"].includes(impact))
          .map((/** @type {any} */ { id, nodes }) => [
            id,
            nodes.map((/** @type {any} */ { html }) => html),
          ]);
      });
      assert.deepEqual(found, [], tab);
    }
  });
}
