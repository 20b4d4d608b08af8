// Loads the program and starts it on the page.
"use strict";

const loading = document.getElementById("loading");
const bar = loading.querySelector("progress");
const board = document.getElementById("board");
const fonts = ["LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf", "LiberationSerif-Regular.ttf",
    "LiberationSerif-Bold.ttf"];

function say(text) {
    loading.hidden = false;
    loading.querySelector("p").textContent = text;
}

function fail(text) {
    board.remove();
    bar.remove();
    say(text);
}

function canRun() {
    return typeof WebAssembly === "object" && typeof BigInt === "function"
        && typeof TransformStream === "function"
        && document.createElement("canvas").getContext("webgl") !== null;
}

async function load(name) {
    const answer = await fetch(name);
    if (!answer.ok)
        throw new Error(`${name}: ${answer.status}`);
    return answer;
}

// The bar follows the pieces of the program as they come. The browser compiles them meanwhile.
async function loadProgram() {
    const count = new TransformStream({
        transform(piece, onward) {
            bar.value += piece.length;
            onward.enqueue(piece);
        },
    });
    return new Response((await load("quorvel2.wasm")).body.pipeThrough(count),
        { headers: { "Content-Type": "application/wasm" } });
}

// A file that cannot be had is left out: the program says so when it needs it.
async function loadFile(name, place) {
    try {
        return { place, bytes: new Uint8Array(await (await load(name)).arrayBuffer()) };
    } catch {
        return { place, bytes: null };
    }
}

async function start() {
    say("The game is loading.");
    bar.hidden = false;
    const program = WebAssembly.compileStreaming(loadProgram());
    const files = await Promise.all([loadFile("Lexicon.txt", "/share/quorvel2/Lexicon.txt"),
        ...fonts.map(name => loadFile(`fonts/${name}`, `/share/fonts/${name}`))]);
    const compiled = await program;
    loading.hidden = true;
    board.hidden = false;
    await createQtAppInstance({
        qtContainerElements: [board],
        showCaption(caption) {
            document.title = caption;
            document.querySelector("h1").textContent = caption;
        },
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(compiled, imports).then(done);
            return {};
        },
        preRun(module) {
            for (const { place, bytes } of files.filter(file => file.bytes)) {
                module.FS.mkdirTree(place.replace(/\/[^/]*$/, ""));
                module.FS.writeFile(place, bytes);
            }
        },
        quit(status, stop) {
            board.remove(); // nothing of the program may be clicked any more
            location.replace("ended.html");
            throw stop;
        },
        onAbort() {
            fail("The game has stopped because of a mistake in it. Load the page to start again.");
        },
    });
}

if (canRun())
    start().catch(() => fail("The game could not be loaded. Load the page to try again."));
else
    fail("This browser cannot run the game. It needs WebAssembly and WebGL, which the browsers of"
        + " the last years have; WebGL may be switched off.");
