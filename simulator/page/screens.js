// The phones side by side, fed by the same events, or one of them.
import { byId, make, placeOver, reconcile, setAttribute, setText, throttled } from "./elements.js";
import { differences } from "./differences.js";
import { Finger, followKeyboard, followPointer, followWheel } from "./fingers.js";
import { Reader, Speaker } from "./reader.js";
import { shownSides, sideNames, sides } from "./store.js";
import { showGone } from "./gone.js";
import { find, middleOf, pressedAt, titleOf, viewAt } from "./views.js";

/** @typedef {import("./store.js").Side} Side */
/** @typedef {import("./store.js").Store} Store */
/** @typedef {import("./pictures.js").Pictures} Pictures */
/** @typedef {import("./conversation.js").Conversation} Conversation */
/** @typedef {import("./protocol").Rect} Rect */
/** @typedef {{ store: Store, pictures: Pictures, conversation: Conversation, finger: Finger }} Context */

const compareEvery = 200; // milliseconds

/** @param {Context} context @param {Side} side */
function makePhone({ store, pictures, conversation, finger }, side) {
  const canvas = pictures.of(side).canvas;
  setAttribute(canvas, "aria-hidden", "true"); // the reader's elements tell what is on it
  const reader = new Reader((view) => {
    finger.end(finger.down(middleOf(view), view.name), "lift");
  });
  const outlines = make("div", { class: "over" });
  const marks = make("div", { class: "over", "aria-hidden": "true" });
  const screen = make("div", { class: "screen" }, canvas, outlines, marks, reader.element);
  const figure = make(
    "figure",
    { class: "phone", id: `phone-${side}`, "aria-labelledby": `caption-${side}` },
    make("figcaption", { id: `caption-${side}` }, sideNames[side]),
    screen,
  );

  /** @param {MouseEvent} event */
  const toPoint = (event) => {
    const box = canvas.getBoundingClientRect();
    const { width, height } = store.state.size;
    return {
      x: ((event.clientX - box.left) / box.width) * width,
      y: ((event.clientY - box.top) / box.height) * height,
    };
  };
  /** @type {import("./fingers.js").Surface} */
  const surface = {
    element: canvas,
    toPoint,
    isTouchable: () => !store.state.pointing && !store.state.opening,
    nameAt: (at) => pressedAt(store.state.views[side], at)?.name,
  };
  followPointer(surface, finger);
  followWheel(surface, finger, () => store.state.size);
  pointAtViews(store, side, canvas, toPoint);

  showMarks(store, side, marks);
  showGone(store, conversation, side, screen);
  store.watch(
    (state) => [state.views[side], state.size, state.show],
    (root, size) => {
      if (shownSides(store.state).includes(side)) reader.show(root, size);
    },
  );
  store.watch(
    (state) => [state.pointing],
    (pointing) => screen.classList.toggle("pointing", pointing),
  );
  return { figure, outlines };
}

/** While the pointer inspects, it tells what it is over. @param {Store} store @param {Side} side @param {HTMLElement} canvas @param {(event: MouseEvent) => { x: number, y: number }} toPoint */
function pointAtViews(store, side, canvas, toPoint) {
  /** @param {MouseEvent} event */
  const viewUnder = (event) => {
    const view = viewAt(store.state.views[side], toPoint(event));
    return view ? { side, id: view.id } : null;
  };
  canvas.addEventListener("pointermove", (event) => {
    if (store.state.pointing) store.change({ pointed: viewUnder(event) });
  });
  canvas.addEventListener("pointerleave", () => {
    if (store.state.pointed) store.change({ pointed: null });
  });
  canvas.addEventListener("click", (event) => {
    if (!store.state.pointing) return;
    store.change({ chosen: viewUnder(event), inspected: side });
  });
}

/** The views that are pointed at and chosen. @param {Store} store @param {Side} side @param {HTMLElement} marks */
function showMarks(store, side, marks) {
  const pointed = make("div", { class: "pointed" });
  const chosen = make("div", { class: "chosen" });
  const name = make("div", { class: "pointed-name" });
  marks.append(pointed, chosen, name);
  /** @param {HTMLElement} mark @param {import("./store.js").Chosen | null} which */
  const place = (mark, which) => {
    const view = which?.side === side ? find(store.state.views[side], which.id) : undefined;
    mark.hidden = !view;
    if (view) placeOver(mark, view.place, store.state.size);
    return view;
  };
  store.watch(
    (state) => [state.tab === "inspect", state.pointed, state.chosen, state.views[side]],
    (isInspecting, at, choice) => {
      const view = place(pointed, isInspecting ? at : null);
      place(chosen, isInspecting ? choice : null);
      setText(name, view ? `${titleOf(view)}  ${view.place[2]}×${view.place[3]}` : "");
    },
  );
}

/** Outlines on both phones what differs. @param {Context} context @param {HTMLElement[]} layers */
function showDifferences({ store, pictures }, layers) {
  const told = byId("difference", HTMLElement);
  /** @type {Map<unknown, HTMLElement>[]} */
  const children = layers.map(() => new Map());
  /** @param {Rect[]} rects @param {string} text */
  const show = (rects, text) => {
    setText(told, text);
    layers.forEach((layer, index) => {
      const items = rects.map((rect, key) => ({ rect, key }));
      const create = () => make("div", { class: "outline" });
      reconcile(
        layer,
        children[index],
        items,
        ({ key }) => key,
        create,
        (outline, { rect }) => placeOver(outline, rect, store.state.size),
      );
    });
  };
  const compare = throttled(() => {
    const { show: shown, size } = store.state;
    const [without, withAddOn] = sides.map((side) => pictures.of(side));
    if (shown !== "both") return show([], "");
    if (!without.isThere || !withAddOn.isThere) return show([], "");
    const found = differences(without.pixels(), withAddOn.pixels(), size.width * 2);
    const rects = found.map((rect) => /** @type {Rect} */ (rect.map((pixels) => pixels / 2)));
    const text = found.length === 0 ? "Both show the same" : "Outlined: what the add-on changes";
    return show(rects, text);
  }, compareEvery);
  pictures.onChange(compare);
  store.watch((state) => [state.show, state.size], compare);
}

/** @param {Store} store @param {Pictures} pictures @param {Conversation} conversation */
export function showScreens(store, pictures, conversation) {
  const act = (/** @type {string} */ line) => conversation.step(line);
  const context = { store, pictures, conversation, finger: new Finger(act) };
  pictures.resize(store.state.size);
  const made = sides.map((side) => makePhone(context, side));
  byId("phones", HTMLDivElement).append(...made.map(({ figure }) => figure));
  showDifferences(
    context,
    made.map(({ outlines }) => outlines),
  );
  store.watch(
    (state) => [state.show],
    () => {
      const shown = shownSides(store.state);
      sides.forEach((side, index) => (made[index].figure.hidden = !shown.includes(side)));
    },
  );
  followKeyboard(act, () => {
    if (store.state.pointing) {
      store.change({ pointing: false, pointed: null });
    } else {
      act("back");
    }
  });
  const speaker = new Speaker(byId("spoken", HTMLElement));
  store.watch(
    (state) => [state.views.with],
    (root) => speaker.show(root),
  );
}
