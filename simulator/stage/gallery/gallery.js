// The gallery's page: picks from the scenes what is to be seen, and lays it out.
"use strict";

/**
 * @typedef {{ says: string, picture: string, command: string }} Look
 * @typedef {{ without: Look, with: Look, isSame: boolean, address?: string }} Shot
 * @typedef {{ name: string, title: string, note: string, shots: Record<string, Shot> }} Scene
 * @typedef {{ name: string, title: string, scenes: Scene[] }} Group
 * @typedef {{ isSample: boolean, devices: { name: string, title: string }[], groups: Group[] }} Data
 */

/**
 * @template {HTMLElement} T
 * @param {string} id
 * @param {new () => T} type
 * @returns {T}
 */
function part(id, type) {
  const found = document.getElementById(id);
  if (!(found instanceof type)) {
    throw new Error(`the page lacks ${id}`);
  }
  return found;
}

/**
 * @template {keyof HTMLElementTagNameMap} Tag
 * @param {Tag} tag
 * @param {Record<string, string>} attributes
 * @param {...(Node | string)} content
 */
function element(tag, attributes, ...content) {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    made.setAttribute(name, value);
  }
  made.append(...content);
  return made;
}

const kWithout = "Without the add-on";
const kWith = "With it";

/** @type {Data} */
const data = JSON.parse(part("data", HTMLScriptElement).textContent ?? "");
const device = part("device", HTMLSelectElement);
const search = part("search", HTMLInputElement);
const changed = part("changed", HTMLInputElement);
const over = part("over", HTMLInputElement);

/** @param {Look} look @param {string} who */
function picture(look, who) {
  const alt = look.says ? `${who}: ${look.says}` : who;
  const size = device.value.includes("3.5inch") ? "960" : "1136";
  return element("img", { loading: "lazy", src: look.picture, alt, width: "640", height: size });
}

/** @param {Look} look @param {string} who */
function command(look, who) {
  const code = element("code", {}, look.command);
  const button = element(
    "button",
    { type: "button", "aria-label": `Copy the command: ${who}` },
    "Copy",
  );
  button.addEventListener("click", async () => {
    try {
      await navigator.clipboard.writeText(look.command);
      button.textContent = "Copied";
      setTimeout(() => (button.textContent = "Copy"), 1500);
    } catch {
      getSelection()?.selectAllChildren(code); // for the browser's own way of copying
    }
  });
  return element("div", { class: "command" }, code, button);
}

/** @param {Look} look @param {string} who */
function caption(look, who) {
  return element("figcaption", {}, element("b", {}, who), look.says ? `: ${look.says}` : "");
}

/** @param {Shot} shot */
function sideBySide(shot) {
  const figures = /** @type {const} */ ([
    [shot.without, kWithout],
    [shot.with, kWith],
  ]).map(([look, who]) =>
    element("figure", {}, picture(look, who), caption(look, who), command(look, who)),
  );
  return element("div", { class: "pair" }, ...figures);
}

/** @param {Shot} shot */
function oneOverTheOther(shot) {
  const both = element(
    "div",
    { class: "both" },
    picture(shot.without, kWithout),
    picture(shot.with, kWith),
  );
  const slider = element("input", {
    type: "range",
    min: "0",
    max: "100",
    value: "50",
    "aria-label": "How far the picture without the add-on reaches",
  });
  const cut = () => both.style.setProperty("--at", `${slider.value}%`);
  slider.addEventListener("input", cut);
  cut();
  return element(
    "figure",
    { class: "over" },
    both,
    slider,
    caption(shot.without, kWithout),
    command(shot.without, kWithout),
    caption(shot.with, kWith),
    command(shot.with, kWith),
  );
}

/** @param {Scene} scene @param {Shot} shot */
function section(scene, shot) {
  const title = element("h3", {}, scene.title);
  if (shot.isSame) {
    title.append(element("span", { class: "same" }, "looks the same with the add-on"));
  }
  const made = element(
    "section",
    { id: scene.name },
    title,
    element("p", { class: "note" }, scene.note),
    over.checked ? oneOverTheOther(shot) : sideBySide(shot),
  );
  if (shot.address) {
    made.append(
      element(
        "p",
        { class: "live" },
        element("a", { href: shot.address, target: "phone" }, "Try it in the phone"),
        " while make phone runs",
      ),
    );
  }
  return made;
}

/** @param {Scene} scene @param {Shot} shot */
function isWanted(scene, shot) {
  const words = search.value.toLowerCase().split(/\s+/);
  const text = [
    scene.title,
    scene.note,
    scene.name,
    shot.with.says,
    shot.without.says,
    shot.with.command,
  ]
    .join(" ")
    .toLowerCase();
  return !(changed.checked && shot.isSame) && words.every((word) => text.includes(word));
}

/** What is chosen stands in the address, for a reload and for others. */
function remember() {
  const choices = new URLSearchParams({ device: device.value });
  if (search.value) {
    choices.set("search", search.value);
  }
  for (const box of [changed, over]) {
    if (box.checked) {
      choices.set(box.id, "yes");
    }
  }
  history.replaceState(null, "", `#${choices}`);
}

function recall() {
  const choices = new URLSearchParams(location.hash.slice(1));
  const known = data.devices.some(({ name }) => name === choices.get("device"));
  device.value = (known && choices.get("device")) || (data.devices[0]?.name ?? "");
  search.value = choices.get("search") ?? "";
  changed.checked = choices.has("changed");
  over.checked = choices.has("over");
}

function show() {
  const scenes = part("scenes", HTMLElement);
  scenes.querySelectorAll("h2, section").forEach((old) => old.remove());
  const links = [];
  let shown = 0;
  let all = 0;
  for (const group of data.groups) {
    const there = group.scenes.flatMap((scene) => {
      const shot = scene.shots[device.value];
      return shot ? [/** @type {const} */ ([scene, shot])] : [];
    });
    const wanted = there.filter(([scene, shot]) => isWanted(scene, shot));
    all += there.length;
    shown += wanted.length;
    if (wanted.length > 0) {
      const heading = element("h2", { tabindex: "-1" }, group.title);
      const link = element("a", { href: "#" }, `${group.title} (${wanted.length})`);
      link.addEventListener("click", (event) => {
        event.preventDefault();
        heading.scrollIntoView();
        heading.focus({ preventScroll: true });
      });
      links.push(link);
      scenes.append(heading, ...wanted.map(([scene, shot]) => section(scene, shot)));
    }
  }
  part("groups", HTMLElement).replaceChildren(...links);
  part("count", HTMLElement).textContent = `${shown} of ${all} scenes`;
}

/** The scene at the top stays there when the device or the layout changes. */
function showAgain() {
  const top = part("choices", HTMLFormElement).closest("header")?.offsetHeight ?? 0;
  document.documentElement.style.setProperty("--header", `${top + 10}px`);
  const sections = [...document.querySelectorAll("section")];
  const first = scrollY > 0 && sections.find((made) => made.getBoundingClientRect().bottom > top);
  const offset = first ? first.getBoundingClientRect().top : 0;
  show();
  const same = first && document.getElementById(first.id);
  if (same) {
    scrollBy(0, same.getBoundingClientRect().top - offset);
  }
}

device.append(...data.devices.map(({ name, title }) => element("option", { value: name }, title)));
part("own", HTMLElement).hidden = data.isSample;
part("choices", HTMLFormElement).addEventListener("submit", (event) => event.preventDefault());
part("choices", HTMLFormElement).addEventListener("input", () => {
  remember();
  showAgain();
});
addEventListener("hashchange", () => {
  recall();
  showAgain();
});
recall();
showAgain();
