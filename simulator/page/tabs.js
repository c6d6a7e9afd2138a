// The tabs of the panels: arrow keys go from one to the next.
import { byId, setAttribute } from "./elements.js";

/** @type {import("./store.js").Tab[]} */
const tabs = ["inspect", "happened", "number", "steps"];

/** @param {import("./store.js").Store} store */
export function bindTabs(store) {
  const buttons = tabs.map((tab) => byId(`tab-${tab}`, HTMLButtonElement));
  buttons.forEach((button, index) => {
    button.addEventListener("click", () => store.change({ tab: tabs[index] }));
    button.addEventListener("keydown", (event) => {
      const way = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
      if (!way) return;
      event.preventDefault();
      const next = (index + way + tabs.length) % tabs.length;
      store.change({ tab: tabs[next] });
      buttons[next].focus();
    });
  });
  store.watch(
    (state) => [state.tab],
    (chosen) => {
      tabs.forEach((tab, index) => {
        setAttribute(buttons[index], "aria-selected", String(tab === chosen));
        buttons[index].tabIndex = tab === chosen ? 0 : -1;
        byId(tab, HTMLElement).hidden = tab !== chosen;
      });
      if (chosen !== "inspect") store.change({ pointing: false, pointed: null });
    },
  );
}
