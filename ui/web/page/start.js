// Loads the program and its word list, and starts the game on the page.

import createProgram from "./quorvel2.js";
import { Events } from "./events.js";
import { Stage } from "./stage.js";

/** @param {string} name */
async function load(name) {
    const answer = await fetch(new URL(name, import.meta.url), { credentials: "same-origin" });
    if (!answer.ok)
        throw new Error(`${name}: ${answer.status}`);
    return answer;
}

// Without a list the game says so.
async function loadWordList() {
    try {
        return new Uint8Array(await (await load("Lexicon.txt")).arrayBuffer());
    } catch {
        return null;
    }
}

/** @param {Response} answer */
async function compile(answer) {
    if (answer.headers.get("Content-Type") === "application/wasm")
        return WebAssembly.compileStreaming(answer);
    return WebAssembly.compile(await answer.arrayBuffer()); // from a server that names no kinds
}

/** @param {any} program @param {Uint8Array} bytes */
function handOver(program, bytes) {
    const place = program._malloc(bytes.length);
    program.HEAPU8.set(bytes, place);
    program._HandOverWordList(place, bytes.length);
}

async function start() {
    const list = loadWordList();
    const compiled = await compile(await load("quorvel2.wasm"));
    const stage = new Stage(document);
    const program = await createProgram({
        stage,
        /** @param {WebAssembly.Imports} imports @param {(made: WebAssembly.Instance) => void} done */
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(compiled, imports).then(done);
            return {};
        },
        onAbort: () => stage.fail("The game has stopped because of a mistake in it."),
    });
    const bytes = await list;
    if (bytes !== null && bytes.length > 0)
        handOver(program, bytes);
    stage.begin(program);
    new Events(stage, program);
    program.ccall("Begin");
}

// After the first visit the game plays without a network. On a server without https there is no worker.
if ("serviceWorker" in navigator)
    navigator.serviceWorker.register("worker.js").catch(() => {});

start().catch(error => {
    console.error(error);
    new Stage(document).fail("The game could not be loaded. This browser may be too old for it.");
});
