// What a person says of a number, as a piece of a world file.

/**
 * @typedef {object} Story
 * @property {string} number
 * @property {string} known a section of a world file, or "nothing"
 * @property {string} label
 * @property {number} count
 * @property {number} kind
 * @property {string} logo
 * @property {string} advertisement
 * @property {string} service
 * @property {number} rating
 * @property {string} region
 * @property {boolean} blocked
 * @property {string} cloud "none", "mark", "label", "partner", "miss", "error" or "never"
 * @property {string} cloudLabel
 * @property {number} cloudCount
 * @property {string} cloudLogo
 * @property {number} delay seconds
 */

/** Above those of any world of ours. */
const partnerId = 5901;
const cloudPartnerId = 5902;

/** The kinds that a section allows, its usual one first. @type {Record<string, number[]>} */
export const kindsOf = {
  marks: [7, 8, 9, 10, 11, 12],
  partnerNumbers: [10, 9, 12],
  reviews: [10, 9, 12],
  labels: [1, 0, 2, 5, 11],
};

/** @type {Record<string, (story: Story) => object>} */
const sections = {
  nothing: ({ number }) => ({ numbers: [number] }),
  marks: ({ number, label, count, kind }) => ({ marks: [{ number, label, count, kind }] }),
  ownMarks: ({ number, label }) => ({ ownMarks: [{ number, label }] }),
  brands: ({ number, label, logo }) => ({
    brands: [{ number, name: label, ...(logo && { logo }) }],
  }),
  partnerNumbers: ({ number, label, kind, logo, advertisement }) => ({
    partners: [
      {
        id: partnerId,
        name: label,
        ...(logo && { icon: logo }),
        source: label,
        ads: advertisement ? [advertisement] : [],
      },
    ],
    partnerNumbers: [{ number, partner: partnerId, kind }],
  }),
  reviews: ({ number, label, service, rating, kind }) => ({
    reviews: [{ number, label, service, rating, kind }],
  }),
  webSearches: ({ number, label }) => ({ webSearches: [{ number, label }] }),
  labels: ({ number, label, kind }) => ({ labels: [{ number, label, kind }] }),
  foreign: ({ number, label }) => ({ foreign: [{ number, label }] }),
};

/** @type {Record<string, (story: Story) => object>} */
const answers = {
  mark: ({ cloudLabel, cloudCount }) => ({
    answer: { hit: true, Tag: cloudLabel, type: 2, Amount: cloudCount },
  }),
  label: ({ cloudLabel }) => ({ answer: { hit: true, Tag: cloudLabel, type: 1, source: "" } }),
  partner: ({ cloudLabel, cloudLogo }) => ({
    answer: {
      hit: true,
      Tag: cloudLabel,
      type: 3,
      partner: {
        brand_type: "self",
        b_id: cloudPartnerId,
        b_n: cloudLabel,
        ...(cloudLogo && { b_icon: cloudLogo }),
        source: cloudLabel,
        ads: "",
      },
    },
  }),
  miss: () => ({ answer: { hit: false } }),
  error: () => ({ error: "the network connection was lost" }),
};

/** @param {Story} story */
export function pieceOf(story) {
  const { number, known, region, blocked, cloud, delay } = story;
  const answer =
    cloud === "never" ? { number, never: true } : { number, ...answers[cloud]?.(story), delay };
  return {
    ...sections[known](story),
    ...(region && { regions: [{ number, region }] }),
    ...(blocked && { blackList: [{ number }] }),
    ...(cloud !== "none" && { cloudAnswers: [answer] }),
  };
}
