// play_in_browser.js FOLDER PICTURES: hands the folder out on the loopback address and plays the game
// in Chromium as a person does. To the browser the board is one picture, so what stands on it is read
// by tesseract.
"use strict";
const { execFileSync } = require("child_process");
const fs = require("fs");
const http = require("http");
const path = require("path");
const puppeteer = require("puppeteer-core");

const [folder, pictures] = process.argv.slice(2);

const screens = [
    { name: "1280x800", width: 1280, height: 800, deviceScaleFactor: 1 },
    { name: "2x", width: 1280, height: 800, deviceScaleFactor: 2 },
    { name: "390x844", width: 390, height: 844, deviceScaleFactor: 2, isMobile: true, hasTouch: true },
];
const phone = "Mozilla/5.0 (Linux; Android 14) AppleWebKit/537.36 (KHTML, like Gecko)"
    + " Chrome/130.0.0.0 Mobile Safari/537.36";

const kinds = { ".html": "text/html", ".css": "text/css", ".js": "text/javascript", ".svg": "image/svg+xml" };
const halves = [..."abc"].flatMap(a => [..."abc"].flatMap(b => [..."abc"].map(c => a + b + c)));
// Every word of the letters a, b and c, so that any row is a word.
const everyRow = halves.flatMap(first => halves.map(second => `${first}${second}\n`)).join("");
let list = everyRow;
let sent = 0;

const server = http.createServer((ask, answer) => {
    const name = new URL(ask.url, "http://localhost").pathname;
    const body = name === "/Lexicon.txt" ? list : fs.readFileSync(path.join(folder, name));
    const kind = kinds[path.extname(name)] ?? "application/octet-stream";
    answer.writeHead(body === null ? 404 : 200, { "Content-Type": kind });
    answer.end(body);
    sent += body?.length ?? 0;
});

const pause = ms => new Promise(resolve => setTimeout(resolve, ms));
async function until(what, look) {
    for (const giveUp = Date.now() + 60000; Date.now() < giveUp; await pause(100)) {
        const seen = await look();
        if (seen)
            return seen;
    }
    throw new Error(`never seen: ${what}`);
}

function read(image, ...options) {
    return execFileSync("tesseract", ["-", "-", "--psm", "6", ...options],
        { input: image, stdio: ["pipe", "pipe", "ignore"] }).toString();
}

// Places are in pixels of the board at its one size.
const size = { width: 649, height: 465 };
const corner = { x: 641, y: 457 }; // of the messages, which have pixels of their own
const words = { x: 520, y: 136, width: 112, height: 100 };
const laidOut = { x: 40, y: 30, width: 140, height: 28 };

class Player {
    constructor(page, screen) {
        Object.assign(this, { page, screen, count: 0 });
    }
    async lay() {
        const box = await (await this.page.waitForSelector("canvas")).boundingBox();
        this.scale = Math.min(box.width / size.width, box.height / size.height);
        this.left = box.x + (box.width - size.width * this.scale) / 2;
        this.top = box.y + (box.height - size.height * this.scale) / 2;
    }
    press(x, y) {
        return this.screen.hasTouch ? this.page.touchscreen.tap(x, y) : this.page.mouse.click(x, y);
    }
    async click(x, y) {
        await this.lay();
        await this.press(this.left + x * this.scale, this.top + y * this.scale);
        await pause(300);
    }
    async keys(...keys) {
        for (const key of keys)
            await this.page.keyboard.press(key, { delay: 50 });
        await pause(300);
    }
    picture(name) {
        const file = `${this.screen.name}-${String(++this.count).padStart(2, "0")}-${name}.png`;
        return this.page.screenshot({ path: path.join(pictures, file), captureBeyondViewport: false });
    }
    async look(place, pixels = this.scale) {
        await this.lay();
        const clip = { x: this.left + place.x * this.scale, y: this.top + place.y * this.scale,
            width: place.width * pixels, height: place.height * pixels, scale: 3 };
        return this.page.screenshot({ clip, captureBeyondViewport: false });
    }
    async usedWords() {
        return read(await this.look(words), "-c", "tessedit_char_whitelist=abc").split(/\s+/).filter(word => word);
    }
    async message() {
        await this.lay();
        const place = { x: corner.x - 260 / this.scale, y: corner.y - 82 / this.scale, width: 240, height: 40 };
        return read(await this.look(place, 1));
    }
    // Waits for the message and answers it with the keys, or by a click on its last button, or on the
    // one before that.
    async answer(text, { keys = [], fromLast = 0 } = {}) {
        await until(text, async () => (await this.message()).includes(text));
        await this.picture(text.replace(/\W+/g, "-"));
        if (keys.length > 0)
            await this.keys(...keys);
        else
            await this.press(this.left + corner.x * this.scale - 62 - 87 * fromLast,
                this.top + corner.y * this.scale - 35);
        await pause(300);
    }
    async start() {
        await until("the level panel", async () => await this.page.title() === "Quorvel");
        await pause(1000);
        await this.picture("start");
    }
    async chooseLevel(level) {
        await this.click(330, 151 + level * 24);
        await this.click(402, 240); // "OK"
    }
    async playOn(how) {
        for (const text of ["Word Accepted", "Letters Jumbled", "My Word", "Letters Jumbled"])
            await this.answer(text, how);
    }
    // Types the letters, each as often as it is there, and says which word they have laid out.
    async layOut(letters) {
        let word = "";
        for (const letter of letters)
            for (let before; word.length < 6; word += letter) {
                before = await this.look(laidOut);
                await this.keys(letter);
                if (!Buffer.compare(before, await this.look(laidOut)))
                    break;
            }
        return word;
    }
    async end() {
        await until("the end", () => this.page.url().endsWith("/ended.html"));
        await this.picture("ended");
        await Promise.all([this.page.waitForNavigation(), this.page.click("a")]);
        await until("the level panel", async () => await this.page.title() === "Quorvel");
    }
}

