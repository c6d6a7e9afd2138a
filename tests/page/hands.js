// What a visitor does at the page, in the terms of the phone.

/** @typedef {import("playwright-core").Page} Page */
/** @typedef {import("playwright-core").Locator} Locator */

/** The phone as a screen reader finds it. @param {Page} page @param {"with" | "without"} [side] @returns {Locator} */
export function phone(page, side = "with") {
  const names = { with: "With the add-on", without: "Without the add-on" };
  return page.getByRole("figure", { name: names[side] });
}

/** A key of the keypad. @param {Page} page @param {string} digit */
export function keyOf(page, digit) {
  return phone(page).getByRole("button", { name: new RegExp(`^${digit}(, [A-Z+ ]+)?$`) });
}

/** The page with a number that many users have marked. @param {Page} page */
export async function typeMarkedNumber(page) {
  await keyOf(page, "1").waitFor();
  await page.keyboard.type("17700000061");
  await phone(page).getByText("诈骗电话").waitFor();
}

/**
 * The middle of something on the phone, for the mouse, when it has come to rest.
 * @param {Locator} thing
 */
export async function middleOf(thing) {
  let box = await thing.boundingBox();
  for (let last = null; !box || JSON.stringify(box) !== JSON.stringify(last);) {
    last = box;
    await thing.page().waitForTimeout(300);
    box = await thing.boundingBox();
  }
  return { x: box.x + box.width / 2, y: box.y + box.height / 2 };
}

/** A press with the mouse, as a finger's. @param {Page} page @param {Locator} thing */
export async function press(page, thing) {
  const { x, y } = await middleOf(thing);
  await page.mouse.click(x, y);
}

/** Drags with the mouse, and rests before it lifts. @param {Page} page @param {Locator} thing @param {{ x?: number, y?: number }} way */
export async function drag(page, thing, { x = 0, y = 0 }) {
  const from = await middleOf(thing);
  await page.mouse.move(from.x, from.y);
  await page.mouse.down();
  await page.mouse.move(from.x + x, from.y + y, { steps: 12 });
  await page.waitForTimeout(200);
  await page.mouse.up();
}

/** @param {Page} page @param {string} id of a tab */
export async function openTab(page, id) {
  await page.locator(`#tab-${id}`).click();
}
