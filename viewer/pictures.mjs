// Pictures of the samples as `tamur view` shows them, for the documents. Run by `./dev pictures`.
import { execFileSync } from 'node:child_process';
import { mkdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const root = join(dirname(fileURLToPath(import.meta.url)), '..');
const { chromium } = await import(
    join(root, 'build/viewer/node_modules/playwright-core/index.mjs')
);
const output = join(root, 'docs/pictures');
const pages = join(root, 'build/viewer/pictures');
for (const folder of [output, pages]) mkdirSync(folder, { recursive: true });

// The sample, the address of the view, the panel beside it, and the key of the standard view.
const pictures = [
    { name: 'portique', hash: '#case=2&show=solids', panel: 'loads', key: '2' },
    { name: 'hall', hash: '#colour=section&show=solids', panel: 'model' },
    { name: 'batiment', hash: '#surface=301&case=3', panel: 'loads', theme: 'dark' },
];

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox'],
});
for (const { name, hash, panel, theme = 'light', key = '1' } of pictures) {
    const file = join(pages, `${name}.html`);
    execFileSync(join(root, 'build/native/tamur'), [
        'view',
        join(root, 'samples', `${name}.txt`),
        '-o',
        file,
    ]);
    const page = await browser.newPage({
        viewport: { width: 1200, height: 720 },
        colorScheme: theme,
        locale: 'en-GB',
    });
    await page.goto(pathToFileURL(file).href + hash);
    await page.waitForFunction(() => document.documentElement.dataset.ready === 'yes');
    await page.click(`#tab-${panel}`);
    await page.locator('#model').focus();
    await page.keyboard.press(key);
    await page.mouse.move(0, 0);
    await page.evaluate(() => document.activeElement.blur());
    await page.waitForTimeout(500);
    await page.screenshot({ path: join(output, `${name}.png`) });
}
await browser.close();
