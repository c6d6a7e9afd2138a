// What the server has to say, and what is wrong with the connection, above the phone.
import { byId, make } from "./elements.js";

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function showNotices(store, conversation) {
  const box = byId("notice", HTMLDivElement);

  /** @param {"info" | "fault"} kind @param {string} title @param {string[]} lines @param {Node} button */
  const say = (kind, title, lines, button) => {
    box.className = `notice ${kind}`;
    const list = lines.map((line) => make("li", {}, line));
    const text = make(
      "div",
      {},
      make("strong", {}, title),
      ...(list.length ? [make("ul", {}, ...list)] : []),
    );
    box.replaceChildren(text, button);
  };
  store.watch(
    (state) => [state.connection, state.asleep, state.notice],
    (connection, asleep, notice) => {
      if (connection === "lost") {
        const lines = ["Is phone-simulator still running? The events are kept and played again."];
        const retry = make(
          "button",
          { type: "button", onclick: () => location.reload() },
          "Reload",
        );
        say("fault", "The connection is lost; trying again…", lines, retry);
      } else if (asleep) {
        const wake = make(
          "button",
          { type: "button", onclick: () => conversation.open({}) },
          "Wake",
        );
        say("info", "The phones sleep: nobody has looked for a while", [], wake);
      } else if (notice) {
        const close = () => store.change({ notice: null });
        const button = make("button", { type: "button", onclick: close }, "Close");
        say(notice.kind, notice.title, notice.lines, button);
      } else {
        box.replaceChildren();
      }
    },
  );
}
