// The views as sheets above each other, in a space that can be turned.
import { make, reconcile } from "./elements.js";
import { flattened } from "./views.js";

/** @typedef {import("./protocol").View} View */
/** @typedef {import("./views.js").Placed} Placed */

const scale = 0.7;
/** Of a plate, so that what lies behind it shines through: the last two digits of its colour. */
const plateAlpha = "99";

export class Layers {
  isShown = false;
  #element;
  #store;
  #pictures;
  #model = make("div", { class: "model" });
  #space = make("div", { class: "space-3d" }, this.#model);
  #turn = this.#slider("Turn", -80, 80, 32);
  #tilt = this.#slider("Tilt", -60, 60, -12);
  #spread = this.#slider("Spread", 0, 60, 22);
  /** @type {Map<unknown, HTMLElement>} */
  #sheets = new Map();

  /**
   * @param {HTMLElement} element
   * @param {import("./store.js").Store} store
   * @param {import("./pictures.js").Pictures} pictures
   */
  constructor(element, store, pictures) {
    this.#element = element;
    this.#store = store;
    this.#pictures = pictures;
    const sliders = [this.#turn, this.#tilt, this.#spread];
    const turns = make("div", { class: "turns" }, ...sliders.map(({ label }) => label));
    element.append(this.#space, turns);
    this.#followDrag();
  }

  /** @param {View | undefined} root @param {Set<number>} changed @param {number | null} chosen */
  show(root, changed, chosen) {
    this.#element.hidden = !this.isShown;
    if (!this.isShown) return;
    const { size, inspected } = this.#store.state;
    const screen = this.#pictures.of(inspected).canvas;
    this.#model.style.setProperty("width", `${size.width * scale}px`);
    this.#model.style.setProperty("height", `${size.height * scale}px`);
    reconcile(
      this.#model,
      this.#sheets,
      flattened(root).filter(({ view }) => view.seen),
      ({ view }) => view.id,
      ({ view }) => this.#makeSheet(view.id),
      (sheet, { view, depth }) => {
        const [x, y, width, height] = view.place;
        const style = sheet.style;
        style.setProperty("left", `${x * scale}px`);
        style.setProperty("top", `${y * scale}px`);
        style.setProperty("width", `${width * scale}px`);
        style.setProperty("height", `${height * scale}px`);
        sheet.dataset.depth = String(depth);
        sheet.classList.toggle("ours", view.owner === "add-on");
        sheet.classList.toggle("changed", changed.has(view.id));
        sheet.classList.toggle("is-chosen", view.id === chosen);
        const plate = view.background && view.background.slice(0, 7) + plateAlpha;
        style.setProperty("background-color", plate ?? "");
        showPiece(sheet, screen, view);
      },
    );
    this.#arrange();
  }

  /** @param {string} name @param {number} least @param {number} most @param {number} value */
  #slider(name, least, most, value) {
    const input = make("input", { type: "range", min: least, max: most, value });
    input.addEventListener("input", () => this.#arrange());
    return { input, label: make("label", {}, name, input) };
  }

  #arrange() {
    const [turn, tilt, spread] = [this.#turn, this.#tilt, this.#spread].map(({ input }) =>
      Number(input.value),
    );
    const depths = [...this.#sheets.values()].map((sheet) => Number(sheet.dataset.depth));
    const middle = Math.max(0, ...depths) / 2;
    this.#model.style.setProperty("transform", `rotateX(${-tilt}deg) rotateY(${turn}deg)`);
    for (const sheet of this.#sheets.values()) {
      const height = (Number(sheet.dataset.depth) - middle) * spread;
      sheet.style.setProperty("transform", `translateZ(${height}px)`);
    }
  }

  /** @param {number} id */
  #makeSheet(id) {
    const choose = () => this.#store.change({ chosen: { side: this.#store.state.inspected, id } });
    return make("div", { class: "sheet", onclick: choose });
  }

  #followDrag() {
    this.#space.addEventListener("pointermove", (event) => {
      if (event.buttons !== 1) return;
      this.#turn.input.valueAsNumber += event.movementX / 3;
      this.#tilt.input.valueAsNumber += event.movementY / 3;
      this.#arrange();
    });
  }
}

/** A view without others in it shows its piece of the screen. @param {HTMLElement} sheet @param {HTMLCanvasElement} screen @param {View} view */
function showPiece(sheet, screen, view) {
  const isLeaf = !view.children.some((child) => child.seen);
  const [x, y, width, height] = view.place.map((points) => Math.round(points * 2));
  if (!isLeaf || width < 1 || height < 1 || view.class.includes("Wallpaper")) {
    sheet.replaceChildren();
    return;
  }
  const had = sheet.firstElementChild;
  const canvas = had instanceof HTMLCanvasElement ? had : make("canvas");
  if (had !== canvas) sheet.replaceChildren(canvas);
  canvas.width = width;
  canvas.height = height;
  canvas.getContext("2d")?.drawImage(screen, -x, -y);
}
