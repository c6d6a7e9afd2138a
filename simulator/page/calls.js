// Any number rings; while a call is on, it is the second caller's. A call that the phone has begun is
// answered at its other end.
import { byId, make, setText } from "./elements.js";
import { flattened } from "./views.js";

/** Numbers of the sample world, each known for something else. */
const samples = [
  ["17700000061", "marked by many"],
  ["13000000101", "known to the cloud alone"],
  ["13000000108", "the cloud fails"],
  ["02101065012", "a partner"],
  ["4002001818", "a brand"],
  ["13100000051", "an own mark"],
  ["13800130011", "a contact"],
  ["15000000031", "a contact with a microblog"],
  ["+14155550132", "from abroad"],
  ["13800000000", "nothing is known"],
];

/** @param {import("./store.js").View | undefined} root */
function isInCall(root) {
  return flattened(root).some(({ view }) => view.seen && /^InCall/.test(view.class));
}

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function showCalls(store, conversation) {
  const caller = byId("caller", HTMLInputElement);
  const ring = byId("ring", HTMLButtonElement);
  byId("known-numbers", HTMLDataListElement).append(
    ...samples.map(([value, label]) => make("option", { value, label })),
  );
  byId("call", HTMLFormElement).addEventListener("submit", (event) => {
    event.preventDefault();
    const number = caller.value.trim();
    if (number) conversation.step(`incoming ${number}`);
  });
  byId("ring-hidden", HTMLButtonElement).addEventListener("click", () =>
    conversation.step("incoming"),
  );
  const answer = byId("answer", HTMLButtonElement);
  answer.addEventListener("click", () => conversation.step("answer"));
  store.watch(
    (state) => [state.views.with ?? state.views.without],
    (root) => {
      const isCalling = isInCall(root);
      setText(ring, isCalling ? "Second caller" : "Let it ring");
      answer.hidden = !isCalling;
    },
  );
}
