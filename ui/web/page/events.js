// What the player does, passed on to the program.

// In the order of Key in ui/keys.h; a Tab with Shift is a key of its own there.
const keys = ["ArrowLeft", "ArrowRight", "ArrowUp", "ArrowDown", "Home", "End", "Tab", "BackTab",
    "Backspace", "Escape", "Enter", "F1", "F2", "F4", "F8", "F9", "F10"];

const dragBegins = 8; // pixels from where the pointer was pressed

/** @param {KeyboardEvent} event */
function keyOf({ key: name, code, shiftKey, ctrlKey, altKey, metaKey }) {
    const key = code === "Tab" ? code : name; // with Shift it has another name in some browsers
    if (key === "Enter")
        return keys.indexOf(key);
    if (ctrlKey || altKey || metaKey)
        return -1;
    if (key === "Tab" && shiftKey)
        return keys.indexOf("BackTab");
    return shiftKey && !/^F\d/.test(key) ? -1 : keys.indexOf(key);
}

// Ctrl, Alt and Meta make commands of the keys; AltGr types.
/** @param {KeyboardEvent} event */
function isTyped(event) {
    const commands = (event.ctrlKey || event.altKey || event.metaKey) && !event.getModifierState("AltGraph");
    return !commands && event.key !== " " && [...event.key.normalize("NFC")].length === 1;
}

/** @param {any} element */
function cursorOf(element) {
    if (element?.matches?.(".guess")) {
        const { selectionStart: first, selectionEnd: last, value } = element;
        return { atStart: first === 0 || first !== last, atEnd: last === value.length || first !== last };
    }
    if (element?.matches?.(".list")) {
        const now = currentWord(element);
        return { atStart: now <= 0, atEnd: now === element.childElementCount - 1 };
    }
    return { atStart: true, atEnd: true };
}

/** @param {HTMLElement} list */
function currentWord(list) {
    return [...list.children].findIndex(word => word.getAttribute("aria-selected") === "true");
}

/** @param {HTMLElement} list @param {string} key */
function walkWords(list, key) {
    const step = { ArrowUp: -1, ArrowDown: 1, Home: -Infinity, End: Infinity }[key];
    if (step === undefined || list.childElementCount === 0)
        return false;
    const before = currentWord(list);
    const next = Math.min(Math.max(before + step, 0), list.childElementCount - 1);
    list.children[before]?.setAttribute("aria-selected", "false");
    list.children[next].setAttribute("aria-selected", "true");
    list.children[next].scrollIntoView({ block: "nearest" });
    list.setAttribute("aria-activedescendant", list.children[next].id);
    return true;
}

export class Events {
    /** @param {import("./stage.js").Stage} stage @param {any} program */
    constructor(stage, program) {
        this.stage = stage;
        this.board = stage.board;
        this.program = program;
        this.pressCounts = true;
        /** @type {{ place: number, x: number, y: number, under: boolean } | null} */
        this.press = null;
        const { document, board: { root } } = stage;
        document.addEventListener("keydown", event => this.keyDown(event));
        root.addEventListener("click", event => this.click(event));
        root.addEventListener("focusin", event => this.focusCame(event));
        root.addEventListener("input", event => this.input(/** @type {InputEvent} */ (event)));
        root.addEventListener("compositionend", event => this.write(event, 0));
        root.addEventListener("dragstart", event => event.preventDefault());
        document.addEventListener("pointerdown", event => this.pointerDown(event));
        document.addEventListener("pointermove", event => this.pointerMove(event));
        document.addEventListener("pointerup", event => this.pointerUp(event));
        document.addEventListener("pointercancel", () => this.endDrag(-1));
        // A click that ends a drag is none.
        root.addEventListener("click", event => this.dragged && event.stopImmediatePropagation(), true);
    }

    // True when the program has taken the event; also when it waits for something by now.
    /** @param {string} name @param {(string | number)[]} values */
    call(name, ...values) {
        const answer = this.program.ccall(name, "number",
            values.map(value => typeof value === "string" ? "string" : "number"), values);
        return answer !== 0;
    }

    get messageIsOpen() {
        return this.stage.message.asked !== null;
    }

    /** @param {KeyboardEvent} event */
    keyDown(event) {
        const at = this.stage.document.activeElement;
        const place = this.board.placeOf(at);
        const elsewhere = place < 0 && at !== this.stage.document.body;
        if (this.messageIsOpen || event.isComposing || elsewhere)
            return;
        const key = keyOf(event);
        if (key >= 0) {
            if (event.key === "Escape" && this.press?.under)
                this.endDrag(-1);
            else if (this.pressKey(key, event, at))
                return event.preventDefault();
            if (event.code === "Tab")
                this.letTabLeave();
            else if (at?.matches(".list") && walkWords(/** @type {HTMLElement} */ (at), event.key))
                event.preventDefault();
        } else if (isTyped(event) && !at?.matches(".guess")) {
            const letter = event.key.normalize("NFC");
            if (!event.repeat)
                this.call("Type", letter, letter.toLowerCase(), letter.toUpperCase());
            event.preventDefault();
        }
    }

