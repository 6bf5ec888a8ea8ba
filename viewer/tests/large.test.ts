// A large model: how large its page is, and how soon it is seen.
import assert from 'node:assert/strict';
import { readFileSync, statSync } from 'node:fs';
import { after, before, test } from 'node:test';

import { clickOnModel, closeBrowser, launch, open } from './browser';
import { bar, kHead, modelFile, pageOf } from './support';

before(launch);
after(closeBrowser);

function frame(count: number): string {
    const lines: string[] = [];
    const side = Math.ceil((count / 3) ** (1 / 3));
    for (let i = 0; lines.length < count; ++i) {
        const [x, y, z] = [i % side, Math.floor(i / side) % side, Math.floor(i / side / side)];
        const at = (dx: number, dy: number, dz: number): string =>
            `${(x + dx) * 6} ${(y + dy) * 5.5} ${((z + dz) * 3.2).toFixed(1)}`;
        for (const end of [at(1, 0, 0), at(0, 1, 0), at(0, 0, 1)]) {
            if (lines.length < count)
                lines.push(bar(lines.length + 1, at(0, 0, 0), end, `B${lines.length + 1}`));
        }
    }
    return `${kHead}#Elements\n${lines.join('\n')}\n`;
}

test('250,000 bars are 3 MB at most, seen, and found by a click', async (t) => {
    const path = pageOf(modelFile('large', frame(250000)));
    assert.ok(statSync(path).size <= 3e6, `${statSync(path).size} bytes`);
    assert.ok(readFileSync(path, 'utf8').replace(/id="data">[^<]*/, '').length <= 8e5);
    const began = performance.now();
    const { page, close } = await open(path);
    // That of the browser's page waits until all is drawn.
    await page.screenshot({ clip: { x: 700, y: 400, width: 10, height: 10 } });
    const seen = Math.round(performance.now() - began);
    const { width, height } = (await page.locator('#model').boundingBox())!;
    await clickOnModel(page, width / 2, height / 2);
    assert.equal((await page.evaluate(() => window.tamur.selected())).length, 1);
    await close();
    // Told, not judged: it depends on the machine (docs/view.md).
    t.diagnostic(`${statSync(path).size} bytes, seen after ${seen} ms`);
});
