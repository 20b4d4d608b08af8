// check.mjs FOLDER PICTURES [CHECK...]: the page in that folder as people have it in Chromium: on screens of all
// kinds, for those who hear it, in a hurry, without a network. Pictures of it go to the other folder.

import assert from "node:assert/strict";
import { cp, mkdir, readFile, rename, writeFile } from "node:fs/promises";
import axe from "axe-core";
import { chromium, serve } from "./browsers.mjs";

const [folder, pictures, ...only] = process.argv.slice(2);
await mkdir(pictures, { recursive: true });
const { started, close } = await chromium();

// The colours that are fixed make these hard to read, and nothing else may be.
const fixed = ["#SwapLetters-1", "#Frame1", "#Frame8", "#Label5", "#Label3"];

const screens = { wide: [1280, 800], phone: [390, 844], lying: [844, 390], tablet: [768, 1024], least: [360, 640], zoomed: [640, 400] };

class Visit {
    static async to(address, { screen = "wide", scheme = "light", touch = false, context = started } = {}) {
        const visit = new Visit();
        visit.page = await context.newPage();
        visit.errors = [];
        visit.page.on("pageerror", error => visit.errors.push(error.message));
        visit.page.on("dialog", dialog => dialog.accept());
        await visit.page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
        const [width, height] = screens[screen];
        await visit.page.setViewport({ width, height, hasTouch: touch, isMobile: touch, deviceScaleFactor: touch ? 2 : 1 });
        visit.kind = `${screen}-${scheme}`;
        await visit.page.goto(address);
        return visit;
    }

    see = (selector, shown = true) => this.page.waitForSelector(selector, { visible: shown, hidden: !shown, timeout: 5000 });
    // Again where the page goes elsewhere meanwhile.
    run = (call, ...values) => this.page.evaluate(call, ...values).catch(() => this.page.evaluate(call, ...values));
    press = key => this.page.keyboard.press(key);
    async click(...selectors) {
        for (const selector of selectors)
            await this.page.click(selector);
    }

    async begin() {
        await this.see("#Command1");
        await this.click("#Option1-6", "#Command1");
        await this.answer();
        await this.see("#Text1-1");
    }

    // Answers whatever is asked, up to where nothing is.
    async answer(which = "#yes") {
        await new Promise(resolve => setTimeout(resolve, 150));
        for (let open = 0; await this.run(() => document.getElementById("message")?.open) && open < 20; ++open) {
            await new Promise(resolve => setTimeout(resolve, 300));
            await this.click(which).catch(() => {});
            await new Promise(resolve => setTimeout(resolve, 150));
        }
    }

    async holds(state) {
        await this.page.screenshot({ path: `${pictures}/${this.kind}-${state}.png` });
        const found = await this.run(`${axe.source}; axe.run(document, { resultTypes: ["violations"] }).then(({ violations }) =>
            violations.flatMap(({ id, nodes }) => nodes.map(node => [id, node.target.join(" ")])))`);
        const left = found.filter(([id, target]) => id !== "color-contrast" || !fixed.some(name => target.startsWith(name)));
        assert.deepEqual(left, [], `${this.kind}, ${state}`);
    }

    async leave() {
        assert.deepEqual(this.errors, [], this.kind);
        await this.page.close();
    }
}

// Every state that a player comes to.
async function checkStates(address, how) {
    const visit = await Visit.to(address, how);
    await visit.see("#Command1");
    await visit.holds("level");
    await visit.begin();
    await visit.holds("go");
    await visit.click("#Text1-2", "#SwapLetters-3", "#Command9", "#Text2-1", "#Text2-4");
    await visit.holds("laying-out");
    await visit.click("#Text2-2", "#Text2-3", "#Text2-5", "#Text2-6");
    await visit.page.type("#Text6-2", "qx");
    await visit.holds("guess");
    await visit.click("#Command3");
    await visit.see("#message[open]");
    await visit.holds("message");
    await visit.answer();
    await visit.click("#Command10");
    await visit.see("#message[open]");
    await visit.press("Enter"); // before anyone can have read it
    assert.equal(await visit.run(() => document.getElementById("message-title").textContent), "Do I win?");
    await visit.holds("question");
    await new Promise(resolve => setTimeout(resolve, 300));
    await visit.press("Escape"); // which changes nothing
    await visit.see("#message[open]", false);
    await visit.click("#Command10");
    await visit.see("#message[open]");
    await new Promise(resolve => setTimeout(resolve, 300));
    await visit.click("#yes");
    await new Promise(resolve => setTimeout(resolve, 600));
    await visit.click("#yes"); // the words
    await visit.page.waitForFunction(() => document.getElementById("message-title").textContent === "New Game");
    await new Promise(resolve => setTimeout(resolve, 300));
    for (let times = 0; times < 4; ++times)
        await visit.press("Escape"); // is no answer
    await visit.see("#message[open]");
    await visit.click("#no");
    await visit.see("#again");
    await visit.holds("end");
    await visit.click("#again");
    await visit.see("#Command1");
    await visit.leave();
}

