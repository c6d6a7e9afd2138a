// What the page has to know of a step's text: its name, and the value after the first blank.

/** @typedef {import("./protocol").StepLine} StepLine */

/** @param {StepLine} line @returns {[name: string, value: string | null]} */
export function parts(line) {
  const blank = line.indexOf(" ");
  return blank < 0 ? [line, null] : [line.slice(0, blank), line.slice(blank + 1)];
}

/** A finger that moves on, or time that passes, belongs to the event before it. @param {StepLine} line */
export function beginsEvent(line) {
  return !["move", "lift", "cancel", "wait"].includes(parts(line)[0]);
}

/** The list with more lines; time that passes on and on is one line. @param {readonly StepLine[]} steps @param {readonly StepLine[]} lines */
export function extended(steps, lines) {
  const list = [...steps];
  for (const line of lines) {
    const [name, value] = parts(line);
    const [lastName, lastValue] = parts(list.at(-1) ?? "");
    if (name === "wait" && lastName === "wait") {
      // Milliseconds, as whole numbers, add up exactly.
      const sum = Math.round(Number(lastValue) * 1000) + Math.round(Number(value) * 1000);
      list[list.length - 1] = `wait ${sum / 1000}`;
    } else {
      list.push(line);
    }
  }
  return list;
}

/**
 * @typedef {object} Event
 * @property {StepLine} line that it begins with
 * @property {string} rest what belongs to it, in short
 * @property {number} end how many steps there are up to its end
 */

/** @param {readonly StepLine[]} steps @returns {Event[]} */
export function eventsOf(steps) {
  const starts = steps.flatMap((line, at) => (at === 0 || beginsEvent(line) ? [at] : []));
  return starts.map((start, index) => {
    const end = starts[index + 1] ?? steps.length;
    return { line: steps[start], rest: summary(steps.slice(start + 1, end)), end };
  });
}

/** @param {readonly StepLine[]} lines */
function summary(lines) {
  const seconds = lines.reduce((sum, line) => {
    const [name, value] = parts(line);
    return name === "wait" ? sum + Number(value) : sum;
  }, 0);
  const moves = lines.filter((line) => parts(line)[0] === "move").length;
  const end = lines.find((line) => line === "lift" || line === "cancel");
  const said = [
    moves > 0 && `${moves} ${moves === 1 ? "move" : "moves"}`,
    end,
    seconds > 0 && `${seconds.toFixed(seconds < 10 ? 2 : 0)} s`,
  ];
  return said.filter(Boolean).join(", ");
}

/** The list before its last event. @param {readonly StepLine[]} steps */
export function withoutLastEvent(steps) {
  const last = steps.findLastIndex(beginsEvent);
  return last < 0 ? [] : steps.slice(0, last);
}
