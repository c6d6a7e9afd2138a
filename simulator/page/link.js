// The address after the "#": what is needed to see the same phone again.

/** @typedef {Pick<import("./store.js").State, "ios" | "screen" | "show" | "steps">} Linked */

const versions = ["7.0", "7.1", "8.0"];
const screens = ["3.5", "4"];
const shows = ["with", "without", "both"];
/** A link is read by a stranger's browser: more than this is none of ours. */
const mostCharacters = 4_000_000;

/** @param {Linked} linked */
export async function linkOf({ ios, screen, show, steps }) {
  const json = JSON.stringify({ ios, screen, show, steps });
  const packed = new Blob([json]).stream().pipeThrough(new CompressionStream("deflate-raw"));
  const bytes = new Uint8Array(await new Response(packed).arrayBuffer());
  let binary = "";
  for (const byte of bytes) binary += String.fromCharCode(byte);
  const text = btoa(binary).replaceAll("+", "-").replaceAll("/", "_").replaceAll("=", "");
  return `#z=${text}`;
}

/**
 * Reads what linkOf has written, and what a person or the gallery writes:
 * #ios=7.1&screen=4&show=both&step=type%20138&step=wait%200.5
 * @param {string} hash
 * @returns {Promise<Linked | null>} null when there is none; throws when it is not readable
 */
export async function readLink(hash) {
  const text = hash.replace(/^#/, "");
  if (text === "") return null;
  const parameters = new URLSearchParams(text);
  const packed = parameters.get("z");
  if (packed !== null) return checked(JSON.parse(await unpacked(packed)));
  return checked({
    ios: parameters.get("ios") ?? "7.1",
    screen: parameters.get("screen") ?? "4",
    show: parameters.get("show") ?? "both",
    steps: parameters.getAll("step"),
  });
}

/** @param {string} text */
async function unpacked(text) {
  const binary = atob(text.replaceAll("-", "+").replaceAll("_", "/"));
  const bytes = Uint8Array.from(binary, (character) => character.charCodeAt(0));
  const reader = new Blob([bytes])
    .stream()
    .pipeThrough(new DecompressionStream("deflate-raw"))
    .pipeThrough(new TextDecoderStream())
    .getReader();
  let json = "";
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    json += part.value;
    if (json.length > mostCharacters) throw new Error("the link unpacks to too much");
  }
  return json;
}

/** @param {any} linked @returns {Linked} */
function checked(linked) {
  const { ios, screen, show, steps } = linked ?? {};
  const isFine =
    versions.includes(ios) &&
    screens.includes(screen) &&
    shows.includes(show) &&
    Array.isArray(steps) &&
    steps.every((step) => typeof step === "string" && !step.includes("\n"));
  if (!isFine) throw new Error("the link holds no phone");
  return { ios, screen, show, steps };
}
