// The view tree: arrow keys walk through it, Enter or a click chooses.
import { make, reconcile, setAttribute, setText } from "./elements.js";
import { flattened, matches, titleOf } from "./views.js";

/** @typedef {import("./protocol").View} View */
/** @typedef {import("./views.js").Placed} Placed */
/** @typedef {{ choose: (id: number) => void, point: (id: number | null) => void }} Actions */

export class Tree {
  #element;
  #actions;
  /** @type {Map<unknown, HTMLElement>} */
  #rows = new Map();
  /** @type {Placed[]} */
  #shown = [];
  /** @type {Set<number>} */
  #closed = new Set();
  /** @type {number | null} the row that the Tab key leads to */
  #current = null;
  /** @type {number | null} */
  #chosen = null;
  /** @type {() => void} */
  #again = () => {};

  /** @param {HTMLElement} element @param {Actions} actions */
  constructor(element, actions) {
    this.#element = element;
    this.#actions = actions;
    element.addEventListener("keydown", (event) => this.#key(event));
    element.addEventListener("pointerleave", () => actions.point(null));
  }

  /**
   * @param {View | undefined} root
   * @param {Set<number>} changed
   * @param {number | null} chosen
   * @param {string} words only what matches, and what it lies in
   * @returns {number} of rows
   */
  show(root, changed, chosen, words) {
    this.#again = () => this.show(root, changed, chosen, words);
    const all = flattened(root);
    if (chosen !== this.#chosen) this.#reveal(all, chosen);
    this.#shown = words ? found(all, words) : this.#open(all);
    if (!this.#shown.some(({ view }) => view.id === this.#current)) {
      this.#current = this.#shown[0]?.view.id ?? null;
    }
    const parents = new Set(this.#shown.map(({ parent }) => parent?.id));
    reconcile(
      this.#element,
      this.#rows,
      this.#shown,
      ({ view }) => view.id,
      ({ view }) => this.#makeRow(view.id),
      (row, { view, depth }) => {
        row.tabIndex = view.id === this.#current ? 0 : -1;
        row.style.setProperty("--depth", String(Math.min(depth, 16)));
        setAttribute(row, "aria-level", depth + 1);
        setAttribute(row, "aria-selected", String(view.id === chosen));
        const isOpen = parents.has(view.id);
        setAttribute(row, "aria-expanded", view.children.length ? String(isOpen) : undefined);
        fillRow(row, view, isOpen, changed.has(view.id));
      },
    );
    if (chosen !== this.#chosen && chosen !== null) {
      this.#rows.get(chosen)?.scrollIntoView({ block: "nearest" });
    }
    this.#chosen = chosen;
    return this.#shown.length;
  }

  focus() {
    if (this.#current !== null) this.#rows.get(this.#current)?.focus();
  }

  /** The rows of which no parent is closed. @param {Placed[]} all */
  #open(all) {
    /** @type {Set<number>} */
    const within = new Set();
    return all.filter(({ view, parent }) => {
      const isShown = !parent || (!this.#closed.has(parent.id) && !within.has(parent.id));
      if (!isShown) within.add(view.id);
      return isShown;
    });
  }

  /** @param {Placed[]} all @param {number | null} id */
  #reveal(all, id) {
    const parents = new Map(all.map(({ view, parent }) => [view.id, parent?.id]));
    if (id !== null && parents.has(id)) this.#current = id;
    for (let at = parents.get(id ?? -1); at !== undefined; at = parents.get(at)) {
      this.#closed.delete(at);
    }
  }

  /** @param {number} id */
  #makeRow(id) {
    const row = make(
      "div",
      {
        class: "node",
        role: "treeitem",
        onclick: () => {
          this.#go(id);
          this.#actions.choose(id);
        },
        onpointerenter: () => this.#actions.point(id),
      },
      make("span", {
        class: "twist",
        "aria-hidden": "true",
        onclick: (/** @type {Event} */ event) => {
          event.stopPropagation();
          this.#toggle(id, this.#closed.has(id));
        },
      }),
      make("span", { class: "class" }),
      make("span", { class: "said" }),
      make("span", { class: "badge", hidden: true }, "changed"),
      make("span", { class: "badge plain", hidden: true }, "hidden"),
    );
    return row;
  }

  /** @param {number} id @param {boolean} open */
  #toggle(id, open) {
    if (open) {
      this.#closed.delete(id);
    } else {
      this.#closed.add(id);
    }
    this.#again();
  }

  /** @param {number} id */
  #go(id) {
    this.#current = id;
    this.#again();
    this.focus();
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const index = this.#shown.findIndex(({ view }) => view.id === this.#current);
    const at = this.#shown[index];
    if (!at || event.ctrlKey || event.metaKey || event.altKey) return;
    const { view, parent } = at;
    const isOpen = this.#shown[index + 1]?.parent === view;
    const last = this.#shown.length - 1;
    /** @param {number} to */
    const goTo = (to) => this.#go(this.#shown[Math.max(0, Math.min(last, to))].view.id);
    switch (event.key) {
      case "ArrowDown":
        goTo(index + 1);
        break;
      case "ArrowUp":
        goTo(index - 1);
        break;
      case "Home":
        goTo(0);
        break;
      case "End":
        goTo(last);
        break;
      case "ArrowRight":
        if (isOpen) goTo(index + 1);
        else if (view.children.length) this.#toggle(view.id, true);
        break;
      case "ArrowLeft":
        if (isOpen) this.#toggle(view.id, false);
        else if (parent) this.#go(parent.id);
        break;
      case "Enter":
      case " ":
        this.#actions.choose(view.id);
        break;
      default:
        return;
    }
    event.preventDefault();
    if (this.#current !== null) this.#actions.point(this.#current);
  }
}

/** Matches, and the views that they lie in. @param {Placed[]} all @param {string} words */
function found(all, words) {
  /** @type {Set<number | undefined>} */
  const kept = new Set();
  for (const { view, parent } of [...all].reverse()) {
    if (kept.has(view.id) || matches(view, words)) kept.add(view.id).add(parent?.id);
  }
  return all.filter(({ view }) => kept.has(view.id));
}

/** @param {HTMLElement} row @param {View} view @param {boolean} isOpen @param {boolean} isChanged */
function fillRow(row, view, isOpen, isChanged) {
  const [twist, title, said, changed, hidden] = /** @type {HTMLElement[]} */ ([...row.children]);
  setText(twist, view.children.length === 0 ? "" : isOpen ? "▾" : "▸");
  setText(title, titleOf(view));
  setText(said, view.text ? `“${view.text}”` : (view.image ?? ""));
  changed.hidden = !isChanged;
  hidden.hidden = !view.hidden;
  row.classList.toggle("ours", view.owner === "add-on");
  row.classList.toggle("unseen", !view.seen);
}
