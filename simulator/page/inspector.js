// The inspector: whose view is this, where is it, and who moved it?
import { byId, setAttribute, setText, throttled } from "./elements.js";
import { showDetails } from "./details.js";
import { Layers } from "./layers.js";
import { Tree } from "./tree.js";
import { changedViews } from "./views.js";

const drawEvery = 120; // milliseconds: views may be told sixty times a second

/** @param {import("./store.js").Store} store @param {import("./pictures.js").Pictures} pictures */
export function showInspector(store, pictures) {
  const point = byId("point", HTMLButtonElement);
  const layersButton = byId("layers-toggle", HTMLButtonElement);
  const search = byId("search", HTMLInputElement);
  const empty = byId("tree-empty", HTMLElement);
  const layers = new Layers(byId("layers", HTMLDivElement), store, pictures);
  const tree = new Tree(byId("tree", HTMLDivElement), {
    choose: (id) => store.change({ chosen: { side: store.state.inspected, id } }),
    point: (id) => {
      const pointed = id === null ? null : { side: store.state.inspected, id };
      store.change({ pointed });
    },
  });

  const drawNow = () => {
    const { tab, inspected, views, before, chosen } = store.state;
    if (tab !== "inspect") return;
    const root = views[inspected];
    const changed = changedViews(before[inspected], root);
    const choice = chosen?.side === inspected ? chosen.id : null;
    const rows = tree.show(root, changed, choice, search.value.trim());
    empty.hidden = rows > 0;
    setText(empty, root ? "No view is called so." : "No views are told of this phone.");
    layers.show(root, changed, choice);
    showDetails(store);
  };
  const draw = throttled(drawNow, drawEvery);

  store.watch(
    (state) => [state.tab, state.inspected, state.views, state.before, state.chosen],
    draw,
  );
  search.addEventListener("input", drawNow);
  search.addEventListener("keydown", (event) => {
    if (event.key === "ArrowDown") {
      event.preventDefault();
      tree.focus();
    }
  });
  point.addEventListener("click", () =>
    store.change({ pointing: !store.state.pointing, pointed: null }),
  );
  store.watch(
    (state) => [state.pointing],
    (pointing) => setAttribute(point, "aria-pressed", String(pointing)),
  );
  layersButton.addEventListener("click", () => {
    layers.isShown = !layers.isShown;
    setAttribute(layersButton, "aria-pressed", String(layers.isShown));
    draw();
  });
}
