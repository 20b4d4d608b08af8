// The box that the game speaks and asks with.

/** @typedef {{ text: string, title: string, asks: boolean, noIsHarmless: boolean, escapeAnswers: boolean }} Message */

const margin = 8; // pixels between the box and the edges of a narrow screen

export class MessageBox {
    /** @param {Document} document @param {import("./board.js").Board} board */
    constructor(document, board) {
        const named = (/** @type {string} */ id) => /** @type {any} */ (document.getElementById(id));
        this.document = document;
        this.board = board;
        /** @type {HTMLDialogElement} */
        this.box = named("message");
        this.title = named("message-title");
        this.text = named("message-text");
        this.yes = named("yes");
        this.no = named("no");
        /** @type {any} */
        this.program = null;
        /** @type {Message | null} */
        this.asked = null;
        /** @type {(yes: boolean) => void} */
        this.answer = () => {};
        /** @type {{ x: number, y: number } | null} */
        this.mouse = null;
    }

    /** @param {any} program */
    begin(program) {
        this.program = program;
        this.yes.addEventListener("click", () => this.give(true));
        this.no.addEventListener("click", () => this.give(false));
        this.box.addEventListener("cancel", event => {
            event.preventDefault();
            this.escape();
        });
        // A browser lets nobody hold a box open against a second Escape or Back. It comes up again.
        this.box.addEventListener("close", () => this.asked && this.show());
        this.box.addEventListener("keydown", event => event.repeat && event.key !== "Tab" && event.preventDefault());
        const view = /** @type {Window} */ (this.document.defaultView);
        view.addEventListener("resize", () => this.asked && this.putInPlace());
        view.addEventListener("pointermove", ({ pointerType, clientX: x, clientY: y }) =>
            this.mouse = pointerType === "mouse" ? { x, y } : null);
    }

    /** @param {Message} message @returns {Promise<boolean>} */
    ask(message) {
        this.asked = message;
        this.title.textContent = message.title;
        this.text.textContent = message.text;
        this.yes.textContent = message.asks ? "Yes" : "OK";
        this.no.hidden = !message.asks;
        this.box.setAttribute("closedby", message.escapeAnswers ? "closerequest" : "none");
        return new Promise(resolve => {
            this.answer = resolve;
            this.show();
        });
    }

    show() {
        this.box.showModal();
        requestAnimationFrame(() => this.asked && this.program._MessageShows());
        this.putInPlace();
        (this.asked?.noIsHarmless ? this.no : this.yes).focus();
    }

    escape() {
        if (this.asked?.escapeAnswers)
            this.give(!this.asked.asks);
    }

    /** @param {boolean} yes */
    give(yes) {
        if (!this.asked || !this.program._TakesAnswer())
            return;
        this.asked = null;
        this.box.close();
        this.box.getBoundingClientRect(); // WebKit gives the board no focus until the box is seen to be gone
        this.answer(yes);
    }

    putInPlace() {
        const { column, pixels } = this.board.scale();
        this.box.style.setProperty("--twip", `${pixels}px`);
        if (column)
            return this.putInColumn();
        this.putOnBoard();
        const { top, bottom } = this.box.getBoundingClientRect();
        const away = Math.min(top, Math.max(0, bottom + margin - this.height()));
        if (away === 0)
            return;
        this.document.defaultView?.scrollBy(0, away); // a board that is larger than the screen
        this.putOnBoard();
        const below = this.box.getBoundingClientRect().bottom + margin - this.height();
        if (below > 0)
            this.box.style.top = `${Math.max(0, parseFloat(this.box.style.top) - below)}px`;
    }

    putOnBoard() {
        const { pixels, left, top } = this.board.scale();
        const { x, y } = this.mouse ?? { x: 0, y: 0 };
        this.program._PlaceMessage(pixels, Math.round(left), Math.round(top), this.mouse ? 1 : 0, x, y);
    }

    /** @param {number} width */
    measure(width) {
        Object.assign(this.box.style, { top: "0px", bottom: "auto", width: `${width}px` });
        return Math.ceil(this.box.getBoundingClientRect().height);
    }

    /** @param {number} left @param {number} top @param {number} width */
    place(left, top, width) {
        Object.assign(this.box.style, { left: `${left}px`, top: `${top}px`, bottom: "auto", width: `${width}px` });
    }

    height() {
        return /** @type {Window} */ (this.document.defaultView).innerHeight;
    }

    // As low on the screen as it covers no letter, number or guess. Where there is no such place it
    // stands at the lower edge, and the column moves up from below it.
    putInColumn() {
        const view = this.height();
        const left = Math.max(margin, this.board.root.getBoundingClientRect().left + margin);
        const width = Math.min(this.document.documentElement.clientWidth - 2 * left, 480);
        const height = this.measure(width);
        const tops = [...this.board.root.querySelectorAll(".shown, .tile, .guess")]
            .map(box => box.getBoundingClientRect())
            .filter(box => box.width > 0 && box.bottom > 0 && box.top < view)
            .sort((one, other) => other.bottom - one.bottom);
        let lowest = view - margin;
        for (const box of tops) {
            if (lowest - box.bottom >= height)
                break;
            lowest = Math.min(lowest, box.top - 2);
        }
        const fits = lowest - height >= 0;
        this.place(left, (fits ? lowest : view - margin) - height, width);
        if (!fits && tops.length > 0)
            this.document.defaultView?.scrollBy(0, Math.max(0, tops[0].bottom - (view - margin - height - 2)));
    }
}
