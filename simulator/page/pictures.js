// The phones' screens as they came over the socket, two pixels a point.
import { sides } from "./store.js";

/** @typedef {import("./store.js").Side} Side */
/** @typedef {{ side: Side, number: number, x: number, y: number, image: ImageData }} Part */

const headerBytes = 16;

/** Takes a message apart. @param {ArrayBuffer} message @returns {Part} */
export function readPart(message) {
  const header = new DataView(message, 0, headerBytes);
  const [x, y, width, height] = [2, 4, 6, 8].map((at) => header.getUint16(at, true));
  const pixels = new Uint8ClampedArray(message, headerBytes, width * height * 4);
  return {
    side: sides[header.getUint8(0)],
    number: header.getUint32(12, true),
    x,
    y,
    image: new ImageData(pixels, width, height),
  };
}

/** One screen, for whoever draws it and whoever compares it. */
export class Picture {
  canvas = document.createElement("canvas");
  #context = /** @type {CanvasRenderingContext2D} */ (
    this.canvas.getContext("2d", { alpha: false, willReadFrequently: true })
  );
  isThere = false;

  /** Forgets what was shown. @param {number} width @param {number} height in pixels */
  resize(width, height) {
    this.canvas.width = width;
    this.canvas.height = height;
    this.isThere = false;
  }

  /** @param {Part} part */
  take(part) {
    this.#context.putImageData(part.image, part.x, part.y);
    this.isThere = true;
  }

  /** One number a pixel, row by row. */
  pixels() {
    const { width, height } = this.canvas;
    return new Uint32Array(this.#context.getImageData(0, 0, width, height).data.buffer);
  }
}

export class Pictures {
  /** @type {Record<Side, Picture>} */
  #pictures = { without: new Picture(), with: new Picture() };
  /** @type {((side: Side) => void)[]} */
  #listeners = [];

  /** @param {Side} side */
  of(side) {
    return this.#pictures[side];
  }

  /** @param {(side: Side) => void} listener */
  onChange(listener) {
    this.#listeners.push(listener);
  }

  /** @param {{ width: number, height: number }} size in points */
  resize(size) {
    for (const side of sides) this.of(side).resize(size.width * 2, size.height * 2);
  }

  /** @param {Part} part */
  take(part) {
    this.of(part.side).take(part);
    for (const listener of this.#listeners) listener(part.side);
  }
}
