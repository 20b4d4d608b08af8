// Plays on the page what write_steps.cpp has written down, and holds the page to what it says. In the
// place of start.js, with a clock and frames that stand still until they are told.

import createProgram from "./quorvel2.js";
import { Events } from "./events.js";
import { Stage } from "./stage.js";

const started = Promise.all(["quorvel2.wasm", "Lexicon.txt"]
    .map(async name => (await fetch(new URL(name, import.meta.url))).arrayBuffer()));

let now = 0;
const frames = [];
let lastAlarm = 0;
const alarms = new Map();
const channel = new MessageChannel();
const turns = [];
channel.port1.onmessage = () => turns.shift()();
const turn = () => new Promise(resolve => {
    turns.push(resolve);
    channel.port2.postMessage(0);
});
const { setTimeout: later } = window;
performance.now = () => now;
window.requestAnimationFrame = call => frames.push(call);
window.setTimeout = (call, wait) => {
    if (!(wait > 0 && wait < 20_000)) // that of a driver is longer
        return later(call, wait);
    alarms.set(++lastAlarm, { call, at: now + wait });
    return lastAlarm;
};
window.cancelAnimationFrame = () => {};
window.clearTimeout = key => alarms.delete(key);

function tell(time) {
    now = time;
    for (const [key, { call, at }] of alarms) {
        if (at <= now && alarms.delete(key))
            call();
    }
}

const keys = { Left: "ArrowLeft", Right: "ArrowRight", Up: "ArrowUp", Down: "ArrowDown", Space: " ", Backtab: "Tab" };

const paint = () => frames.splice(0).forEach(call => call());

class Player {
    constructor(program, stage, list) {
        Object.assign(this, { program, stage, list, problems: [], played: 0, board: stage.board, looks: [], says: [], done: new Set(), ahead: -1, asked: 0 });
        stage.openHelp = () => {};
        const wait = stage.frame.bind(stage);
        stage.frame = () => wait().then(() => void (this.goesOn = true));
        this.news = stage.named("news");
        stage.named("caption").tabIndex = 0; // so that no key leads out of the page
    }

    async begin(name) {
        this.name = name;
        const { root } = this.board;
        root.replaceChildren();
        Object.assign(this.board, { controls: [], built: false });
        Object.assign(this, { looks: [], says: [], asked: 0 });
        this.news.replaceChildren();
        alarms.clear();
        this.useList(this.list);
        this.program.ccall("BeginAnew");
    }

    useList(bytes) {
        const place = this.program._malloc(bytes.length + 1);
        this.program.HEAPU8.set(bytes, place);
        this.program._HandOverWordList(place, bytes.length);
    }

    element(place) {
        return this.board.controls[place].input;
    }

    // What the player does, and what the program is told from outside.
    steps = {
        at: ([time]) => tell(Number(time)),
        board: ([parts]) => this.program.ccall("SetParts", null, ["string"], [parts]),
        seed: ([seed]) => this.program._SetSeed(Number(seed)),
        draws: ([text]) => {
            const draws = new Float32Array(text.trim().split(" ").map(Number));
            const place = this.program._malloc(draws.byteLength);
            this.program.HEAPU8.set(new Uint8Array(draws.buffer), place);
            this.program._SetDraws(place, draws.length);
        },
        list: ([there, bytes]) => there === "1" ? this.useList(new TextEncoder().encode(bytes.replaceAll("\\n", "\n"))) : this.program._HandOverWordList(0, 0),
        computer: () => this.program.ccall("TakeComputersGo"),
        click: ([place]) => {
            if (!this.asked)
                this.element(place).focus();
            this.element(place).click();
        },
        mouse: ([place]) => {
            this.point("pointerdown", this.element(place));
            this.element(place).click();
            this.point("pointerup", this.element(place));
        },
        drag: ([place]) => {
            this.point("pointerdown", this.element(place));
            this.point("pointermove", this.element(place), 20);
        },
        drop: ([place]) => this.point("pointerup", place < 0 ? document.body : this.element(place)),
        focus: ([place]) => {
            const input = this.element(place);
            input.focus();
            input.select?.();
        },
        tick: ([place, ticked]) => {
            if (this.element(place).checked !== (ticked === "1"))
                this.element(place).click();
        },
        write: ([place, text]) => {
            this.element(place).value = text;
            this.element(place).dispatchEvent(new InputEvent("input", { bubbles: true, inputType: "" }));
        },
        paste: ([text]) => document.activeElement.matches(".guess") && document.execCommand("insertText", false, text),
        type: ([text]) => {
            for (const letter of text) {
                const key = letter === "_" ? " " : letter;
                if (this.press(key, {}) && document.activeElement.matches(".guess"))
                    document.execCommand("insertText", false, key);
            }
        },
        key: ([name, held, shift]) => this.press(name, { repeat: held === "1", shiftKey: shift === "1" }),
    };

