// Where two screens differ, as a few rectangles.

/** @typedef {import("./protocol").Rect} Rect */

const block = 8; // pixels
/** Blocks that are closer than this belong together. */
const reach = 3;
const most = 16;

/**
 * The rectangles, in pixels, that cover every difference.
 * @param {Uint32Array} first
 * @param {Uint32Array} second
 * @param {number} width of both, in pixels
 * @returns {Rect[]}
 */
export function differences(first, second, width) {
  const height = first.length / width;
  const columns = Math.ceil(width / block);
  const differing = differingBlocks(first, second, width, columns);
  /** @type {Rect[]} */
  const rects = [];
  for (const start of differing) {
    rects.push(extent(start, differing, columns)); // the set loses all blocks of that extent
  }
  return few(rects).map(([x, y, w, h]) => [
    x * block,
    y * block,
    Math.min(w * block, width - x * block),
    Math.min(h * block, height - y * block),
  ]);
}

/** @param {Uint32Array} first @param {Uint32Array} second @param {number} width @param {number} columns */
function differingBlocks(first, second, width, columns) {
  /** @type {Set<number>} */
  const found = new Set();
  for (let index = 0; index < first.length; index++) {
    if (first[index] !== second[index]) {
      const y = Math.floor(index / width);
      const x = index - y * width;
      found.add(Math.floor(y / block) * columns + Math.floor(x / block));
      index += block - 1 - (x % block); // the rest of this block's row tells nothing more
    }
  }
  return found;
}

/**
 * Takes everything that hangs together with a block out of the set.
 * @param {number} start
 * @param {Set<number>} differing
 * @param {number} columns
 * @returns {Rect} in blocks
 */
function extent(start, differing, columns) {
  let [left, top, right, bottom] = [Infinity, Infinity, -1, -1];
  const open = [start];
  differing.delete(start);
  for (let at = open.pop(); at !== undefined; at = open.pop()) {
    const [x, y] = [at % columns, Math.floor(at / columns)];
    left = Math.min(left, x);
    top = Math.min(top, y);
    right = Math.max(right, x);
    bottom = Math.max(bottom, y);
    for (let dy = -1; dy <= 1; dy++) {
      for (let dx = -reach; dx <= reach; dx++) {
        const next = (y + dy) * columns + x + dx;
        if (x + dx >= 0 && x + dx < columns && differing.delete(next)) open.push(next);
      }
    }
  }
  return [left, top, right - left + 1, bottom - top + 1];
}

/** Joins what overlaps, and what is left over to one. @param {Rect[]} rects */
function few(rects) {
  /** @type {Rect[]} */
  const joined = [];
  for (const rect of rects) {
    let grown = rect;
    for (let at = 0; at < joined.length; at++) {
      if (overlap(joined[at], grown)) {
        grown = union(joined[at], grown);
        joined.splice(at, 1);
        at = -1;
      }
    }
    joined.push(grown);
  }
  return joined.length > most ? [joined.reduce(union)] : joined;
}

/** @param {Rect} a @param {Rect} b */
function overlap(a, b) {
  return a[0] < b[0] + b[2] && b[0] < a[0] + a[2] && a[1] < b[1] + b[3] && b[1] < a[1] + a[3];
}

/** @param {Rect} a @param {Rect} b @returns {Rect} */
function union(a, b) {
  const [x, y] = [Math.min(a[0], b[0]), Math.min(a[1], b[1])];
  const right = Math.max(a[0] + a[2], b[0] + b[2]);
  const bottom = Math.max(a[1] + a[3], b[1] + b[3]);
  return [x, y, right - x, bottom - y];
}
