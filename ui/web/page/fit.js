// Captions are lettered in the size of the table, or smaller where the room is.

const twipsPerPoint = 20;
const sample = 100; // pixels of the font that is measured
const marginsOf = /** @type {Record<string, number>} */ ({ frame: 240, button: 90, label: 0, option: 270, check: 270 });

const canvas = document.createElement("canvas").getContext("2d");

/** @param {import("./board.js").Control} control */
export function fitCaption(control) {
    const { element, label, kind, points, bold } = control;
    if (!label || !canvas || !points || control.width === undefined)
        return;
    const { fontFamily } = getComputedStyle(element);
    canvas.font = `${bold ? "bold " : ""}${sample}px ${fontFamily}`;
    const needed = canvas.measureText(control.caption).width / sample * points * twipsPerPoint;
    const room = control.width - marginsOf[kind];
    if (needed > room)
        element.style.setProperty("--points", String(points * room / needed));
}
