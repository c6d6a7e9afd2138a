// The address bar holds the state: a reload, or the link somewhere else, shows the same phone.
import { linkOf, readLink } from "./link.js";
import { throttled } from "./elements.js";

/** @typedef {import("./store.js").Store} Store */

const writeEvery = 500; // milliseconds: browsers refuse an address that changes too often
/** What this page has written itself. */
let written = "";

/** @param {Store} store */
async function takeAddress(store) {
  try {
    const linked = await readLink(location.hash);
    if (linked) store.change(linked);
    return linked !== null;
  } catch {
    const lines = ["Was it copied whole?"];
    const title = "This link cannot be read";
    store.change({ notice: { kind: "fault", title, lines, passes: true } });
    return false;
  }
}

/** @param {Store} store */
export async function startFromAddress(store) {
  await takeAddress(store);
  written = location.hash;
}

/** Another entry of the history shows what this one does. */
export function keepWritten() {
  history.replaceState(history.state, "", written || location.pathname);
}

/** @param {Store} store @param {import("./conversation.js").Conversation} conversation */
export function keepAddress(store, conversation) {
  const write = throttled(async () => {
    const link = await linkOf(store.state);
    if (link === written) return;
    written = link;
    history.replaceState(history.state, "", link);
  }, writeEvery);
  store.watch(
    ({ ios, screen, show, steps }) => [ios, screen, show, steps],
    (_ios, _screen, _show, steps) => {
      if (steps.length > 0 || written !== "") write();
    },
  );
  addEventListener("hashchange", async () => {
    if (location.hash === written) return;
    written = location.hash;
    if (await takeAddress(store)) conversation.open({});
  });
}
