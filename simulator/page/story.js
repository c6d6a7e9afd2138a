// A number's story: what the companion knows of it, and what the cloud will tell.
import { byId, make, setText } from "./elements.js";
import { kindsOf, pieceOf } from "./world.js";

const logos = ["courier", "bank", "airline", "restaurant", "estate", "clinic"];

/** Each shown for these choices of what is known. */
const labelled = "marks ownMarks brands partnerNumbers reviews webSearches labels foreign";

/** @param {string} name @param {[value: string, title: string][]} options */
function select(name, options) {
  const elements = options.map(([value, title]) => make("option", { value }, title));
  return make("select", { name }, ...elements);
}

/** @param {string} title @param {HTMLElement} control @param {object} [when] data attributes that say when it is shown */
function field(title, control, when = {}) {
  return make("label", { class: "field", ...when }, make("span", {}, title), control);
}

/** @param {string} name @param {string} title @param {boolean} [checked] */
function check(name, title, checked = false) {
  const box = make("input", { type: "checkbox", name, checked });
  return make("label", { class: "check" }, box, title);
}

/** @param {string} name @param {number} value @param {object} [limits] */
function amount(name, value, limits = {}) {
  return make("input", { type: "number", name, value, required: true, min: 0, step: 1, ...limits });
}

/** @param {string} name @param {string} [value] */
function words(name, value = "") {
  return make("input", { type: "text", name, value, autocomplete: "off" });
}

/** @param {string} name */
function selectLogo(name) {
  /** @type {[string, string][]} */
  const files = logos.map((logo) => [`logo_${logo}.png`, logo]);
  const element = select(name, [["", "none"], ...files]);
  element.value = "logo_restaurant.png";
  return element;
}

function knownFields() {
  return [
    field("Label or name", words("label", "诈骗电话"), { "data-known": labelled }),
    field("Marked so by", amount("count", 37), { "data-known": "marks" }),
    field("Kind", select("kind", []), { "data-known": "marks partnerNumbers reviews labels" }),
    field("Logo", selectLogo("logo"), { "data-known": "brands partnerNumbers" }),
    field("Advertisement", words("advertisement"), { "data-known": "partnerNumbers" }),
    field("Review service", words("service", "来自食评小站"), { "data-known": "reviews" }),
    field("Rating", amount("rating", 4.5, { max: 5, step: 0.1 }), { "data-known": "reviews" }),
    field("Region, if not its own", words("region")),
  ];
}

function build() {
  const number = make("input", {
    type: "tel",
    name: "number",
    required: true,
    value: "13800000000",
  });
  number.setAttribute("list", "known-numbers");
  const known = select("known", [
    ["nothing", "unknown"],
    ["marks", "marked by users"],
    ["ownMarks", "the owner's mark"],
    ["brands", "a brand"],
    ["partnerNumbers", "a partner"],
    ["reviews", "a reviewed place"],
    ["webSearches", "found on the web"],
    ["labels", "a label"],
    ["foreign", "from abroad"],
  ]);
  known.value = "marks";
  const cloud = select("cloud", [
    ["none", "as it was"],
    ["mark", "marked by users"],
    ["label", "a label"],
    ["partner", "a partner"],
    ["miss", "no hit"],
    ["error", "goes wrong"],
    ["never", "never comes"],
  ]);
  const delay = amount("delay", 1.5, { max: 3600, step: 0.1 });
  return [
    make(
      "p",
      { class: "muted" },
      "Replaces all that is known of the number. Lists show it at once, the keypad at its next key.",
    ),
    make(
      "fieldset",
      {},
      make("legend", {}, "The companion knows"),
      make(
        "div",
        { class: "fields" },
        field("Number", number),
        field("It is", known),
        ...knownFields(),
        check("blocked", "Blocked"),
      ),
    ),
    make(
      "fieldset",
      {},
      make("legend", {}, "The cloud answers when it is dialled"),
      make(
        "div",
        { class: "fields" },
        field("Answer", cloud),
        field("Label", words("cloudLabel", "装修推销"), { "data-cloud": "mark label partner" }),
        field("Marked so by", amount("cloudCount", 46), { "data-cloud": "mark" }),
        field("Logo", selectLogo("cloudLogo"), { "data-cloud": "partner" }),
        field("After seconds", delay, { "data-cloud": "mark label partner miss error" }),
      ),
    ),
    make(
      "div",
      { class: "bar" },
      make("button", { type: "submit", class: "primary" }, "Tell the phone"),
    ),
    make(
      "details",
      {},
      make("summary", {}, "As a piece of a world file"),
      make("pre", { id: "piece" }),
    ),
    make(
      "fieldset",
      {},
      make("legend", {}, "Preferences"),
      check("showNumberArea", "Describe numbers on the keypad and in calls", true),
    ),
  ];
}

