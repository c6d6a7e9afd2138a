// What is known of numbers is changed from the page.
import { test } from "node:test";
import { keyOf, openTab, phone, press } from "./hands.js";
import { House } from "./house.js";

const house = House.forThisFile();

test("a number's story is told to the phone and is shown when it is asked for again", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await page.keyboard.type("13800000000");
  await openTab(page, "number");
  const story = page.locator("#story");
  await story.getByLabel("Number", { exact: true }).fill("13800000000");
  await story.getByLabel("It is").selectOption("ownMarks");
  await story.getByLabel("Label or name").fill("楼下的猫");
  await story.getByRole("button", { name: "Tell the phone" }).click();
  for (const key of ["Backspace", "0"]) await page.keyboard.press(key);
  await phone(page).getByText("楼下的猫").waitFor();
  await story.getByLabel("Describe numbers").uncheck();
  for (const key of ["Backspace", "0"]) await page.keyboard.press(key);
  await phone(page).getByText("楼下的猫").waitFor({ state: "detached" });
});

test("the cloud's answer comes when and as it is said", async (t) => {
  const page = await house.visit(t);
  await keyOf(page, "1").waitFor();
  await openTab(page, "number");
  const story = page.locator("#story");
  await story.getByLabel("Number", { exact: true }).fill("13900000000");
  await story.getByLabel("It is").selectOption("nothing");
  await story.getByLabel("Answer").selectOption("mark");
  await story
    .getByRole("group", { name: "The cloud" })
    .getByRole("textbox", { name: "Label" })
    .fill("送水的人");
  await story.getByLabel("After seconds").fill("0.5");
  await story.getByRole("button", { name: "Tell the phone" }).click();
  await page.keyboard.type("13900000000");
  await press(page, phone(page).getByRole("button", { name: "呼叫" }));
  await page.getByRole("button", { name: "Other end answers" }).click();
  await phone(page).getByText("送水的人").waitFor();
});

test("calls with mistakes are refused with their lines, and good ones are taken", async (t) => {
  const page = await house.visit(t);
  await press(page, phone(page).getByRole("button", { name: "最近通话" }));
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
  const heading = "number,name,direction,time,answered\n";
  const file = page.locator("#file");
  /** @param {string} text */
  const choose = (text) =>
    file.setInputFiles({ name: "my.csv", mimeType: "text/csv", buffer: Buffer.from(text) });
  await openTab(page, "number");
  await choose(`${heading}17700000061,,in,,no\n`);
  await page.getByText("my.csv is not used").waitFor();
  await page.getByText("my.csv:2: direction is 'in'").waitFor();
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
  await choose(`${heading}13100000051,,incoming,,no\n`);
  await page.getByText("my.csv is used").waitFor();
  await phone(page).getByText("房产中介 | 我的标记").waitFor();
  await page.getByRole("button", { name: "Back to the sample" }).click();
  await phone(page).getByText("诈骗电话 | 37人标记").first().waitFor();
});
