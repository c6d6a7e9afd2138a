// The browser's own way back, such as a swipe from the edge, leaves what the phone has opened first.
import { keepWritten } from "./address.js";
import { flattened } from "./views.js";

/** @typedef {import("./store.js").View} View */

/** Whether a key that leads back is seen at the left end of the phone's bar. @param {View | undefined} root */
function leadsBack(root) {
  return flattened(root).some(({ view }) => {
    const [x, y] = view.place;
    const isInCorner = view.seen && view.role === "button" && x < 20 && y >= 20 && y < 64;
    return isInCorner && (view.name === "取消" || view.children.some((child) => child.image));
  });
}

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function followBackKey(store, conversation) {
  /** Whether the way back ends at an entry of the history that is there for this alone. */
  let isGuarded = history.state?.guard === true;
  const shown = () => store.state.views.with ?? store.state.views.without;

  store.watch(
    (state) => [state.views.with ?? state.views.without],
    (root) => {
      if (isGuarded || !leadsBack(root)) return;
      history.pushState({ guard: true }, "");
      isGuarded = true;
    },
  );
  addEventListener("popstate", () => {
    if (!isGuarded) return;
    isGuarded = false;
    keepWritten();
    if (leadsBack(shown())) {
      conversation.step("back");
    } else {
      history.back();
    }
  });
}
