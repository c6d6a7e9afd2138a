// Mouse, touch and wheel as the one finger that touches the phone.

/** @typedef {(line: string) => void} Do */
/** @typedef {{ x: number, y: number }} Point */

/** Points with one decimal: what the screen of a phone tells. @param {Point} point */
export function pointText({ x, y }) {
  return `${Math.round(x * 10) / 10},${Math.round(y * 10) / 10}`;
}

/**
 * The one finger, of all surfaces; its moves are told at most once a picture. It comes down for one
 * touch at a time, and whoever ends a touch that is over already ends nothing.
 */
export class Finger {
  #do;
  #touch = 0;
  #isDown = false;
  #told = "";
  /** @type {Point | null} */
  #next = null;

  /** @param {Do} act */
  constructor(act) {
    this.#do = act;
  }

  /** @param {Point} at @param {string} [name] of what is there @returns {number} the touch */
  down(at, name) {
    this.#isDown = true;
    this.#next = null;
    this.#told = pointText(at);
    this.#do(name ? `down ${this.#told} ${name}` : `down ${this.#told}`);
    return ++this.#touch;
  }

  /** @param {number} touch @param {Point} to */
  move(touch, to) {
    if (!this.#isDown || touch !== this.#touch) return;
    if (!this.#next) requestAnimationFrame(() => this.#tell());
    this.#next = to;
  }

  /** @param {number} touch @param {"lift" | "cancel"} line */
  end(touch, line) {
    if (!this.#isDown || touch !== this.#touch) return;
    this.#tell();
    this.#isDown = false;
    this.#do(line);
  }

  #tell() {
    const next = this.#next && pointText(this.#next);
    this.#next = null;
    if (!next || !this.#isDown || next === this.#told) return;
    this.#told = next;
    this.#do(`move ${next}`);
  }
}

/**
 * @typedef {object} Surface
 * @property {HTMLElement} element what the pointer touches
 * @property {(event: MouseEvent) => Point} toPoint in points of the phone's screen
 * @property {(at: Point) => string | undefined} nameAt
 * @property {() => boolean} isTouchable
 */

/** @param {Surface} surface @param {Finger} finger */
export function followPointer({ element, toPoint, nameAt, isTouchable }, finger) {
  /** @type {number | null} */
  let pointer = null;
  let touch = 0;
  element.addEventListener("pointerdown", (event) => {
    if (!event.isPrimary || event.button !== 0 || !isTouchable()) return;
    event.preventDefault();
    pointer = event.pointerId;
    element.setPointerCapture(pointer);
    const at = toPoint(event);
    touch = finger.down(at, nameAt(at));
  });
  element.addEventListener("pointermove", (event) => {
    if (event.pointerId === pointer) finger.move(touch, toPoint(event));
  });
  element.addEventListener("pointerup", (event) => {
    if (event.pointerId !== pointer) return;
    pointer = null;
    finger.move(touch, toPoint(event));
    finger.end(touch, "lift");
  });
  element.addEventListener("lostpointercapture", (event) => {
    if (event.pointerId !== pointer) return;
    pointer = null;
    finger.end(touch, "cancel");
  });
}

/** A finger comes down where the wheel turns, and rests before it lifts, so that nothing runs on. */
const restMilliseconds = 150;

/** @param {Surface} surface @param {Finger} finger @param {() => { width: number, height: number }} sizeOf */
export function followWheel({ element, toPoint, isTouchable }, finger, sizeOf) {
  /** @type {Point | null} */
  let at = null;
  let touch = 0;
  let timer = 0;
  const end = () => {
    clearTimeout(timer);
    finger.end(touch, "lift");
    at = null;
  };
  element.addEventListener(
    "wheel",
    (event) => {
      if (event.ctrlKey || !isTouchable()) return;
      event.preventDefault();
      const line = event.deltaMode === WheelEvent.DOM_DELTA_LINE ? 20 : 1;
      if (at && leaves(at, sizeOf())) end();
      if (!at) {
        at = toPoint(event);
        touch = finger.down(at);
      }
      at = { x: at.x - event.deltaX * line, y: at.y - event.deltaY * line };
      finger.move(touch, at);
      clearTimeout(timer);
      timer = window.setTimeout(end, restMilliseconds);
    },
    { passive: false },
  );
}

/** @param {Point} at @param {{ width: number, height: number }} size */
function leaves({ x, y }, { width, height }) {
  return x < 0 || y < 0 || x > width || y > height;
}

/** Keys of the keypad, for a keyboard that nothing else on the page listens to. */
const keypad = /^[0-9*#+]$/;

/** @param {Do} act @param {() => void} back */
export function followKeyboard(act, back) {
  document.addEventListener("keydown", (event) => {
    const { key } = event;
    if (event.defaultPrevented || event.ctrlKey || event.metaKey || event.altKey) return;
    if (!isFree(document.activeElement)) return;
    if (keypad.test(key)) {
      act(`type ${key}`);
    } else if (key === "Backspace") {
      act("delete 1");
    } else if (key === "Escape") {
      back();
    } else {
      return;
    }
    event.preventDefault();
  });
}

/** Whether nothing is written into a field. @param {Element | null} focused */
function isFree(focused) {
  const takesKeys = "input:not([type=radio], [type=checkbox], [type=range]), select, textarea";
  return !focused?.matches(takesKeys);
}