    /** @param {number} key @param {KeyboardEvent} event @param {Element | null} at */
    pressKey(key, event, at) {
        const { atStart, atEnd } = cursorOf(at);
        return this.call("Press", key, Number(event.repeat), Number(event.shiftKey), Number(atStart), Number(atEnd));
    }

    // From the ends of the board the key goes on to what is beside it, over all other controls.
    letTabLeave() {
        const { root } = this.board;
        root.inert = true;
        setTimeout(() => root.inert = false);
    }

    /** @param {FocusEvent} event */
    focusCame(event) {
        const place = this.board.placeOf(/** @type {Element} */ (event.target));
        if (place >= 0)
            this.program._FocusCame(place);
    }

    // A pointer's click counts as its press did; the others come from keys and screen readers.
    /** @param {MouseEvent} event */
    click(event) {
        const element = /** @type {HTMLElement} */ (event.target);
        const counts = this.pressCounts;
        this.pressCounts = true;
        const place = this.board.placeOf(element);
        const control = this.board.controls[place];
        if (!control || (element.closest("label") && element !== control.input))
            return;
        if (control.kind === "check")
            this.call("Tick", place, Number(control.input.checked));
        else if (control.kind === "guess")
            control.input.select();
        else if (!counts)
            event.preventDefault();
        else if (["tile", "button", "option"].includes(control.kind)) {
            if (this.stage.document.activeElement !== control.input)
                control.input.focus(); // which not all browsers do
            this.call("Click", place);
        }
    }

    // The keyboard of a phone composes each letter that it types, and would go on to the next.
    /** @param {InputEvent} event */
    input(event) {
        if (event.isComposing && !matchMedia("(pointer: coarse)").matches)
            return;
        this.write(event, Number(event.inputType?.startsWith("delete")));
    }

    /** @param {Event} event @param {number} erased */
    write(event, erased) {
        const place = this.board.placeOf(/** @type {Element} */ (event.target));
        const control = this.board.controls[place];
        if (control?.kind !== "guess")
            return;
        const text = control.input.value.normalize("NFC");
        if (/** @type {InputEvent} */ (event).inputType === "")
            this.call("Wrote", place, text);
        else
            this.call("Edited", place, text, erased);
    }

    /** @param {PointerEvent} event */
    pointerDown(event) {
        if (!event.isPrimary || event.button !== 0)
            return;
        this.dragged = false;
        if (this.messageIsOpen)
            return;
        const place = this.board.placeOf(/** @type {Element} */ (event.target));
        this.pressCounts = this.program._PointerDown() !== 0;
        this.press = this.pressCounts && this.board.controls[place]?.drags === 1
            ? { place, x: event.clientX, y: event.clientY, under: false } : null;
        if (this.press) // so that a finger, too, leaves the tile
            this.release(/** @type {Element} */ (event.target), event.pointerId);
    }

    /** @param {Element} element @param {number} pointer */
    release(element, pointer) {
        if (element.hasPointerCapture(pointer))
            element.releasePointerCapture(pointer);
    }

    /** @param {PointerEvent} event */
    pointerMove(event) {
        const { press } = this;
        if (press && !press.under && Math.hypot(event.clientX - press.x, event.clientY - press.y) > dragBegins) {
            press.under = this.call("BeginDrag", press.place);
            if (!press.under)
                this.press = null;
        }
        this.showLetterInHand(event);
    }

    /** @param {PointerEvent} event */
    pointerUp(event) {
        if (!this.press?.under)
            return void (this.press = null);
        this.dragged = true; // of the click that may follow
        this.endDrag(this.board.placeOf(this.stage.document.elementFromPoint(event.clientX, event.clientY)));
        this.showLetterInHand(event);
        setTimeout(() => this.dragged = false);
    }

    /** @param {number} place */
    endDrag(place) {
        if (this.press?.under)
            this.call("EndDrag", place);
        this.press = null;
        this.stage.named("in-hand").hidden = true;
    }

    // Beside the arrow; a finger shows it while it drags.
    /** @param {PointerEvent} event */
    showLetterInHand({ pointerType, clientX, clientY }) {
        const hand = this.stage.named("in-hand");
        const seen = pointerType === "mouse" || this.press?.under;
        const letter = seen && !this.messageIsOpen ? this.program.ccall("LetterInHand", "string") : "";
        hand.hidden = letter === "";
        hand.textContent = letter;
        hand.style.translate = `${clientX}px ${clientY}px`;
    }
}
