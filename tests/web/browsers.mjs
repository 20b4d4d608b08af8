// A server of pages and three browsers, each with one way to load a page, to run a function in it and
// to press a key.

import { spawn } from "node:child_process";
import { readFile } from "node:fs/promises";
import http from "node:http";
import path from "node:path";
import puppeteer from "puppeteer-core";

const kinds = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".svg": "image/svg+xml",
    ".wasm": "application/wasm", ".webmanifest": "application/manifest+json", ".png": "image/png" };

/** @param {string} folder @param {string} below where the page stands on the server */
export async function serve(folder, below = "/") {
    const served = { folder };
    const server = http.createServer(async (request, answer) => {
        const name = decodeURI(request.url.split("?")[0]).slice(below.length) || "index.html";
        try {
            const bytes = await readFile(path.join(served.folder, name));
            answer.writeHead(200, { "Content-Type": kinds[path.extname(name)] ?? "text/plain" }).end(bytes);
        } catch {
            answer.writeHead(404).end();
        }
    });
    await new Promise(resolve => server.listen(0, "127.0.0.1", resolve));
    const stop = () => (server.close(), server.closeAllConnections());
    return Object.assign(served, { address: `http://127.0.0.1:${server.address().port}${below}`, stop });
}

/** @param {"chrome" | "firefox"} browser @param {string} executablePath */
async function byPuppeteer(browser, executablePath) {
    const started = await puppeteer.launch({ browser, executablePath, args: browser === "chrome" ? ["--no-sandbox"] : [] });
    const page = await started.newPage();
    page.on("pageerror", error => console.error(error.message));
    page.on("dialog", dialog => dialog.accept());
    await page.setViewport({ width: 1280, height: 800 });
    return {
        started,
        page,
        async load(address) {
            await page.goto(address);
            await page.bringToFront(); // another one's focus stays where it is
        },
        run: (call, ...values) => page.evaluate(call, ...values),
        async press(key, shift) {
            if (shift)
                await page.keyboard.down("Shift");
            await page.keyboard.press(key);
            if (shift)
                await page.keyboard.up("Shift");
        },
        close: () => started.close(),
    };
}

export const chromium = () => byPuppeteer("chrome", "/usr/bin/chromium");
export const firefox = () => byPuppeteer("firefox", "/usr/bin/firefox-esr");

// As WebDriver names them.
const codes = { Tab: "\uE004", ArrowLeft: "\uE012", ArrowUp: "\uE013", ArrowRight: "\uE014", ArrowDown: "\uE015", Home: "\uE011",
    End: "\uE010", Backspace: "\uE003", Delete: "\uE017", Escape: "\uE00C", Enter: "\uE007", Shift: "\uE008", F1: "\uE031",
    F2: "\uE032", F4: "\uE034", F8: "\uE038", F9: "\uE039", F10: "\uE03A" };

/** Takes a display of X. @param {string} binary MiniBrowser */
export async function webkit(binary) {
    const port = 20_000 + process.pid % 10_000;
    const driver = spawn("WebKitWebDriver", [`--port=${port}`], { stdio: "ignore" });
    process.on("exit", () => driver.kill());
    let session = "/session";
    const ask = async (method, name, body) => {
        const answer = await fetch(`http://127.0.0.1:${port}${session}${name}`, { method, body: body && JSON.stringify(body) });
        const { value } = await answer.json();
        if (!answer.ok)
            throw new Error(`${name}: ${value.message}`);
        return value;
    };
    const capabilities = { alwaysMatch: { "webkitgtk:browserOptions": { binary, args: ["--automation"] }, unhandledPromptBehavior: "accept" } };
    for (let tries = 0; session === "/session"; ++tries) {
        await new Promise(resolve => setTimeout(resolve, 200));
        try {
            session += `/${(await ask("POST", "", { capabilities })).sessionId}`;
        } catch (error) {
            if (tries > 20)
                throw error;
        }
    }
    await ask("POST", "/window/rect", { width: 1300, height: 900 });
    return {
        load: url => ask("POST", "/url", { url }),
        // The page keeps its own time, so the driver's patience is not for it.
        async run(call, ...args) {
            const script = `window.answer = null; Promise.resolve((${call})(...arguments)).then(given => window.answer = [given]);`;
            await ask("POST", "/execute/sync", { script, args });
            for (;;) {
                const answer = await ask("POST", "/execute/sync", { script: "return window.answer;", args: [] });
                if (answer !== null)
                    return answer[0];
                await new Promise(resolve => setTimeout(resolve, 50));
            }
        },
        press(key, shift) {
            const held = shift ? ["Shift", key] : [key];
            const strokes = [...held.map(name => ["keyDown", name]), ...held.reverse().map(name => ["keyUp", name])];
            const actions = strokes.map(([type, name]) => ({ type, value: codes[name] ?? name }));
            return ask("POST", "/actions", { actions: [{ type: "key", id: "keys", actions }] });
        },
        async close() {
            await ask("DELETE", "").catch(() => {});
            driver.kill();
        },
    };
}
