// Time: paused, stepped, faster or slower; and back to an earlier event.
import { byId, setAttribute } from "./elements.js";
import { withoutLastEvent } from "./steps.js";

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function showClock(store, conversation) {
  const pause = byId("pause", HTMLButtonElement);
  const step = byId("step-time", HTMLButtonElement);
  const speed = byId("speed", HTMLSelectElement);
  const undo = byId("undo", HTMLButtonElement);

  pause.addEventListener("click", () => store.change({ paused: !store.state.paused }));
  step.addEventListener("click", () => {
    store.change({ paused: true });
    conversation.step("wait 0.1");
  });
  speed.addEventListener("change", () => store.change({ speed: Number(speed.value) }));
  undo.addEventListener("click", () =>
    conversation.open({ steps: withoutLastEvent(store.state.steps) }),
  );
  byId("restart", HTMLButtonElement).addEventListener("click", () =>
    conversation.open({ steps: [] }),
  );
  store.watch(
    (state) => [state.paused],
    (paused) => setAttribute(pause, "aria-pressed", String(paused)),
  );
  store.watch(
    (state) => [state.steps],
    (steps) => (undo.disabled = steps.length === 0),
  );
}
