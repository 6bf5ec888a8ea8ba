// Reads the built site and opens it in Chromium, from its folder and without a network: nothing comes
// from elsewhere, every link leads somewhere, no text is taken for a tag, the search finds, pages fit a
// telephone.
// usage: node site/check_site.mjs [PICTURES]       a folder for pictures of some pages
import { readdirSync, readFileSync } from 'node:fs';
import { dirname, join, relative, resolve } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const root = join(dirname(fileURLToPath(import.meta.url)), '..');
const site = join(root, 'build/site');
const playwright = join(root, 'build/viewer/node_modules/playwright-core/index.mjs');
const { chromium } = await import(playwright);
const pictures = process.argv[2];
const troubles = [];

const files = readdirSync(site, { recursive: true }).map((name) => join(site, name));
const texts = new Map(
    files
        .filter((name) => /\.(html|css)$/.test(name))
        .map((name) => [name, readFileSync(name, 'utf8')]),
);
const pages = [...texts.keys()].filter(
    (name) => name.endsWith('.html') && !name.endsWith('404.html'),
);

// What a browser would fetch of itself: not where a click leads.
const FOREIGN = [
    /<(?:script|img|iframe|source|video|audio|embed|input)\b[^>]*\bsrc(?:set)?=["'][^"']*\/\/[^"']*["']/gi,
    /<link\b(?![^>]*\brel=["']?canonical)[^>]*\bhref=["']?(?:https?:)?\/\/[^>]*>/gi,
    /<object\b[^>]*\bdata=["']?(?:https?:)?\/\/[^>]*>/gi,
    /url\(\s*["']?(?:https?:)?\/\/[^)]*\)/gi,
    /@import[^;]*\/\/[^;]*/gi,
];
for (const [name, text] of texts) {
    for (const pattern of FOREIGN) {
        for (const found of text.match(pattern) ?? [])
            troubles.push(`${relative(site, name)}: from elsewhere: ${found}`);
    }
}

const anchorsOf = new Map(
    pages.map((name) => [
        name,
        new Set([...texts.get(name).matchAll(/\sid=["']?([^"'\s>]+)/g)].map((match) => match[1])),
    ]),
);
const known = new Set(files);
for (const name of pages) {
    for (const [, address] of texts.get(name).matchAll(/<a\b[^>]*\bhref=["']([^"']+)["']/g)) {
        if (/^\w+:/.test(address)) continue;
        const [path, anchor] = address.split('#').map(decodeURIComponent);
        let file = path ? resolve(dirname(name), path) : name;
        if (file === site || path === '.') file = join(site, 'index.html');
        if (!known.has(file)) troubles.push(`${relative(site, name)}: leads nowhere: ${address}`);
        else if (anchor && !anchorsOf.get(file)?.has(anchor) && anchor !== '__toc')
            troubles.push(`${relative(site, name)}: no such heading: ${address}`);
    }
}

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox'],
});

async function open(width, height = 900) {
    const context = await browser.newContext({ viewport: { width, height }, offline: true });
    const page = await context.newPage();
    page.on('request', (request) => {
        if (!/^(file|data|blob):/.test(request.url()))
            troubles.push(`${page.url()}: asked for ${request.url()}`);
    });
    page.on('requestfailed', (request) => {
        // What a page is left for before it has come is no failure.
        if (request.failure().errorText !== 'net::ERR_ABORTED')
            troubles.push(`${page.url()}: no ${request.url()}`);
    });
    page.on('pageerror', (error) => troubles.push(`${page.url()}: ${error.message}`));
    page.on('console', (message) => {
        if (message.type() === 'error') troubles.push(`${page.url()}: ${message.text()}`);
    });
    return page;
}

const addressOf = (name) => `${pathToFileURL(site).href}/${name}`;

// Every page on a telephone: what is too wide scrolls in itself, never the page. A tag that HTML does not
// have is text with an angle that was not escaped, and is not shown.
const narrow = await open(390);
for (const name of pages) {
    await narrow.goto(pathToFileURL(name).href);
    const tooWide = await narrow.evaluate(
        () => document.documentElement.scrollWidth - window.innerWidth,
    );
    if (tooWide > 0) troubles.push(`${relative(site, name)}: ${tooWide} pixels too wide`);
    const unknown = await narrow.evaluate(() =>
        [...document.querySelectorAll('*')]
            .filter((one) => one instanceof HTMLUnknownElement || one.localName.includes('-'))
            .map((one) => one.localName),
    );
    for (const tag of unknown) troubles.push(`${relative(site, name)}: no tag of HTML: <${tag}>`);
}

// A word, a code, a record, each found as a reader would.
const wide = await open(1400);
for (const [from, words, target] of [
    ['index.html', 'relaxation', 'reference/records.html'],
    ['check.html', 'TMR402', 'check/model.html#tmr402-part-without-a-support'],
    ['hosts/cpp.html', 'GetNodeAtRank', 'reference/contract.html#itmrnodeaccessor'],
    ['reference/c.html', 'CreateReader', 'reference/cpp.html#tamurcomponent'],
]) {
    await wide.goto(addressOf(from));
    await wide.click('.md-search__input');
    await wide.locator('.md-search-result__meta', { hasText: 'Type to start' }).waitFor();
    await wide.keyboard.type(words);
    const [path, anchor] = target.split(/(?=#)/);
    const to = `[href*="${path}"]${anchor ? `[href$="${anchor}"]` : ''}`;
    const result = wide.locator(`.md-search-result__link${to}`).first();
    try {
        await result.waitFor({ state: 'attached', timeout: 10000 });
    } catch {
        troubles.push(`${from}: the search for ${words} does not find ${target}`);
        continue;
    }
    if (pictures && words === 'TMR402')
        await wide.screenshot({ path: join(pictures, 'search.png') });
    await wide.goto(await result.evaluate((link) => link.href));
    if (!(await wide.locator('article').innerText()).includes(words))
        troubles.push(`${target}: it does not hold ${words}, which led to it`);
}

if (pictures) {
    for (const [name, address] of [
        ['start', 'index.html'],
        ['record', 'reference/records.html#tmrfilaire'],
        ['code', 'check/file.html#tmr102-misspelt-header'],
        ['host', 'hosts/c.html'],
        ['export', 'export.html#what-each-kind-holds'],
    ]) {
        for (const [page, size] of [
            [wide, 'wide'],
            [narrow, 'narrow'],
        ]) {
            await page.goto(addressOf(address));
            await page.waitForTimeout(300);
            await page.screenshot({ path: join(pictures, `${name}-${size}.png`) });
        }
    }
}
await browser.close();

for (const trouble of new Set(troubles)) console.error(trouble);
console.log(`${pages.length} pages, ${new Set(troubles).size} troubles`);
process.exitCode = troubles.length ? 1 : 0;