    press(name, how) {
        return (this.asked ? document : document.activeElement).dispatchEvent(
            new KeyboardEvent("keydown", { key: keys[name] ?? name, bubbles: true, cancelable: true, ...how }));
    }

    point(kind, element, away = 0) {
        const { left, top, width, height } = element.getBoundingClientRect();
        element.dispatchEvent(new PointerEvent(kind, { bubbles: true, isPrimary: true, pointerType: "mouse", button: 0,
            clientX: left + width / 2 + away, clientY: top + height / 2 }));
    }

    // What must be so.
    checks = {
        says: ([text]) => void this.says.push(text),
        look: ([place, text, faint, enabled, onView, chosen, name, help]) =>
            void (this.looks[place] = { text: text || faint, enabled, onView, chosen, name, help }),
        shown: ([focus, caption]) => this.until(() => this.differences(Number(focus), caption)),
        repaint: () => this.until(() => frames.length > 0 ? "" : "no repaint"),
        painted: () => {},
        message: ([title, text, asks]) => {
            const { box, yes, no } = this.stage.message;
            ++this.asked;
            return this.until(() => {
                if (box.open)
                    paint();
                const told = box.open ? [this.stage.message.title.textContent, this.stage.message.text.textContent, yes.textContent, no.hidden] : [];
                const due = [title, text.replaceAll("\\n", "\n"), asks === "1" ? "Yes" : "OK", asks === "0"];
                return String(told) === String(due) ? "" : `a message: ${told}; due: ${due}`;
            });
        },
        answer: ([yes]) => {
            --this.asked;
            this.stage.message[yes === "1" ? "yes" : "no"].click();
            return turn();
        },
        end: () => this.until(() => document.getElementById("notice-text").textContent === "Quorvel2 has ended." ? "" : "no end"),
    };

    async until(fails) {
        let problem = fails();
        for (let tries = 0; problem !== "" && tries < 40; ++tries) {
            await turn();
            problem = fails();
        }
        if (problem !== "")
            this.problems.push(`${this.name}, step ${this.at + 1}: ${problem}`);
    }

    differences(focus, caption) {
        const found = [];
        const at = this.board.placeOf(document.activeElement);
        // A board that is set in the middle of a case would be told of, too.
        const said = [...this.news.children].map(line => line.textContent).join("; ");
        const dueToSay = this.says.slice(-this.news.childElementCount || this.says.length).join("; ");
        if (this.name === "a random session" && said !== dueToSay)
            found.push(`says "${said}", due "${dueToSay}"`);
        const told = document.getElementById("caption").textContent;
        if (told !== caption)
            found.push(`caption ${told}`);
        // A click that waits for a repaint has taken the focus already.
        const isAhead = this.at < this.ahead;
        const canHaveIt = focus < 0 || !this.element(focus).closest("[hidden]");
        if (at < 0 && this.leaves) // a key that goes round leads to the links beside the board first
            this.element(focus).focus();
        else if (!isAhead && !this.stage.message.box.open && canHaveIt && at !== focus)
            found.push(`focus ${this.nameOf(at)}, due ${this.nameOf(focus)}`);
        for (const [place, look] of this.looks.entries()) {
            const shown = this.shown(place);
            for (const [field, due] of Object.entries(look ?? {})) {
                if (shown[field] !== undefined && shown[field] !== due && !(isAhead && field === "help"))
                    found.push(`${this.nameOf(place)} ${field} "${shown[field]}", due "${due}"`);
            }
        }
        return found.join("; ");
    }

