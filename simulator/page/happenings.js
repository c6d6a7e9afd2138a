// What happened: for each event the replaced methods that ran, what they asked, and what came of it.
import { byId, make, setText, throttled } from "./elements.js";
import { sideNames } from "./store.js";

/** @typedef {import("./protocol").Happening} Happening */
/** @typedef {import("./store.js").Happened} Happened */

const drawEvery = 200; // milliseconds

/** @param {number} micros */
function timeText(micros) {
  return micros < 1000 ? `${micros} µs` : `${(micros / 1000).toFixed(1)} ms`;
}

/** @param {Happening[]} happenings @returns {HTMLElement} */
function nest(happenings) {
  return make("ul", { class: "nest" }, ...happenings.map(item));
}

/** @param {Happening} happening @returns {HTMLLIElement} */
function item(happening) {
  switch (happening.kind) {
    case "method":
      return timed(happening, [happening.name]);
    case "asked": {
      const { what, arguments: given, returned } = happening;
      const said = given.length > 0 ? ` (${given.join(", ")})` : "";
      const result = returned === "" ? [] : [make("span", { class: "returned" }, ` → ${returned}`)];
      return timed(happening, [make("span", { class: "kind" }, "asks"), what + said, ...result]);
    }
    default: {
      const kinds = { message: "message", later: "later", address: "opens", note: "note" };
      const kind = make("span", { class: "kind" }, kinds[happening.kind]);
      const what = make("span", { class: "what" }, kind, happening.what);
      return make("li", {}, make("div", { class: "done" }, what));
    }
  }
}

/** @param {Extract<Happening, { micros: number }>} happening @param {(Node | string)[]} what */
function timed({ micros, thread, inside }, what) {
  const where = thread === "main" ? "" : ` · ${thread}`;
  const line = make(
    "div",
    { class: "done" },
    make("span", { class: "what" }, ...what),
    make("span", { class: "time" }, timeText(micros) + where),
  );
  return make("li", {}, line, ...(inside.length > 0 ? [nest(inside)] : []));
}

/** @param {Happening[]} happenings @param {Happening["kind"]} kind @returns {number} */
function count(happenings, kind) {
  return happenings.reduce(
    (sum, each) =>
      sum + (each.kind === kind ? 1 : 0) + ("inside" in each ? count(each.inside, kind) : 0),
    0,
  );
}

/** @param {number} number @param {string} one @param {string} many */
function counted(number, one, many) {
  return number === 0 ? "" : `${number} ${number === 1 ? one : many}`;
}

/** @param {Happening[]} happenings */
function summaryOf(happenings) {
  const micros = happenings.reduce((sum, each) => sum + ("micros" in each ? each.micros : 0), 0);
  const parts = [
    counted(count(happenings, "method"), "method", "methods"),
    counted(count(happenings, "asked"), "question", "questions"),
    micros > 0 ? timeText(micros) : "",
  ];
  return parts.filter(Boolean).join(" · ");
}

/** An event, and what each of its lines has done. */
class EventItem {
  #summary = make("span", { class: "muted hint" });
  #lines = make("div");
  /** @type {Happened[]} */
  #shown = [];
  details;
  element;

  /** @param {import("./store.js").StepLine} line that it begins with */
  constructor(line) {
    const title = make("span", { class: "line" }, line || "time passes");
    this.details = make("details", {}, make("summary", {}, title, this.#summary), this.#lines);
    this.element = make("li", { class: "event" }, this.details);
  }

  /** @param {Happened[]} lines @param {boolean} isSideTold */
  show(lines, isSideTold) {
    for (const each of lines) {
      if (this.#shown.includes(each)) continue;
      this.#shown.push(each);
      const side = isSideTold ? `, ${sideNames[each.side].toLowerCase()}` : "";
      const isFirst = each.line === each.event.line;
      const heading = isFirst && !side ? [] : [make("p", { class: "at" }, each.line + side)];
      this.#lines.append(...heading, nest(each.happenings));
    }
    setText(this.#summary, summaryOf(lines.flatMap(({ happenings }) => happenings)));
  }
}

/** @param {import("./store.js").Store} store */
export function showHappenings(store) {
  const hint = make("p", { class: "muted" }, "Events are told from now on, the latest first.");
  const list = make("ol", { class: "events", reversed: true });
  byId("happened", HTMLElement).append(hint, list);
  /** @type {Map<Happened["event"], EventItem>} */
  const items = new Map();
  /** @type {EventItem | null} */
  let newest = null;

  /** @param {Happened["event"]} event */
  const itemOf = (event) => {
    const item = items.get(event) ?? new EventItem(event.line);
    if (!items.has(event)) {
      items.set(event, item);
      if (newest) newest.details.open = false;
      item.details.open = true;
      newest = item;
      list.prepend(item.element);
    }
    return item;
  };
  const draw = throttled(() => {
    /** @type {Map<Happened["event"], Happened[]>} */
    const events = new Map();
    for (const each of store.state.happened) {
      if (each.happenings.length === 0) continue;
      events.set(each.event, [...(events.get(each.event) ?? []), each]);
    }
    for (const [event, item] of items) {
      if (events.has(event)) continue;
      item.element.remove();
      items.delete(event);
    }
    for (const [event, lines] of events) {
      const isSideTold = lines.some(({ side }) => side === "without");
      itemOf(event).show(lines, isSideTold);
    }
  }, drawEvery);
  store.watch((state) => [state.happened], draw);
}
