// What the program shows and asks on the page. ui/web/script.h tells what each of these is for.

import { Board } from "./board.js";
import { MessageBox } from "./message.js";

export class Stage {
    /** @param {Document} document */
    constructor(document) {
        this.document = document;
        this.board = new Board(this.named("board"));
        this.message = new MessageBox(document, this.board);
        /** @type {any} */
        this.program = null;
        /** @type {ReturnType<typeof setTimeout> | undefined} */
        this.alarm = undefined;
        this.afterwards = new MessageChannel(); // kept, as no browser has to keep one that waits
        this.askToLeave = this.askToLeave.bind(this);
    }

    /** @param {string} id */
    named(id) {
        return /** @type {HTMLElement} */ (this.document.getElementById(id));
    }

    /** @param {any} program */
    begin(program) {
        this.program = program;
        this.message.begin(program);
        this.named("notice").hidden = true;
        this.named("board").hidden = false;
    }

    /** @param {number} place @param {string} field @param {string | number} value */
    tell(place, field, value) {
        this.board.tell(place, field, value);
    }

    build() {
        this.board.build();
    }

    /** @param {string} caption */
    showCaption(caption) {
        this.document.title = caption;
        this.named("caption").textContent = caption;
    }

    /** @param {boolean} inGame */
    showInGame(inGame) {
        const change = inGame ? "addEventListener" : "removeEventListener";
        this.document.defaultView?.[change]("beforeunload", this.askToLeave);
    }

    /** @param {Event} event */
    askToLeave(event) {
        event.preventDefault();
    }

    /** @param {boolean} shown */
    showRing(shown) {
        this.board.root.classList.toggle("ring", shown);
    }

    focused() {
        return this.board.placeOf(this.document.activeElement);
    }

    /** @param {number} place */
    focus(place) {
        this.board.focus(place);
    }

    /** @param {string} text */
    say(text) {
        const news = this.named("news");
        const line = this.document.createElement("p");
        line.textContent = text;
        news.append(line);
        while (news.childElementCount > 20)
            news.firstElementChild?.remove();
    }

    /** @param {number} milliseconds */
    wakeAfter(milliseconds) {
        clearTimeout(this.alarm);
        this.alarm = setTimeout(() => this.program._Wake(), milliseconds);
    }

    openHelp() {
        this.document.querySelector("nav a")?.dispatchEvent(new MouseEvent("click"));
    }

    // Until the browser has painted. It paints no hidden page, and a page that it holds back is not
    // waited for any longer than a player would wait.
    frame() {
        return new Promise(resolve => {
            this.afterwards.port1.onmessage = resolve;
            /** @type {number | undefined} */
            let next;
            const go = () => {
                clearTimeout(late);
                if (next !== undefined)
                    cancelAnimationFrame(next);
                this.afterwards.port2.postMessage(null);
            };
            const late = setTimeout(go, this.document.hidden ? 0 : 100);
            if (!this.document.hidden)
                next = requestAnimationFrame(go);
        });
    }

    /** @param {import("./message.js").Message} message */
    ask(message) {
        return this.message.ask(message);
    }

    /** @param {number} width */
    measureDialog(width) {
        return this.message.measure(width);
    }

    /** @param {number} left @param {number} top @param {number} width */
    placeDialog(left, top, width) {
        this.message.place(left, top, width);
    }

    // Nothing of the program may be clicked any more.
    end() {
        this.leave("Quorvel2 has ended.");
        return new Promise(() => {});
    }

    /** @param {string} text */
    fail(text) {
        this.leave(text);
    }

    /** @param {string} text */
    leave(text) {
        clearTimeout(this.alarm);
        this.showInGame(false);
        this.document.title = "Quorvel2";
        this.named("caption").textContent = "Quorvel2";
        this.named("board").remove();
        this.named("message").remove();
        this.named("notice").hidden = false;
        this.named("notice-text").textContent = text;
        const again = this.named("again");
        /** @type {HTMLElement} */ (again.parentElement).hidden = false;
        again.focus();
    }
}
