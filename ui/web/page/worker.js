// Keeps the game for when there is no network. A new version is taken as the page is opened, and never
// by a page that is open: the files of each version have names of their own.

const files = "@FILES@";
const kept = ["./", ...[/*KEPT*/].map(name => `${files}/${name}`)];

self.addEventListener("install", event => {
    // The page alone has the same name in every version, and what the browser has of it may be old.
    const load = kept.map(name => new Request(name, { cache: name === "./" ? "no-cache" : "force-cache" }));
    event.waitUntil(caches.open(files).then(cache => cache.addAll(load)));
});

self.addEventListener("activate", event => {
    event.waitUntil(caches.keys().then(names =>
        Promise.all(names.filter(name => name !== files).map(name => caches.delete(name)))));
});

async function openPage(request) {
    const late = new Promise((_, reject) => setTimeout(reject, 3000));
    try {
        const answer = await Promise.race([fetch(request), late]);
        if (answer.ok)
            return answer;
    } catch {
        // from what is kept
    }
    return await caches.match("./") ?? fetch(request);
}

async function openFile(request) {
    const found = await caches.match(request);
    if (found)
        return found;
    const answer = await fetch(request);
    if (answer.ok && request.url.includes(`/${files}/`))
        await (await caches.open(files)).put(request, answer.clone());
    return answer;
}

self.addEventListener("fetch", event => {
    const { request } = event;
    if (request.method !== "GET" || !request.url.startsWith(self.registration.scope))
        return;
    const isPage = [self.registration.scope, `${self.registration.scope}index.html`].includes(request.url.split(/[?#]/)[0]);
    event.respondWith(isPage ? openPage(request) : openFile(request));
});
