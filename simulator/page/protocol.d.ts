// What the page and the server say to each other, over one WebSocket at /phone. Texts are JSON,
// one object a message; pictures are binary. A socket is a visitor: its phones live as long as it.

/** A step, spelled as its option on the command line without the dashes: "type 138", "swipe 1",
 *  "wait 0.5", "down 100,200" (points of the screen), "move 90,200", "lift", "incoming 17700000061",
 *  'know {"marks": [...]}'. Everything after the first blank is the value, as it stands. */
export type StepLine = string;

export type Version = "7.0" | "7.1" | "8.0";
export type Inches = "3.5" | "4";
/** The Phone application alone, or with the add-on. */
export type Side = "without" | "with";

/** What the page asks for. */
export type Request =
  /** Ends the visitor's phones, starts those of `sides` and plays the steps. Answered by "opened",
   *  or by "failed". */
  | { ask: "open"; ios: Version; screen: Inches; sides: Side[]; steps: StepLine[] }
  /** Done by all phones that are open, in the order of the messages. */
  | { ask: "step"; line: StepLine }
  /** Simulated seconds in a real one; 0 pauses. 1 at the beginning. */
  | { ask: "speed"; speed: number }
  /** From now on this side's views and happenings are told, or not. Both sides' views are told at
   *  the beginning, happenings are not. */
  | { ask: "watch"; side: Side; views: boolean; happenings: boolean }
  /** A world (name ends with .json) or a list of calls (.csv) in place of the one in use; an empty
   *  text goes back to the sample. The phones are opened anew with their steps; refused by
   *  "mistakes", and then everything stays as it was. */
  | { ask: "file"; name: string; text: string }
  /** This picture is on the page. A side's next one is sent while fewer than two are under way, so
   *  a slow page gets fewer pictures and never a queue of them. "opened" forgets what is under way. */
  | { ask: "drew"; side: Side; picture: number }
  /** Somebody looks: at most once a minute, while the page is visible. */
  | { ask: "look" };

/** What the server tells. */
export type Report =
  /** The phones are there and have played the steps; their pictures follow, of so many pixels. */
  | { tell: "opened"; ios: Version; screen: Inches; sides: Side[]; width: number; height: number }
  /** Lines that the list of steps has gained, the time that passed before them included. */
  | { tell: "did"; lines: StepLine[] }
  /** The step was not possible or is none: nothing has happened. `why` is what the command line
   *  would say. */
  | { tell: "refused"; line: StepLine; why: string }
  /** The view tree, some time after it has changed. */
  | { tell: "views"; side: Side; root: View }
  | { tell: "happened"; side: Side; line: StepLine; happenings: Happening[] }
  /** A dropped file's lines, as on the command line. */
  | { tell: "mistakes"; name: string; lines: string[] }
  /** With the lines that the command line would warn with, such as of what is passed over. */
  | { tell: "took"; name: string; lines: string[] }
  /** A message that is none, too much at once, phones that could not start. */
  | { tell: "failed"; why: string }
  /** A phone's process has ended by itself; the last lines of its log. "open" starts again. */
  | { tell: "died"; side: Side; log: string[] }
  /** Nobody has looked for ten minutes: the phones have ended. "open" starts again. */
  | { tell: "asleep" };

/** x, y, width, height in points. */
export type Rect = [number, number, number, number];

export interface View {
  /** The same as long as the view lives. */
  id: number;
  class: string;
  tag?: number;
  /** In the parent's coordinates. */
  frame: Rect;
  /** On the screen. */
  place: Rect;
  /** What of that is not clipped away; only of what is seen, and where it is less. A finger that is
   *  to press the view comes down in the middle of this, or else of place. */
  shown?: Rect;
  hidden?: true;
  alpha?: number;
  /** Not hidden, not clipped away: a person sees something of it. */
  seen?: true;
  text?: string;
  runs?: { text: string; color: string; font: string }[];
  color?: string;
  background?: string;
  font?: string;
  image?: string;
  owner: "phone" | "add-on";
  /** The replaced method that changed it last: "-[PHRecentsCell layoutSubviews]". */
  touched?: string;
  /** What a person can do with it. */
  role?: "button" | "text" | "row" | "list" | "tab" | "image";
  /** What a screen reader calls it; only with a role. */
  name?: string;
  disabled?: true;
  selected?: true;
  children: View[];
}

export type Happening =
  | { kind: "method"; name: string; micros: number; thread: string; inside: Happening[] }
  | { kind: "asked"; what: string; arguments: string[]; returned: string; micros: number; thread: string; inside: Happening[] }
  /** A message that the companion posts, a timer or delayed message that fires, an address opened;
   *  a note says that there was more than is told. */
  | { kind: "message" | "later" | "address" | "note"; what: string };

// A binary message is one picture's changed part: a header of 16 bytes, little endian, then
// width * height * 4 bytes of RGBA, row by row:
//   u8 side (0 without, 1 with), u8 0, u16 x, u16 y, u16 width, u16 height (pixels, two a point),
//   u16 0, u32 number of the picture
