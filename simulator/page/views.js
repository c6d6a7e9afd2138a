// Looking through a view tree.

/** @typedef {import("./protocol").View} View */
/** @typedef {{ view: View, depth: number, parent: View | null }} Placed */

/** All views, parents before their children. @param {View | undefined} root @returns {Placed[]} */
export function flattened(root) {
  /** @type {Placed[]} */
  const list = [];
  /** @param {View} view @param {number} depth @param {View | null} parent */
  const add = (view, depth, parent) => {
    list.push({ view, depth, parent });
    for (const child of view.children) add(child, depth + 1, view);
  };
  if (root) add(root, 0, null);
  return list;
}

/** @param {View | undefined} root @param {number} id */
export function find(root, id) {
  return flattened(root).find(({ view }) => view.id === id)?.view;
}

/** @typedef {{ x: number, y: number }} Point */

/** Whether a person sees something of the view there. @param {View} view @param {Point} point */
function isSeenAt(view, { x, y }) {
  const [left, top, width, height] = seenPart(view);
  return view.seen && x >= left && y >= top && x < left + width && y < top + height;
}

/** The topmost view there. @param {View | undefined} root @param {Point} point */
export function viewAt(root, point) {
  return flattened(root).findLast(({ view }) => isSeenAt(view, point))?.view;
}

const pressed = new Set(["button", "row", "tab"]);

/** Whether a person presses it. @param {View} view */
export function isPressed(view) {
  return view.role !== undefined && pressed.has(view.role);
}

/** What is pressed there. @param {View | undefined} root @param {Point} point */
export function pressedAt(root, point) {
  return flattened(root).findLast(({ view }) => isPressed(view) && isSeenAt(view, point))?.view;
}

/** Whether the search words occur in class, text, tag, image or owner. @param {View} view @param {string} words */
export function matches(view, words) {
  const said = [view.class, view.text, view.name, view.image, view.owner, view.touched];
  if (view.tag !== undefined) said.push(`#${view.tag}`);
  if (view.hidden) said.push("hidden");
  const text = said.filter(Boolean).join(" ").toLowerCase();
  return words
    .toLowerCase()
    .split(/\s+/)
    .every((word) => text.includes(word));
}

/** @type {WeakMap<View, Map<number, string>>} */
const known = new WeakMap();

/** What is told of each view itself, without its children, by id. @param {View} root */
function toldOf(root) {
  let told = known.get(root);
  if (!told) {
    told = new Map(
      flattened(root).map(({ view }) => [view.id, JSON.stringify({ ...view, children: [] })]),
    );
    known.set(root, told);
  }
  return told;
}

/** The ids of views that are new or not as they were. @param {View | undefined} before @param {View | undefined} now @returns {Set<number>} */
export function changedViews(before, now) {
  if (!before || !now || before === now) return new Set();
  const was = toldOf(before);
  return new Set([...toldOf(now)].filter(([id, told]) => was.get(id) !== told).map(([id]) => id));
}

/** What of it is not clipped away. @param {View} view */
export function seenPart(view) {
  return view.shown ?? view.place;
}

/** @param {View} view */
export function middleOf(view) {
  const [x, y, width, height] = seenPart(view);
  return { x: x + width / 2, y: y + height / 2 };
}

/** What is said for a view in a line: its class and what it shows. @param {View} view */
export function titleOf(view) {
  const tag = view.tag === undefined ? "" : ` #${view.tag}`;
  return view.class + tag;
}