// What a thumb needs, and no board wider than the screen.
async function checkSizes(address) {
    for (const screen of Object.keys(screens)) {
        const touch = screen !== "wide" && screen !== "zoomed";
        const visit = await Visit.to(address, { screen, touch });
        await visit.begin();
        const { over, low, tile, end, top } = await visit.run(() => {
            const box = name => document.getElementById(name).getBoundingClientRect();
            const targets = [...document.querySelectorAll("#board :is(button, input, label)")].map(each => each.closest("label") ?? each);
            return { over: document.documentElement.scrollWidth - innerWidth, tile: box("Text1-1").width,
                low: targets.filter(each => each.offsetHeight > 0 && each.offsetHeight < 24).map(each => each.id),
                end: box("Frame10").bottom, top: box("Frame3").top };
        });
        if (screen !== "zoomed" && screen !== "wide")
            assert.deepEqual(low, [], `${screen}: targets that are too low`);
        if (screen === "least")
            assert.ok(tile >= 44, `a tile ${tile} wide`);
        if (["phone", "least", "tablet", "wide"].includes(screen))
            assert.ok(over <= 0, `${screen}: ${over} wider than the screen`);
        if (screen === "phone")
            assert.ok(top >= 0 && end <= 664, `a go from ${top} to ${end}`);
        await visit.leave();
    }
}

// A thousand taps, clicks and keys that wait for nothing, and a phone that is turned meanwhile.
async function checkHurry(address) {
    const visit = await Visit.to(address, { screen: "phone", touch: true });
    await visit.begin();
    const client = await visit.page.createCDPSession();
    const names = ["Text1-1", "Text1-4", "SwapLetters-2", "Command9", "Text2-1", "Text2-3", "Command3", "Command13", "Command14", "Command7",
        "Word1-2", "Command10", "Check1", "Text6-2", "Command6", "no", "yes"];
    const keys = ["Enter", "Escape", "Backspace", "ArrowLeft", "Tab", "a", "F2", "F4", " "];
    let seed = 1;
    const below = count => (seed = seed * 48271 % 0x7fffffff) % count;
    for (let round = 0; round < 10; ++round) {
        const [width, height] = screens[round % 2 === 0 ? "lying" : "phone"];
        const places = await visit.run(all => all.map(name => {
            const { left = 0, top = 0, right = 0, bottom = 0 } = document.getElementById(name)?.getBoundingClientRect() ?? {};
            return { x: (left + right) / 2, y: (top + bottom) / 2 };
        }), names);
        const sent = [];
        for (let event = 0; event < 100; ++event) {
            const place = places[below(places.length)];
            const key = keys[below(keys.length)];
            const kind = below(3);
            if (kind === 0) {
                sent.push(client.send("Input.dispatchKeyEvent", { type: "keyDown", key, text: key.length === 1 ? key : key === "Enter" ? "\r" : undefined }));
            } else if (place.x > 0 && kind === 1) {
                sent.push(client.send("Input.dispatchTouchEvent", { type: "touchStart", touchPoints: [place] }));
                sent.push(client.send("Input.dispatchTouchEvent", { type: "touchEnd", touchPoints: [] }));
            } else if (place.x > 0) {
                for (const type of ["mousePressed", "mouseReleased"])
                    sent.push(client.send("Input.dispatchMouseEvent", { type, ...place, button: "left", clickCount: 1 }));
            }
        }
        await Promise.all(sent);
        await visit.page.setViewport({ width, height, hasTouch: true, isMobile: true });
        await new Promise(resolve => setTimeout(resolve, 100));
        const outside = await visit.run(() => {
            const box = document.querySelector("#message[open]")?.getBoundingClientRect();
            return box && (box.top < 0 || box.left < 0 || box.bottom > innerHeight + 1 || box.right > innerWidth + 1) ? JSON.stringify(box) : "";
        });
        assert.equal(outside, "", "a message out of sight");
        if (await visit.run(() => document.getElementById("again")?.offsetHeight > 0)) {
            await visit.click("#again");
            await visit.begin();
        }
    }
    await visit.answer();
    if (!await visit.run(() => document.getElementById("again")?.offsetHeight > 0)) {
        await visit.run(() => document.querySelector("#Frame1:not([hidden])") && document.getElementById("Command1").click());
        await visit.answer();
        const before = await visit.run(() => document.getElementById("Check1").querySelector("input").checked);
        await visit.run(() => document.getElementById("Check1").querySelector("input").click());
        assert.notEqual(await visit.run(() => document.getElementById("Check1").querySelector("input").checked), before);
    }
    await visit.leave();
}