    nameOf(place) {
        return this.board.controls[place]?.element.id ?? "none";
    }

    shown(place) {
        const { kind, element, input, letter, ear, label } = this.board.controls[place];
        const texts = { guess: () => input.value, list: () => [...element.children].map(line => line.textContent).join("\\n"),
            tile: () => letter.textContent, shown: () => letter.textContent };
        const bit = value => value ? "1" : "0";
        const named = ["tile", "guess", "button", "list"].includes(kind) && !element.classList.contains("backing");
        return { text: texts[kind]?.() ?? label?.textContent, onView: bit(!element.closest("[hidden]")),
            enabled: "disabled" in input ? bit(!input.disabled) : undefined, chosen: "checked" in input ? bit(input.checked) : undefined,
            name: named ? input.getAttribute("aria-label") : ear?.textContent, help: named ? input.getAttribute("aria-description") ?? "" : undefined };
    }

    // Clicks that wait for a repaint are all there before it comes to an end.
    layBy(lines) {
        let open = 0;
        let asked = 0;
        for (let at = this.at + 1; open >= 0 && at < lines.length; ++at) {
            const [step, ...fields] = lines[at].split("\t");
            open += { repaint: 1, painted: -1, end: -1000 }[step] ?? 0;
            asked += { message: 1, answer: -1 }[step] ?? 0;
            if (asked === 0 && open >= 0 && step !== "at" && this.steps[step] && !this.done.has(at)) {
                this.steps[step](fields);
                this.done.add(at);
                this.ahead = at;
            }
        }
    }

    // From that line on, up to the end of a program: where it stopped, and what was wrong.
    async play(lines, from) {
        for (this.at = from; this.at < lines.length; ++this.at) {
            const [step, ...fields] = lines[this.at].split("\t");
            this.played += Number(this.steps[step] !== undefined && step !== "at");
            if (step === "key" && fields[1] === "0" && !this.asked && !this.done.has(this.at))
                return this.leaves = fields[0].toLowerCase().endsWith("tab"), { next: this.at + 1, key: keys[fields[0]] ?? fields[0], shift: fields[2] === "1" || fields[0] === "Backtab" };
            if (step === "case")
                await this.begin(fields[0]);
            else if (this.checks[step])
                await this.checks[step](fields);
            else if (!this.done.has(this.at))
                this.steps[step](fields);
            if (step === "repaint") {
                this.layBy(lines);
                this.goesOn = false;
                paint();
                await this.until(() => this.goesOn ? "" : "a repaint that does not end");
                await turn();
            }
            if (step === "end" || this.problems.length > 10)
                break;
        }
        const goesOn = this.at + 1 < lines.length && this.problems.length <= 10;
        return { next: goesOn ? this.at + 1 : null, problems: this.problems, played: this.played };
    }
}

// Plays on from that line. The keys that it comes to are for the driver to press, and so is the page
// to be loaded anew after the end of the program.
let player;
window.play = async (name, from) => {
    player ??= await makePlayer();
    player.lines ??= (await (await fetch(name)).text()).trimEnd().split("\n");
    return player.play(player.lines, from).catch(error => ({ next: null, played: player.played,
        problems: [...player.problems, `${player.name}, step ${player.at + 1}: ${error}`] }));
};

// What a screen reader has to be told of each control on view, by its role.
window.heard = () => player.looks.flatMap((look, place) => {
    const roles = { tile: "button", button: "button", guess: "textbox", shown: "StaticText", option: "radio", check: "checkbox", list: "listbox", frame: "group" };
    const { kind, element } = player.board.controls[place];
    const seen = roles[kind] && look.onView === "1" && look.name !== "" && !element.classList.contains("backing");
    return seen ? [`${roles[kind]} ${look.name}`] : [];
});

async function makePlayer() {
    const [compiled, list] = await started;
    const stage = new Stage(document);
    const program = await createProgram({
        stage,
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(compiled, imports).then(({ instance }) => done(instance));
            return {};
        },
    });
    stage.begin(program);
    new Events(stage, program);
    return new Player(program, stage, new Uint8Array(list));
}
