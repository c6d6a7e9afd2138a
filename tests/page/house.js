// The real server and a real browser, for as long as the tests of a file run.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { existsSync, readFileSync } from "node:fs";
import { after, before } from "node:test";
import { chromium } from "playwright-core";

const program = new URL("../../build/bin/phone-simulator", import.meta.url).pathname;
const browserProgram = "/usr/bin/chromium";

/** @typedef {import("playwright-core").Page} Page */
/** @typedef {import("playwright-core").Locator} Locator */
/** @typedef {import("node:test").TestContext} TestContext */

/** @param {number} process @returns {number[]} */
export function childrenOf(process) {
  const list = readFileSync(`/proc/${process}/task/${process}/children`, "utf8");
  return list.split(" ").filter(Boolean).map(Number);
}

/** One server and one browser; each visit is a browser of its own to the server. */
export class House {
  address = "";
  /** @type {import("node:child_process").ChildProcess | undefined} */
  server;
  /** @type {import("playwright-core").Browser | undefined} */
  #browser;

  /** Before the tests of the file that calls this. @param {string[]} options of the server */
  static forThisFile(options = []) {
    const house = new House();
    before(() => house.#open(options));
    after(() => house.#close());
    return house;
  }

  /** @param {string[]} options */
  async #open(options) {
    for (const needed of [program, browserProgram]) {
      assert.ok(existsSync(needed), `no ${needed}: run 'make page-test', which gets it`);
    }
    this.server = spawn(program, ["serve", "--port", "0", ...options], {
      stdio: ["ignore", "pipe", "inherit"],
    });
    this.address = await firstLine(this.server);
    const sandbox = process.getuid?.() !== 0; // which root may not have
    this.#browser = await chromium.launch({
      executablePath: browserProgram,
      chromiumSandbox: sandbox,
    });
  }

  async #close() {
    await this.#browser?.close();
    if (!this.server) return;
    const over = new Promise((resolve) => this.server?.once("exit", resolve));
    this.server.kill("SIGINT");
    await over;
  }

  /**
   * Opens the page, and sees at the end that nothing went wrong unseen.
   * @param {TestContext} t
   * @param {{ link?: string, width?: number, height?: number, dark?: boolean, touch?: boolean }} [visit]
   * @returns {Promise<Page>}
   */
  async visit(t, { link = "", width = 1280, height = 860, dark, touch } = {}) {
    assert.ok(this.#browser);
    const context = await this.#browser.newContext({
      viewport: { width, height },
      colorScheme: dark ? "dark" : "light",
      hasTouch: touch,
      permissions: ["clipboard-read", "clipboard-write"],
    });
    context.setDefaultTimeout(30_000);
    const page = await context.newPage();
    /** @type {string[]} */
    const complaints = [];
    page.on("pageerror", (error) => complaints.push(error.message));
    page.on("console", (message) => {
      if (message.type() === "error") complaints.push(message.text());
    });
    page.on("request", (request) => {
      const isOurs = request.url().startsWith(this.address) || request.url().startsWith("blob:");
      if (!isOurs) complaints.push(`asked for ${request.url()}`);
    });
    t.after(async () => {
      await context.close();
      assert.deepEqual(complaints, [], "the page has complained");
    });
    await page.goto(this.address + link);
    return page;
  }
}

/** @param {import("node:child_process").ChildProcess} server @returns {Promise<string>} */
function firstLine(server) {
  return new Promise((resolve, reject) => {
    let text = "";
    server.stdout?.on("data", (part) => {
      text += part;
      const end = text.indexOf("\n");
      if (end >= 0) resolve(text.slice(0, end));
    });
    server.once("exit", (code) => reject(new Error(`the server has ended with ${code}`)));
  });
}
