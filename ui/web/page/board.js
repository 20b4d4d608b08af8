// The controls of the board: the browser's own, made from what the program tells of each.

import { fitCaption } from "./fit.js";

// In the order of Kind in ui/roster.h, of Edge and of Mark in ui/look.h.
const kinds = ["frame", "shown", "tile", "guess", "button", "option", "check", "list", "label"];
const edges = ["flat", "raised", "out-of-play", "sunken"];
const marks = ["none", "known", "foreign", "next", "refused", "changed"];
const plainPoints = 9.75; // of the system's own face

/**
 * A control as the program tells it, with what has been made of it. What can be set and focused is
 * the input, which for most is the element itself.
 * @typedef {Record<string, any> & { place: number, element: HTMLElement, input: any }} Control
 */

/** @type {Record<string, (control: Control, make: (tag: string, name: string) => HTMLElement) => void>} */
const makers = {
    frame(control, make) {
        control.element = make("div", "frame");
        control.element.setAttribute("role", "group");
        if (control.caption !== "") {
            control.label = make("span", "frame-caption");
            control.label.textContent = control.caption;
            control.label.setAttribute("aria-hidden", "true"); // it is the name of the group
            control.element.append(control.label);
        }
    },
    shown(control, make) {
        control.element = make("div", "box shown");
        control.letter = make("span", "letter");
        control.letter.setAttribute("aria-hidden", "true");
        control.ear = make("span", "ear");
        control.element.append(control.letter, control.ear);
    },
    tile(control, make) {
        control.element = make("button", "box tile");
        control.letter = make("span", "letter");
        control.element.append(control.letter);
        control.element.classList.toggle("drags", control.drags === 1);
    },
    guess(control, make) {
        control.element = make("input", "box guess");
        const settings = { type: "text", autocomplete: "off", autocapitalize: "none", autocorrect: "off",
            spellcheck: "false", enterkeyhint: "next" };
        for (const [name, value] of Object.entries(settings))
            control.element.setAttribute(name, value);
    },
    button(control, make) {
        if (control.caption === "") { // takes no clicks and no focus
            control.element = make("div", "backing");
            return;
        }
        control.element = make("button", "box button");
        control.element.classList.toggle("heavy", control.heavy === 1);
        control.label = make("span", "letter");
        control.label.textContent = control.caption;
        control.element.append(control.label);
    },
    option: (control, make) => makeTick(control, make, "radio"),
    check: (control, make) => makeTick(control, make, "checkbox"),
    list(control, make) {
        control.element = make("ul", "list");
        control.element.setAttribute("role", "listbox");
        control.element.tabIndex = 0;
    },
    label(control, make) {
        control.element = make("p", "label");
        control.label = make("span", "letter");
        control.label.textContent = control.caption;
        control.element.append(control.label);
    },
};

/** @param {Control} control @param {(tag: string, name: string) => HTMLElement} make @param {string} type */
function makeTick(control, make, type) {
    control.element = make("label", type);
    control.input = make("input", "");
    Object.assign(control.input, { type, name: control.row });
    control.label = make("span", "tick-caption");
    control.label.textContent = control.caption;
    control.element.append(control.input, control.label);
}

/** @param {Control} control @param {string} words */
function showWords(control, words) {
    const { element } = control;
    element.replaceChildren(...(words === "" ? [] : words.split("\n")).map((word, index) => {
        const line = element.ownerDocument.createElement("li");
        line.id = `${element.id}-${index}`;
        line.setAttribute("role", "option");
        line.setAttribute("aria-selected", "false");
        line.textContent = word;
        return line;
    }));
    element.removeAttribute("aria-activedescendant");
    element.scrollTop = element.scrollHeight; // the newest is the last
}

/** @param {Control} control */
function showLetter(control) {
    control.letter.textContent = control.text || control.faint;
    control.element.classList.toggle("hollow", control.text === "" && control.faint !== "");
}

// How each look is shown.
/** @type {Record<string, (control: Control) => void>} */
const showers = {
    text(control) {
        if (control.kind === "guess" && control.input.value !== control.text)
            control.input.value = control.text;
        else if (control.kind === "list")
            showWords(control, control.text);
        else if (control.letter)
            showLetter(control);
    },
    faint: control => control.letter && showLetter(control),
    chosen(control) {
        if ("checked" in control.input)
            control.input.checked = control.chosen === 1;
    },
    edge: control => void (control.element.dataset.edge = edges[control.edge]),
    mark(control) {
        if (control.mark > 0)
            control.element.dataset.mark = marks[control.mark];
        else
            delete control.element.dataset.mark;
    },
    clear: control => control.element.classList.toggle("clear", control.clear === 1),
    faded: control => control.element.classList.toggle("faded", control.faded === 1),
    name(control) {
        if (control.ear)
            control.ear.textContent = control.name;
        else if (!["label", "option", "check"].includes(control.kind) && !control.element.classList.contains("backing"))
            control.input.setAttribute("aria-label", control.name);
    },
    help(control) {
        if (control.help !== "")
            control.input.setAttribute("aria-description", control.help);
        else
            control.input.removeAttribute("aria-description");
    },
    enabled: control => void (control.input.disabled = control.enabled === 0),
    onView: control => void (control.element.hidden = control.onView === 0),
    left: placeElement,
    top: placeElement,
    width: placeElement,
    height: placeElement,
};

