// What the page knows, in one place. Modules change it here and draw themselves from it.

/** @typedef {import("./protocol").Version} Version */
/** @typedef {import("./protocol").Inches} Inches */
/** @typedef {import("./protocol").Side} Side */
/** @typedef {import("./protocol").StepLine} StepLine */
/** @typedef {import("./protocol").View} View */
/** @typedef {import("./protocol").Happening} Happening */

/** @typedef {Side | "both"} Show */
/** @typedef {"inspect" | "happened" | "number" | "steps"} Tab */
/** @typedef {{ side: Side, id: number }} Chosen */
/** What a line of an event has done. @typedef {{ side: Side, event: { line: StepLine }, line: StepLine, happenings: Happening[] }} Happened */
/** Said until it is closed, or only until the next event. @typedef {{ kind: "info" | "fault", title: string, lines: string[], passes: boolean }} Notice */

/**
 * @typedef {object} State
 * @property {"connecting" | "open" | "lost"} connection
 * @property {Version} ios
 * @property {Inches} screen
 * @property {Show} show which phones are seen; both run all the time
 * @property {{ width: number, height: number }} size of the screen, in points
 * @property {StepLine[]} steps everything that the phones have done
 * @property {boolean} opening phones are being started
 * @property {boolean} asleep
 * @property {number} speed
 * @property {boolean} paused
 * @property {Partial<Record<Side, View>>} views
 * @property {Partial<Record<Side, View>>} before the views when the last event began
 * @property {Partial<Record<Side, string[]>>} died a phone that has ended: the end of its log
 * @property {Happened[]} happened the latest last
 * @property {Tab} tab
 * @property {boolean} pointing the pointer inspects the phone and does not touch it
 * @property {Chosen | null} pointed
 * @property {Chosen | null} chosen
 * @property {Side} inspected
 * @property {string[]} files the world and the calls in place of the sample's
 * @property {Notice | null} notice
 */

/** @type {readonly Side[]} */
export const sides = ["without", "with"];

/** @type {Record<Side, string>} */
export const sideNames = { without: "Without the add-on", with: "With the add-on" };

/** @returns {State} */
export function initialState() {
  return {
    connection: "connecting",
    ios: "7.1",
    screen: "4",
    show: matchMedia("(max-width: 720px)").matches ? "with" : "both",
    size: { width: 320, height: 568 },
    steps: [],
    opening: true,
    asleep: false,
    speed: 1,
    paused: false,
    views: {},
    before: {},
    died: {},
    happened: [],
    tab: "inspect",
    pointing: false,
    pointed: null,
    chosen: null,
    inspected: "with",
    files: [],
    notice: null,
  };
}

/** @param {State} state @returns {readonly Side[]} */
export function shownSides(state) {
  return state.show === "both" ? sides : [state.show];
}

export class Store {
  /** @type {{ update: () => void }[]} */
  #watchers = [];
  #scheduled = false;

  /** @param {State} state */
  constructor(state) {
    this.state = state;
  }

  /** Watchers are told once for all changes of a turn. @param {Partial<State>} changes */
  change(changes) {
    this.state = { ...this.state, ...changes };
    if (!this.#scheduled) {
      this.#scheduled = true;
      queueMicrotask(() => {
        this.#scheduled = false;
        for (const watcher of this.#watchers) watcher.update();
      });
    }
  }

  /**
   * Draws at once, and whenever one of the selected values has become another.
   * @template {(state: State) => unknown[] | []} Select
   * @param {Select} select
   * @param {(...values: ReturnType<Select>) => void} draw
   */
  watch(select, draw) {
    let last = select(this.state);
    draw(.../** @type {ReturnType<Select>} */ (last));
    const update = () => {
      const now = select(this.state);
      if (now.some((value, index) => !Object.is(value, last[index]))) {
        last = now;
        draw(.../** @type {ReturnType<Select>} */ (now));
      }
    };
    this.#watchers.push({ update });
  }
}
