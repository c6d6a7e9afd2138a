// A world or a list of calls that is dropped on the page, or chosen.
import { byId, setText } from "./elements.js";

/** @param {import("./store.js").Store} store @param {import("./conversation.js").Conversation} conversation */
export function takeFiles(store, conversation) {
  const curtain = byId("drop", HTMLDivElement);
  const input = byId("file", HTMLInputElement);

  /** @param {FileList | null | undefined} files */
  const take = async (files) => {
    const file = files?.[0];
    if (!file) return;
    if (/\.(json|csv)$/i.test(file.name)) {
      conversation.file(file.name, await file.text());
    } else {
      const lines = ["A world ends with .json, a list of calls with .csv"];
      const title = `${file.name} is neither`;
      store.change({ notice: { kind: "fault", title, lines, passes: false } });
    }
  };
  input.addEventListener("change", async () => {
    await take(input.files);
    input.value = "";
  });
  const sample = byId("sample", HTMLButtonElement);
  sample.addEventListener("click", () => {
    for (const name of store.state.files) conversation.file(name, "");
  });

  /** @param {DragEvent} event */
  const holdsFile = (event) => event.dataTransfer?.types.includes("Files") ?? false;
  addEventListener("dragover", (event) => {
    if (!holdsFile(event)) return;
    event.preventDefault();
    curtain.hidden = false;
  });
  addEventListener("dragleave", (event) => {
    if (!event.relatedTarget) curtain.hidden = true;
  });
  addEventListener("drop", (event) => {
    if (!holdsFile(event)) return;
    event.preventDefault();
    curtain.hidden = true;
    take(event.dataTransfer?.files);
  });
  store.watch(
    (state) => [state.files],
    (files) => {
      sample.disabled = files.length === 0;
      const text = files.length > 0 ? `In use: ${files.join(" and ")}` : "The sample is in use.";
      setText(byId("file-name", HTMLElement), text);
    },
  );
}
