// play.mjs BROWSER FOLDER STEPS: plays on the page in that folder what write_steps.cpp has written to
// a file there. BROWSER is chromium, firefox, or the path of WebKit's MiniBrowser.

import path from "node:path";
import { chromium, firefox, serve, webkit } from "./browsers.mjs";

async function playFrom(file, from) {
    while (window.play === undefined) // one engine calls a page loaded before its script has run
        await new Promise(resolve => setTimeout(resolve, 20));
    return window.play(file, from);
}

// The names that ui/ gives against what Chromium tells a screen reader of them.
async function compareTree() {
    const due = await browser.run(() => window.heard());
    const told = [];
    const walk = ({ role, name: called = "", children = [] }) => (told.push(`${role} ${called}`.trim()), children.forEach(walk));
    walk(await browser.page.accessibility.snapshot({ interestingOnly: false }));
    const missing = due.filter(each => !told.includes(each));
    return due.length > 0 ? missing.map(each => `not told: ${each}`) : ["no names to hear"];
}

const [name, folder, steps] = process.argv.slice(2);
const server = await serve(folder);
const browser = await (name === "chromium" ? chromium() : name === "firefox" ? firefox() : webkit(name));
const problems = [];
let played = 0;
for (let next = 0, load = true; next !== null;) {
    if (load)
        await browser.load(server.address);
    const stopped = await browser.run(playFrom, steps, next);
    load = stopped.key === undefined;
    if (load) {
        problems.push(...stopped.problems);
        played += stopped.played;
    } else {
        await browser.press(stopped.key, stopped.shift);
    }
    next = stopped.next;
}
if (name === "chromium")
    problems.push(...await compareTree());
await browser.close();
server.stop();
console.log(`${path.basename(name)}, ${steps}: ${played} steps of the player, ${problems.length} problems`);
for (const problem of problems)
    console.log(problem.slice(0, 500));
process.exitCode = problems.length > 0 || played === 0 ? 1 : 0;