/** @param {Control} control */
function placeElement(control) {
    for (const side of ["left", "top", "width", "height"])
        control.element.style.setProperty(`--${side}`, String(control[side] - (control.tray?.[side] ?? 0)));
}

/** @param {number} colour */
function colourOf(colour) {
    return `#${colour.toString(16).padStart(6, "0")}`;
}

export class Board {
    /** @param {HTMLElement} root */
    constructor(root) {
        this.root = root;
        /** @type {Control[]} */
        this.controls = [];
        this.built = false;
    }

    /** @param {number} place @param {string} field @param {string | number} value */
    tell(place, field, value) {
        if (place < 0)
            return this.root.style.setProperty(`--board-${field}`, String(value));
        this.controls[place] ??= /** @type {any} */ ({ place, text: "", faint: "" });
        const control = this.controls[place];
        control[field] = value;
        if (this.built)
            showers[field](control);
    }

    build() {
        const { ownerDocument } = this.root;
        for (const control of this.controls) {
            control.kind = kinds[control.kind];
            makers[control.kind](control, (tag, name) =>
                Object.assign(ownerDocument.createElement(tag), { className: name }));
            const { element } = control;
            control.input ??= element;
            element.id = control.row + (control.number > 0 ? `-${control.number}` : "");
            element.classList.add(`face-${control.face}`);
            control.input.dataset.part = String(control.place);
            if (element instanceof HTMLButtonElement)
                element.type = "button";
            this.colour(control);
            this.placeIn(control);
        }
        for (const control of this.controls)
            fitCaption(control);
        this.built = true;
    }

    /** @param {Control} control */
    colour(control) {
        const { element, ground, ink, face, bold } = control;
        element.classList.toggle("named-ground", ground !== undefined);
        element.classList.toggle("named-ink", ink !== undefined);
        // Nothing is taken over from the frame.
        element.style.setProperty("--named-ground", ground === undefined ? "initial" : colourOf(ground));
        element.style.setProperty("--named-ink",
            ink === undefined && ground === undefined ? "initial" : colourOf(ink ?? 0));
        if (face === 0)
            control.points = plainPoints;
        element.style.setProperty("--points", control.points);
        element.classList.toggle("bold", bold === 1);
    }

    /** @param {Control} control */
    placeIn(control) {
        const holder = control.frame < 0 ? this.root : this.controls[control.frame].element;
        const boxed = control.number > 0 && control.element.classList.contains("box");
        (boxed ? this.trayFor(control, holder) : holder).append(control.element);
        if (!boxed && control.toolTip !== "")
            control.element.title = control.toolTip;
        if (control.columnTop !== undefined) {
            control.element.style.setProperty("--column-left", control.columnLeft);
            control.element.style.setProperty("--column-top", control.columnTop);
        }
        if (control.width !== undefined)
            placeElement(control);
    }

    // The boxes of a row in one frame stand in a tray, which has their tool tip: on a box itself it
    // would be read aloud with each.
    /** @param {Control} control @param {HTMLElement} holder */
    trayFor(control, holder) {
        const before = this.controls[control.place - 1];
        if (before?.row === control.row && before.frame === control.frame) {
            control.tray = before.tray;
        } else {
            const element = Object.assign(this.root.ownerDocument.createElement("div"), { className: "tray" });
            element.title = control.toolTip;
            holder.append(element);
            control.tray = { element, left: control.left, top: control.top, height: 0 };
        }
        const { element, left, top } = control.tray;
        const size = { left, top, width: control.left + control.width - left, height: control.height };
        for (const [side, value] of Object.entries(size))
            element.style.setProperty(`--${side}`, String(value));
        return element;
    }

    // The control that the element stands in or is; -1 for none.
    /** @param {Element | null | undefined} element */
    placeOf(element) {
        const part = /** @type {HTMLElement | null | undefined} */ (element?.closest("[data-part]"));
        const inside = part ?? /** @type {any} */ (element?.closest("label"))?.control;
        return inside && this.root.contains(inside) ? Number(inside.dataset.part) : -1;
    }

    /** @param {number} place */
    focus(place) {
        const { input, kind } = this.controls[place];
        input.focus();
        if (kind === "guess")
            input.select();
    }

    // How large a twip is, and where the board begins.
    scale() {
        const style = getComputedStyle(this.root);
        const column = style.getPropertyValue("--layout").trim() === "column";
        const { left, top, width } = this.root.getBoundingClientRect();
        const twips = Number(style.getPropertyValue(column ? "--board-columnWidth" : "--board-width"));
        return { column, left, top, pixels: width / twips };
    }
}
