// Everything that was done, event by event, and the way back to each.
import { byId, make, reconcile, setText, throttled } from "./elements.js";
import { eventsOf } from "./steps.js";

const drawEvery = 200; // milliseconds
const most = 300;

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function showStepList(store, conversation) {
  const told = make("p", { class: "muted" });
  const list = make("ol", { class: "list" });
  byId("steps", HTMLElement).append(told, list);
  /** @type {Map<unknown, HTMLElement>} */
  const children = new Map();

  /** @param {number} index of the event */
  const goBack = (index) => {
    const { steps } = store.state;
    conversation.open({ steps: steps.slice(0, eventsOf(steps)[index].end) });
  };
  /** @param {{ index: number, line: string }} item */
  const create = ({ index, line }) => {
    const label = `Back to here: ${line}`;
    const onclick = () => goBack(index);
    return make(
      "li",
      {},
      make("span", { class: "line" }, line),
      make("span", { class: "rest" }),
      make("button", { type: "button", "aria-label": label, onclick }, "Back to here"),
    );
  };
  const draw = throttled(() => {
    const { steps, tab } = store.state;
    if (tab !== "steps") return;
    const events = eventsOf(steps).map((event, index) => ({ ...event, index }));
    reconcile(
      list,
      children,
      events.slice(-most).reverse(),
      ({ index, line }) => `${index} ${line}`,
      create,
      (child, { rest }) => setText(child.children[1], rest),
    );
    const more = events.length > most ? ` The last ${most} are shown.` : "";
    const count = `${events.length} ${events.length === 1 ? "event" : "events"}, the latest first.`;
    setText(told, events.length === 0 ? "Nothing has been done yet." : count + more);
  }, drawEvery);
  store.watch((state) => [state.steps, state.tab], draw);
}
