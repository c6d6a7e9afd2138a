// Making and finding elements of the page. The content policy forbids style attributes, so styles
// that are not in a style sheet are set property by property.

/**
 * An attribute that is undefined or false is left out; one that begins with "on" is a listener.
 * @template {keyof HTMLElementTagNameMap} Tag
 * @param {Tag} tag
 * @param {Record<string, unknown>} [attributes]
 * @param {...(Node | string)} children
 * @returns {HTMLElementTagNameMap[Tag]}
 */
export function make(tag, attributes = {}, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (typeof value === "function") {
      element.addEventListener(name.slice(2), /** @type {EventListener} */ (value));
    } else {
      setAttribute(element, name, value);
    }
  }
  element.append(...children);
  return element;
}

/** Touches the document only when something changes. @param {Element} element @param {string} name @param {unknown} value */
export function setAttribute(element, name, value) {
  if (value === undefined || value === false || value === null) {
    if (element.hasAttribute(name)) element.removeAttribute(name);
    return;
  }
  const text = value === true ? "" : String(value);
  if (element.getAttribute(name) !== text) element.setAttribute(name, text);
}

/** @param {Element} element @param {string} text */
export function setText(element, text) {
  if (element.textContent !== text) element.textContent = text;
}

/**
 * The element of the page with that id.
 * @template {Element} Type
 * @param {string} id
 * @param {new () => Type} type
 * @returns {Type}
 */
export function byId(id, type) {
  const element = document.getElementById(id);
  if (!(element instanceof type)) throw new Error(`index.html lacks the ${type.name} #${id}`);
  return element;
}

/**
 * Places an element in a surface of which so many points are seen.
 * @param {HTMLElement} element
 * @param {import("./protocol").Rect} place
 * @param {{ width: number, height: number }} size
 */
export function placeOver(element, [x, y, width, height], size) {
  const style = element.style;
  style.setProperty("left", `${(x / size.width) * 100}%`);
  style.setProperty("top", `${(y / size.height) * 100}%`);
  style.setProperty("width", `${(width / size.width) * 100}%`);
  style.setProperty("height", `${(height / size.height) * 100}%`);
}

/**
 * Has the children be what the items make, and keeps those that stay, with their focus.
 * @template Item
 * @template {Element} Child
 * @param {Element} parent
 * @param {Map<unknown, Child>} children by key; kept by the caller from one time to the next
 * @param {readonly Item[]} items
 * @param {(item: Item) => unknown} keyOf
 * @param {(item: Item) => Child} create
 * @param {(child: Child, item: Item) => void} update
 */
export function reconcile(parent, children, items, keyOf, create, update) {
  const keys = new Set(items.map(keyOf));
  for (const [key, child] of children) {
    if (!keys.has(key)) {
      child.remove();
      children.delete(key);
    }
  }
  let next = parent.firstElementChild;
  for (const item of items) {
    const key = keyOf(item);
    const child = children.get(key) ?? create(item);
    children.set(key, child);
    update(child, item);
    if (child === next) {
      next = child.nextElementSibling;
    } else {
      parent.insertBefore(child, next);
    }
  }
}

/**
 * Calls at most once in a span of time, and once more at its end.
 * @param {() => void} action
 * @param {number} milliseconds
 */
export function throttled(action, milliseconds) {
  let timer = 0;
  let wanted = false;
  const run = () => {
    wanted = false;
    action();
    timer = window.setTimeout(() => {
      timer = 0;
      if (wanted) run();
    }, milliseconds);
  };
  return () => {
    wanted = true;
    if (timer === 0) run();
  };
}
