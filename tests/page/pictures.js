// Draws the pictures of the page that the documents show: node tests/page/pictures.js
import { writeFileSync } from "node:fs";
import { describe, test } from "node:test";
import { drag, keyOf, middleOf, openTab, phone, press, typeMarkedNumber } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();
const folder = new URL("../../docs/images/", import.meta.url);

/** @param {import("playwright-core").Page} page @param {string} name @param {number} [height] */
async function draw(page, name, height) {
  await page.mouse.move(0, 0);
  await page.evaluate(() => scrollTo(0, 0));
  await page.waitForTimeout(800);
  const { width } = page.viewportSize() ?? { width: 0 };
  const clip = height ? { clip: { x: 0, y: 0, width, height } } : {};
  writeFileSync(new URL(`page-${name}.png`, folder), await page.screenshot(clip));
}

const size = { width: 1240, height: 860 };

describe("pictures", { concurrency: 1 }, () => {
  test("inspect", async (t) => {
    const page = await house.visit(t, size);
    await typeMarkedNumber(page);
    await page.getByRole("searchbox").fill("诈骗电话");
    await page.getByRole("treeitem", { name: "诈骗电话" }).last().click();
    await page.getByRole("searchbox").fill("");
    await draw(page, "inspect");
  });

  test("happened", async (t) => {
    const page = await house.visit(t, { ...size, dark: true });
    await press(page, phone(page).getByRole("button", { name: "最近通话" }));
    await openTab(page, "happened");
    const row = phone(page).getByText("诈骗电话 | 37人标记").first();
    await drag(page, row, { x: -150 });
    await middleOf(row);
    await draw(page, "happened");
  });

  test("layers", async (t) => {
    const page = await house.visit(t, size);
    await press(page, phone(page).getByRole("button", { name: "最近通话" }));
    await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
    await page.getByRole("button", { name: "Layers" }).click();
    await draw(page, "layers");
  });

  test("story", async (t) => {
    const page = await house.visit(t, size);
    await keyOf(page, "1").waitFor();
    await openTab(page, "number");
    const story = page.locator("#story");
    await story.getByLabel("Number", { exact: true }).fill("13900000000");
    await story.getByLabel("It is").selectOption("nothing");
    await story.getByLabel("Answer").selectOption("partner");
    await story.getByRole("textbox", { name: "Label" }).fill("巷口面馆");
    await story.getByRole("button", { name: "Tell the phone" }).click();
    await page.keyboard.type("13900000000");
    await press(page, phone(page).getByRole("button", { name: "呼叫" }));
    await page.getByRole("button", { name: "Other end answers" }).click();
    await phone(page).getByText("巷口面馆").waitFor();
    await page.waitForTimeout(2000); // until the logo is there
    await draw(page, "story");
  });

  for (const dark of [false, true]) {
    test(`small, ${dark ? "dark" : "light"}`, async (t) => {
      const page = await house.visit(t, { width: 390, height: 844, dark });
      await page.locator("#caller").fill("17700000061");
      await page.locator("#caller").press("Enter");
      await phone(page).getByText("诈骗电话 | 37人标记").waitFor();
      await draw(page, dark ? "small-dark" : "small");
    });
  }
});