async function play(page, screen) {
    const player = new Player(page, screen);
    await player.start();
    await player.chooseLevel(1);
    const caption = /^Quorvel - Level: 1   No\. Of words with these letters:  \d+$/;
    await until("a game", async () => caption.test(await page.$eval("h1", node => node.textContent)));
    await pause(1000);
    await player.picture("board");

    await player.click(32, 97);  // a yellow letter
    await player.click(304, 96); // the lilac one that it changes places with
    await player.click(80, 266); // "Submit Word"
    await player.playOn();
    const used = await player.usedWords();
    if (used.length !== 2 || used.some(word => word.length !== 6))
        throw new Error(`after the first go, "Used Words" reads: ${used}`);

    if (!screen.hasTouch) { // a phone types into boxes alone
        let word = await player.layOut("cba");
        if (used.includes(word)) {
            await player.keys("Escape");
            word = await player.layOut("abc");
        }
        await player.picture("typed");
        await player.keys("Enter");
        await player.playOn({ keys: ["Space"] });
        await until(`${word} on "Used Words"`, async () => (await player.usedWords()).includes(word));
    }

    await player.click(316, 364); // the first box to guess in
    if (screen.hasTouch && await page.evaluate(() => document.activeElement.tagName) !== "INPUT")
        throw new Error("no keyboard comes up for a guess");
    for (let letter = 0; letter < 18; ++letter)
        await (screen.hasTouch ? page.keyboard.sendCharacter("a") : player.keys("a"));
    await player.picture("guess");
    await player.click(316, 284); // "Make A Guess"
    await player.answer("words is wrong");

    await player.click(448, 284); // "Give In"
    await player.answer("The Winner", { fromLast: 1 }); // "Yes"
    await player.answer("Words Were");
    await player.answer("Play Again"); // "No"
    await player.end();
}

async function missingList(page, screen) {
    const player = new Player(page, { ...screen, name: "missing" });
    await player.start();
    await player.chooseLevel(1);
    await player.answer("must be in");
    await player.end();
}

async function main() {
    await new Promise(resolve => server.listen(0, "127.0.0.1", resolve));
    const home = `http://127.0.0.1:${server.address().port}/`;
    const browser = await puppeteer.launch({ executablePath: "/usr/bin/chromium",
        args: ["--no-sandbox", "--use-gl=angle", "--use-angle=swiftshader", "--enable-unsafe-swiftshader"] });
    async function open(screen, visit) {
        const context = await browser.createBrowserContext();
        const page = await context.newPage();
        const faults = [];
        page.on("pageerror", error => error.message === "ExitStatus" || faults.push(error.message));
        page.on("request", ask => ask.url().startsWith(home) || faults.push(`asks ${ask.url()}`));
        await page.setViewport(screen);
        if (screen.isMobile)
            await page.setUserAgent(phone);
        try {
            sent = 0;
            const start = Date.now();
            await page.goto(`${home}index.html`);
            await until("a start", async () => await page.title() === "Quorvel");
            console.log(`-- ${screen.name}: ${sent} bytes in ${Date.now() - start} ms`);
            await visit(page, screen);
            const kept = await page.evaluate(async () =>
                document.cookie.length + localStorage.length + (await indexedDB.databases()).length);
            if (kept > 0 || faults.length > 0)
                throw new Error(`keeps ${kept} things; ${faults}`);
        } catch (error) {
            await page.screenshot({ path: path.join(pictures, "failure.png") });
            throw error;
        }
        await context.close();
    }
    try {
        for (const screen of screens)
            await open(screen, play);
        list = null;
        await open(screens[0], missingList);
    } finally {
        await browser.close();
        server.close();
    }
}

main().catch(error => {
    console.error(error);
    process.exit(1);
});
