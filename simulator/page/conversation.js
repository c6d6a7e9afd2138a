// The conversation with the server over one socket: what is asked, and what its reports change.
import { readPart } from "./pictures.js";
import { beginsEvent, extended } from "./steps.js";
import { sides } from "./store.js";

/** @typedef {import("./protocol").Request} Request */
/** @typedef {import("./protocol").Report} Report */
/** @typedef {import("./protocol").StepLine} StepLine */
/** @typedef {import("./store.js").State} State */

const keptLines = 1000;
const lookEvery = 60_000;
const longestPause = 5_000;

export class Conversation {
  #store;
  #pictures;
  /** @type {WebSocket | null} */
  #socket = null;
  #pause = 250;
  /** Files that were sent without a text, to go back to the sample. @type {Set<string>} */
  #leaving = new Set();
  /** What moves and time that passes belong to. */
  #event = { line: "" };

  /**
   * @param {import("./store.js").Store} store
   * @param {import("./pictures.js").Pictures} pictures
   */
  constructor(store, pictures) {
    this.#store = store;
    this.#pictures = pictures;
    setInterval(() => this.look(), lookEvery);
    store.watch(
      (state) => [state.tab === "happened", state.connection],
      () => this.#watchHappenings(),
    );
    store.watch(
      (state) => [state.paused ? 0 : state.speed],
      (speed) => this.#send({ ask: "speed", speed }),
    );
  }

  /** Connects, and opens the phone of the state each time that it succeeds. */
  connect() {
    const socket = new WebSocket(`ws://${location.host}/phone`);
    socket.binaryType = "arraybuffer";
    socket.addEventListener("open", () => {
      this.#pause = 250;
      this.#store.change({ connection: "open" });
      this.#open();
    });
    socket.addEventListener("message", ({ data }) => this.#take(data));
    socket.addEventListener("close", () => {
      this.#socket = null;
      this.#store.change({ connection: "lost", opening: false });
      setTimeout(() => this.connect(), this.#pause);
      this.#pause = Math.min(this.#pause * 2, longestPause);
    });
    this.#socket = socket;
  }

  /**
   * Starts the phones anew and has them play the steps.
   * @param {Partial<Pick<State, "ios" | "screen" | "steps">>} changes
   */
  open(changes) {
    this.#store.change({ ...changes, notice: null });
    this.#open();
  }

  #open() {
    this.#store.change({ opening: true, died: {}, asleep: false });
    const { ios, screen, steps } = this.#store.state;
    this.#send({ ask: "open", ios, screen, sides: [...sides], steps });
  }

  /** @param {StepLine} line */
  step(line) {
    const { views, notice } = this.#store.state;
    if (beginsEvent(line)) {
      this.#event = { line };
      this.#store.change({ before: views, notice: notice?.passes ? null : notice });
    }
    this.#send({ ask: "step", line });
  }

  /** @param {string} name @param {string} text empty for the sample */
  file(name, text) {
    if (text === "") {
      this.#leaving.add(name);
    } else {
      this.#leaving.delete(name);
    }
    this.#send({ ask: "file", name, text });
  }

  /** Phones that nobody looks at fall asleep. */
  look() {
    if (!document.hidden && !this.#store.state.asleep) this.#send({ ask: "look" });
  }

  /** What is asked while there is no connection is lost; "open" brings back what was done. @param {Request} request */
  #send(request) {
    if (this.#socket?.readyState === WebSocket.OPEN) this.#socket.send(JSON.stringify(request));
  }

  #watchHappenings() {
    const happenings = this.#store.state.tab === "happened";
    for (const side of sides) this.#send({ ask: "watch", side, views: true, happenings });
  }

  /** @param {string | ArrayBuffer} message */
  #take(message) {
    if (typeof message === "string") {
      this.#report(/** @type {Report} */ (JSON.parse(message)));
      return;
    }
    const part = readPart(message);
    this.#pictures.take(part);
    const drew = /** @type {const} */ ({ ask: "drew", side: part.side, picture: part.number });
    requestAnimationFrame(() => this.#send(drew));
  }

  /** @param {Report} report */
  #report(report) {
    const { state } = this.#store;
    switch (report.tell) {
      case "opened":
        return this.#opened(report);
      case "did":
        return this.#did(report.lines);
      case "refused":
        return this.#say("fault", `“${report.line}” was not possible`, [report.why], true);
      case "views":
        return this.#store.change({ views: { ...state.views, [report.side]: report.root } });
      case "happened": {
        const { side, line, happenings } = report;
        if (beginsEvent(line) && line !== this.#event.line) this.#event = { line };
        const one = { side, event: this.#event, line, happenings };
        return this.#store.change({ happened: [...state.happened, one].slice(-keptLines) });
      }
      case "mistakes":
        return this.#say("fault", `${report.name} is not used`, report.lines);
      case "took":
        return this.#took(report);
      case "failed":
        this.#store.change({ opening: false });
        return this.#say("fault", "That was not possible", [report.why]);
      case "died":
        return this.#store.change({ died: { ...state.died, [report.side]: report.log } });
      case "asleep":
        return this.#store.change({ asleep: true });
    }
  }

  /** @param {Extract<Report, { tell: "opened" }>} opened */
  #opened({ ios, screen, width, height }) {
    const size = { width: width / 2, height: height / 2 }; // two pixels a point
    this.#pictures.resize(size);
    const fresh = { views: {}, before: {}, happened: [], chosen: null, pointed: null };
    this.#store.change({ ios, screen, size, opening: false, ...fresh });
    const { paused, speed } = this.#store.state;
    this.#send({ ask: "speed", speed: paused ? 0 : speed });
  }

  /** A world takes the place of another world, calls that of other calls. @param {Extract<Report, { tell: "took" }>} took */
  #took({ name, lines }) {
    const isWorld = name.endsWith(".json");
    const others = this.#store.state.files.filter((file) => file.endsWith(".json") !== isWorld);
    const isLeft = this.#leaving.delete(name);
    this.#store.change({ files: isLeft ? others : [...others, name] });
    this.#say("info", isLeft ? "The sample is used again" : `${name} is used`, lines);
  }

  /** @param {StepLine[]} lines */
  #did(lines) {
    this.#store.change({ steps: extended(this.#store.state.steps, lines) });
  }

  /** @param {"info" | "fault"} kind @param {string} title @param {string[]} lines @param {boolean} [passes] */
  #say(kind, title, lines, passes = false) {
    this.#store.change({ notice: { kind, title, lines, passes } });
  }
}
