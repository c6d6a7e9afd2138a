// Everything that is known of the chosen view.
import { byId, make } from "./elements.js";
import { find } from "./views.js";

/** @typedef {import("./protocol").View} View */

/** @param {import("./protocol").Rect} rect */
function rectText([x, y, width, height]) {
  const number = (/** @type {number} */ value) => String(Math.round(value * 1000) / 1000);
  return `${number(x)}, ${number(y)} · ${number(width)} × ${number(height)}`;
}

/** @param {string} color @returns {(Node | string)[]} */
function colored(color) {
  const swatch = make("span", { class: "swatch", "aria-hidden": "true" });
  swatch.style.setProperty("background-color", color);
  return [swatch, color];
}

/** @param {View} view @returns {[string, (Node | string)[]][]} */
function rows(view) {
  /** @type {[string, (Node | string)[] | undefined | false][]} */
  const all = [
    ["Class", [view.class]],
    ["Owner", [view.owner === "add-on" ? "the add-on" : "the Phone application"]],
    ["Last touched by", [view.touched ?? "no replaced method"]],
    ["Tag", view.tag !== undefined && [String(view.tag)]],
    ["Frame in parent", [rectText(view.frame)]],
    ["On the screen", [rectText(view.place)]],
    ["Seen", [visibility(view)]],
    ["Text", view.text !== undefined && [`“${view.text}”`]],
    ["Runs", view.runs && view.runs.map(runElement)],
    ["Font", view.font !== undefined && [view.font]],
    ["Colour", view.color !== undefined && colored(view.color)],
    ["Background", view.background !== undefined && colored(view.background)],
    ["Image", view.image !== undefined && [view.image]],
    ["Role", view.role !== undefined && [roleText(view)]],
  ];
  return /** @type {[string, (Node | string)[]][]} */ (all.filter(([, value]) => value));
}

/** @param {View} view */
function visibility(view) {
  const alpha = view.alpha === undefined ? "" : `, alpha ${view.alpha}`;
  if (view.hidden) return `no: hidden${alpha}`;
  return (view.seen ? "yes" : "no: covered, clipped away or in a hidden view") + alpha;
}

/** @param {View} view */
function roleText({ role, name, disabled, selected }) {
  const states = [disabled && "disabled", selected && "selected"].filter(Boolean);
  return [`${role} “${name ?? ""}”`, ...states].join(", ");
}

/** @param {{ text: string, color: string, font: string }} run */
function runElement({ text, color, font }) {
  return make("span", { class: "run" }, ...colored(color), ` “${text}” ${font}`);
}

let last = "";

/** @param {import("./store.js").Store} store */
export function showDetails(store) {
  const { chosen, views } = store.state;
  const view = chosen ? find(views[chosen.side], chosen.id) : undefined;
  const told = view ? JSON.stringify({ ...view, children: [] }) : String(chosen?.id);
  if (told === last) return;
  last = told;
  const box = byId("details", HTMLDivElement);
  if (!view) {
    const text = chosen ? "The chosen view is gone." : "Choose a view to see what is known of it.";
    box.replaceChildren(make("p", { class: "muted" }, text));
    return;
  }
  const terms = rows(view).flatMap(([term, value]) => [
    make("dt", {}, term),
    make("dd", {}, ...value),
  ]);
  box.replaceChildren(make("dl", {}, ...terms));
}