/** @param {HTMLFormElement} form @returns {import("./world.js").Story} */
function read(form) {
  const data = new FormData(form);
  const text = (/** @type {string} */ name) => String(data.get(name) ?? "").trim();
  const number = (/** @type {string} */ name) => Number(data.get(name) ?? 0);
  return {
    number: text("number"),
    known: text("known"),
    label: text("label"),
    count: number("count"),
    kind: number("kind"),
    logo: text("logo"),
    advertisement: text("advertisement"),
    service: text("service"),
    rating: number("rating"),
    region: text("region"),
    blocked: data.has("blocked"),
    cloud: text("cloud"),
    cloudLabel: text("cloudLabel"),
    cloudCount: number("cloudCount"),
    cloudLogo: text("cloudLogo"),
    delay: number("delay"),
  };
}

/** Shows what belongs to the choices. @param {HTMLFormElement} form @param {import("./world.js").Story} story */
function showFields(form, { known, cloud }) {
  /** @type {NodeListOf<HTMLElement>} */
  const fields = form.querySelectorAll("[data-known], [data-cloud]");
  for (const element of fields) {
    const isKnown = element.dataset.known?.split(" ").includes(known);
    const isCloud = element.dataset.cloud?.split(" ").includes(cloud);
    element.hidden = !isKnown && !isCloud;
    for (const control of element.querySelectorAll("input")) control.disabled = element.hidden;
  }
}

/** @param {HTMLFormElement} form */
function offerKinds(form) {
  const kind = /** @type {HTMLSelectElement} */ (form.elements.namedItem("kind"));
  const known = /** @type {HTMLSelectElement} */ (form.elements.namedItem("known"));
  const kinds = kindsOf[known.value] ?? [];
  kind.replaceChildren(...kinds.map((value) => make("option", { value }, String(value))));
}

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function showStory(store, conversation) {
  const form = byId("story", HTMLFormElement);
  form.append(...build());
  const draw = () => {
    const story = read(form);
    showFields(form, story);
    setText(byId("piece", HTMLPreElement), JSON.stringify(pieceOf(read(form)), null, 1));
  };
  offerKinds(form);
  draw();
  form.addEventListener("input", (event) => {
    const { name, checked } = /** @type {HTMLInputElement} */ (event.target);
    if (name === "showNumberArea") {
      conversation.step(`know ${JSON.stringify({ preferences: { showNumberArea: checked } })}`);
    }
    if (name === "known") offerKinds(form);
    draw();
  });
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    conversation.step(`know ${JSON.stringify(pieceOf(read(form)))}`);
  });
  // Phones that start anew begin with their world's preferences.
  store.watch(
    (state) => [state.steps],
    (steps) => {
      const flips = steps.filter((step) => step.startsWith('know {"preferences"'));
      const box = /** @type {HTMLInputElement} */ (form.elements.namedItem("showNumberArea"));
      box.checked = !flips.at(-1)?.includes("false");
    },
  );
}