// Without a network after the first visit; and a new version is taken at the next one, not before.
async function checkAlwaysThere(pages) {
    const other = `${pictures}/../new-version`;
    await cp(pages.folder, other, { recursive: true, force: true });
    const context = await started.createBrowserContext();
    const visit = await Visit.to(pages.address, { context });
    await visit.begin();
    await visit.run(async () => (await navigator.serviceWorker.ready).active.state);
    const files = await visit.run(() => document.querySelector("script[type=module]").getAttribute("src").split("/")[0]);
    for (const name of ["index.html", "worker.js"])
        await writeFile(`${other}/${name}`, (await readFile(`${other}/${name}`, "utf8")).replaceAll(files, "new"));
    await rename(`${other}/${files}`, `${other}/new`).catch(() => {});
    pages.folder = other;
    await visit.run(async () => void await (await navigator.serviceWorker.ready).update());
    await visit.click("#Command13"); // the game goes on
    await visit.answer();
    await visit.see("#Text1-1");
    await visit.page.reload();
    await visit.see("#Command1");
    assert.equal(await visit.run(() => document.querySelector("script[type=module]").getAttribute("src")), "new/start.js");
    await visit.run(async () => {
        while ((await caches.keys()).join() !== "new" || (await (await caches.open("new")).keys()).length < 10)
            await new Promise(resolve => setTimeout(resolve, 50));
    });
    pages.stop();
    await visit.page.reload();
    await visit.begin();
    assert.equal(await visit.run(() => document.cookie + localStorage.length + sessionStorage.length), "00");
    await visit.leave();
    await context.close();
}

// Nothing to play with: one message, then the end.
async function checkWithoutList(pages) {
    const visit = await Visit.to("about:blank", { context: await started.createBrowserContext() });
    await visit.page.setRequestInterception(true);
    visit.page.on("request", request => request.url().endsWith("Lexicon.txt") ? request.respond({ status: 404 }) : request.continue());
    await visit.page.goto(pages.address);
    await visit.see("#Command1");
    await visit.click("#Option1-1", "#Command1");
    await visit.see("#message[open]");
    assert.match(await visit.run(() => document.getElementById("message-text").textContent), /^The file Lexicon\.txt must be in the/);
    await visit.holds("no-list");
    await visit.answer();
    await visit.see("#again");
    await visit.leave();
}

const pages = await serve(folder, "/games/quorvel2/");
const checks = {
    states: async () => {
        for (const scheme of ["light", "dark"]) {
            await checkStates(pages.address, { scheme });
            await checkStates(pages.address, { scheme, screen: "phone", touch: true });
            await checkStates(pages.address, { scheme, screen: "lying", touch: true });
        }
    },
    sizes: () => checkSizes(pages.address),
    hurry: () => checkHurry(pages.address),
    list: () => checkWithoutList(pages),
    always: () => checkAlwaysThere(pages),
};
for (const [name, check] of Object.entries(checks).filter(([each]) => only.length === 0 || only.includes(each))) {
    const from = Date.now();
    await check();
    console.log(`${name}: ${Date.now() - from} ms`);
}
await close();
process.exit();
