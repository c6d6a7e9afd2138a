// The phone for those who do not see its picture: every control and text is an element with its
// name, in its place. The pointer passes through to the picture below.
import { make, placeOver, reconcile, setAttribute, setText } from "./elements.js";
import { flattened, isPressed, seenPart } from "./views.js";

/** @typedef {import("./store.js").View} View */

/** In the order in which a person reads a screen. @param {View} a @param {View} b */
function byPlace(a, b) {
  return a.place[1] - b.place[1] || a.place[0] - b.place[0];
}

/** @param {View | undefined} root */
function readable(root) {
  return flattened(root)
    .map(({ view }) => view)
    .filter((view) => view.seen && view.role && view.role !== "list" && view.name)
    .sort(byPlace);
}

export class Reader {
  element = make("div", { class: "over reading" });
  /** @type {Map<unknown, HTMLElement>} */
  #children = new Map();
  /** @type {Map<number, View>} */
  #views = new Map();
  #tap;

  /** @param {(view: View) => void} tap */
  constructor(tap) {
    this.#tap = tap;
  }

  /** @param {View | undefined} root @param {{ width: number, height: number }} size */
  show(root, size) {
    const views = readable(root);
    this.#views = new Map(views.map((view) => [view.id, view]));
    /** A view that becomes another thing gets another element. @param {View} view */
    const key = (view) => `${view.id} ${view.role}`;
    reconcile(this.element, this.#children, views, key, this.#create, (element, view) => {
      const name = view.name ?? "";
      if (element instanceof HTMLButtonElement) {
        setText(element, name);
        element.disabled = view.disabled === true;
        setAttribute(element, "aria-current", view.selected ? "true" : undefined);
      } else if (view.role === "image") {
        setAttribute(element, "aria-label", name);
      } else {
        setText(element, name);
      }
      placeOver(element, seenPart(view), size);
    });
  }

  /** @param {View} view */
  #create = (view) => {
    if (view.role === "image") return make("span", { role: "img" });
    if (!isPressed(view)) return make("span");
    return make("button", {
      type: "button",
      onclick: () => {
        const now = this.#views.get(view.id);
        if (now) this.#tap(now);
      },
    });
  };
}

/** Tells what the add-on newly says, unless it is a whole list of things. */
export class Speaker {
  #element;
  /** @type {string[]} */
  #last = [];

  /** @param {HTMLElement} element a live region */
  constructor(element) {
    this.#element = element;
  }

  /** @param {View | undefined} root */
  show(root) {
    const texts = flattened(root)
      .map(({ view }) => view)
      .filter((view) => view.seen && view.owner === "add-on" && view.text && view.role !== "button")
      .map((view) => view.text ?? "");
    const fresh = texts.filter((text) => !this.#last.includes(text));
    this.#last = texts;
    if (texts.length === 0) {
      setText(this.#element, "");
    } else if (fresh.length > 0 && fresh.length <= 3) {
      setText(this.#element, fresh.join(", "));
    }
  }
}
