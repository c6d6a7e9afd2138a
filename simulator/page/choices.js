// The groups of radio buttons: model, which phones are seen, whose views are inspected.

/** @typedef {import("./store.js").Store} Store */

/**
 * @param {Store} store
 * @param {"ios" | "screen" | "show" | "inspected"} key of the state, and name of the group
 * @param {(value: any) => void} choose
 */
function bind(store, key, choose) {
  /** @type {NodeListOf<HTMLInputElement>} */
  const buttons = document.querySelectorAll(`input[name="${key}"]`);
  for (const button of buttons) {
    button.addEventListener("change", () => choose(button.value));
  }
  store.watch(
    (state) => [state[key]],
    (value) => {
      for (const button of buttons) button.checked = button.value === value;
    },
  );
}

/** @param {Store} store @param {import("./conversation.js").Conversation} conversation */
export function bindChoices(store, conversation) {
  bind(store, "ios", (ios) => conversation.open({ ios }));
  bind(store, "screen", (screen) => conversation.open({ screen }));
  bind(store, "show", (show) => {
    store.change(show === "both" ? { show } : { show, inspected: show, pointed: null });
  });
  bind(store, "inspected", (inspected) => store.change({ inspected, pointed: null }));
}
