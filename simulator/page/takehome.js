// What was done, to take home: as a link, a command, a test, a picture.
import { byId } from "./elements.js";
import { linkOf } from "./link.js";
import { parts } from "./steps.js";
import { shownSides } from "./store.js";
import { flattened } from "./views.js";

/** @typedef {import("./store.js").State} State */

/** @param {string} word as a shell reads it */
export function quoted(word) {
  return /^[\w@%+=:,./-]+$/.test(word) ? word : `'${word.replaceAll("'", "'\\''")}'`;
}

/** @param {Pick<State, "ios" | "screen" | "show" | "steps">} state */
export function asCommand({ ios, screen, show, steps }) {
  const words = ["phone-simulator", "phone", "--ios", ios, "--screen", screen];
  for (const step of steps) {
    const [name, value] = parts(step);
    words.push(`--${name}`);
    if (value !== null) {
      words.push(quoted(value));
    } else if (name === "incoming") {
      words.push("''"); // a caller who hides
    }
  }
  if (show === "without") words.push("--without-addon");
  if (steps.some((step) => parts(step)[0] === "wait")) words.push("--pace", "0.001");
  return words.join(" ");
}

/** @param {string} text as a C++ literal */
function literal(text) {
  return /["\\]/.test(text) ? `R"step(${text})step"` : `"${text}"`;
}

/** A case that plays the steps and expects the add-on's texts that are seen now. @param {State} state */
export function asTest({ ios, screen, steps, views }) {
  const texts = flattened(views.with)
    .filter(({ view }) => view.seen && view.owner === "add-on" && view.text)
    .map(({ view }) => view.text ?? "");
  return [
    "TEST_F(Replay, ShowsWhatWasSeen) {",
    `    Session session(settings("${ios}", "${screen}"));`,
    "    std::ostringstream out;",
    "    for (const char *line : {",
    ...steps.map((step) => `             ${literal(step)},`),
    "         }) {",
    "        session.perform(stage::readStep(line), out);",
    "    }",
    ...texts.map((text) => `    EXPECT_THAT(session.tree(), HasSubstr(${literal(text)}));`),
    "}",
    "",
  ].join("\n");
}

/** The screens that are seen, side by side. @param {State} state @param {import("./pictures.js").Pictures} pictures */
async function picture(state, pictures) {
  const screens = shownSides(state).map((side) => pictures.of(side).canvas);
  const gap = 40;
  const width = screens.reduce((sum, screen) => sum + screen.width + gap, -gap);
  const canvas = new OffscreenCanvas(width, screens[0].height);
  const context = /** @type {OffscreenCanvasRenderingContext2D} */ (canvas.getContext("2d"));
  screens.forEach((screen, index) => context.drawImage(screen, index * (screen.width + gap), 0));
  return canvas.convertToBlob({ type: "image/png" });
}

/** @param {Blob} blob @param {string} name */
function save(blob, name) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(blob);
  link.download = name;
  link.click();
  URL.revokeObjectURL(link.href);
}

/** @param {import("./store.js").Store} store @param {import("./pictures.js").Pictures} pictures */
export function bindTakeHome(store, pictures) {
  /** @param {string} what @param {string} text */
  const copy = async (what, text) => {
    try {
      await navigator.clipboard.writeText(text);
      const title = `${what} is copied`;
      store.change({ notice: { kind: "info", title, lines: [], passes: true } });
    } catch {
      // A browser may refuse; then a person copies it by hand.
      const lines = text.split("\n");
      store.change({ notice: { kind: "info", title: what, lines, passes: false } });
    }
  };
  /** @param {string} id @param {() => void} action */
  const bind = (id, action) => byId(id, HTMLButtonElement).addEventListener("click", action);

  bind("copy-link", async () => {
    copy("The link", new URL(await linkOf(store.state), location.href).href);
  });
  bind("copy-command", () => copy("The command", asCommand(store.state)));
  bind("copy-test", () => copy("The test", asTest(store.state)));
  bind("save-picture", async () => {
    const { ios, screen, show } = store.state;
    save(await picture(store.state, pictures), `phone-${ios}-${screen}-${show}.png`);
  });
}
