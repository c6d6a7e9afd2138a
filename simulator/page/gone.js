// A phone whose process has ended: what its log said last, and the ways on.
import { make } from "./elements.js";
import { withoutLastEvent } from "./steps.js";
import { sideNames } from "./store.js";

/** @typedef {import("./store.js").Side} Side */

/**
 * @param {import("./store.js").Store} store
 * @param {import("./conversation.js").Conversation} conversation
 * @param {Side} side
 * @param {HTMLElement} screen
 */
export function showGone(store, conversation, side, screen) {
  const box = make("div", { class: "gone", role: "alert", hidden: true });
  screen.append(box);

  /** @param {string} label @param {() => import("./store.js").StepLine[]} steps */
  const button = (label, steps) =>
    make("button", { type: "button", onclick: () => conversation.open({ steps: steps() }) }, label);

  store.watch(
    (state) => [state.died[side]],
    (log) => {
      box.hidden = !log;
      if (!log) return;
      box.replaceChildren(
        make("h2", {}, "This phone has stopped"),
        make("p", {}, `${sideNames[side]}. Its log ended with:`),
        make("pre", { tabindex: "0" }, log.length > 0 ? log.join("\n") : "(nothing)"),
        button("Play the events again", () => store.state.steps),
        button("All but the last event", () => withoutLastEvent(store.state.steps)),
        button("Start over", () => []),
      );
    },
  );
}
