// Models that are hostile or far away.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { clickOnModel, closeBrowser, launch, open } from './browser';
import { bar, kHead, modelFile, pageOf } from './support';

before(launch);
after(closeBrowser);

test('a model without elements opens, and says so', async () => {
    const { page, close } = await open(pageOf(modelFile('empty', kHead)));
    assert.match(await page.locator('#notes').innerText(), /no elements/);
    await close();
});

test('what cannot be shown is said, and the rest is shown', async () => {
    const lines = [
        bar(1, '0 0 0', '5 0 0'),
        bar(2, '0 0 0', '1e300 0 0'),
        bar(3, '-1e300 0 0', '1e300 1 1'),
        '3 4 0 2 1 0 0 0 1 1 1 P 0 0 0 1 3 1 1 4 4 0.2 0 0',
        '3 5 0 0 0 0 0 0 1 3 1 1 4 4 0.2 0 0',
        '17 6 0 2 1 0 0 0 1 1 1 P 0 0 0 4 4',
        '20 7 0 1 1 0 0 0 P 0 0 0 0 N N 0',
        '4 8 0 1 1 1e30 0 0 A 0 0 0 1 1 0 0 1e400 1 1 0 0 0',
        '3 9 0 4 1 0 0 0 1 0 0 2 0 0 3 0 0 P 0 0 0 1 3 1 1 4 4 1e300 0 0',
        '7 10 0 3 0 0 0 0 1 0 0 0 1 0 0 0 0 1 1 1e300 -1e300 1e300 1e300 0 -1',
        '6 11 0 2 0 0 0 0 0 0 0 0 0 0 1 2 1e308 1e308 1e308 0 0 0 0 0',
        '5 12 0 1 0 0 0 0 0 0 0 1 2 1e308 1e308 1e308 0 0 0',
        '9 13 0 1 1 1e9 0 0 M 0 0 0 1 1 1 1 1 1',
    ];
    const file = modelFile(
        'hostile-places',
        `${kHead}#Cas\n1 A 1 A 0\n#Elements\n${lines.join('\n')}\n`,
    );
    for (const hash of [
        '',
        '#bar=3&case=1&show=solids.thickness.axes.labels',
        '#surface=4&parallel=1',
    ]) {
        const { page, close } = await open(pageOf(file), hash);
        const notes = await page.locator('#notes').innerText();
        assert.match(notes, /2 Bars cannot be shown/);
        assert.match(notes, /2 Surfaces cannot be shown/);
        await page.keyboard.press('f');
        const seen = await page.evaluate(() => window.tamur.project('Filaires', 1));
        assert.ok(seen.every((point) => Number.isFinite(point?.x)));
        await close();
    }
});

test('a million labels open', async () => {
    const lines: string[] = [];
    for (let i = 0; i < 200; ++i) {
        lines.push(
            `1 ${i} 0 1 5000 ${i} 0 0 ${Array.from({ length: 5000 }, (_, k) => `L${i}.${k}`).join(' ')} 0 0 0 0`,
        );
    }
    const { page, close } = await open(
        pageOf(modelFile('labels', `${kHead}#Elements\n${lines.join('\n')}\n`)),
        '#node=7&table=Nodes&show=labels',
    );
    await page.locator('#search').fill('L199.4999');
    await page.locator('[role=option]').first().waitFor();
    await page.keyboard.press('Enter');
    assert.equal((await page.evaluate(() => window.tamur.selected()))[0]?.identifier, 199);
    await close();
});

test('a model with 150,000 cases opens, and each of them can be reached', async () => {
    const cases = Array.from({ length: 150000 }, (_, i) => `${i + 1} C${i + 1} 1 A 0`);
    const loads = ['5 12 0 1 0 0 0 0 0 0 0 149999 1 0 0 -1000 0 0 0'];
    const file = modelFile(
        'cases',
        `${kHead}#Cas\n${cases.join('\n')}\n#Elements\n${bar(1, '0 0 0', '5 0 0')}\n${loads.join('\n')}\n`,
    );
    const { page, close } = await open(pageOf(file), '#case=140000');
    await page.getByRole('tab', { name: 'Loads' }).click();
    assert.equal((await page.evaluate(() => window.tamur.counts())).Cas, 150000);
    const entries = page.locator('.cases input');
    assert.ok((await entries.count()) < 400);
    assert.equal(await page.locator('.cases input:checked').inputValue(), '140000');
    await page.getByRole('button', { name: 'Show more' }).click();
    assert.ok((await entries.count()) > 500);
    await page.getByPlaceholder('Filter by number or title').fill('149999');
    await page.locator('.cases input[value="149999"]').check();
    assert.equal((await page.evaluate(() => window.tamur.state())).loadCase, 149999);
    assert.equal((await page.evaluate(() => window.tamur.loads())).length, 1);
    await close();
});

// Else what is selected would cover what is beside it.
const kThin = '#Geometries\nFIL 1e-5 1 1 1e-9 1e-9 1e-9 1 1 1 1 1 0 C 0.001\n';

test('a thousand kilometres from the origin a centimetre is a centimetre', async () => {
    const lines = [
        bar(1, '1000000 2000000 0', '1000002 2000000 0'),
        bar(2, '1000000 2000000.01 0', '1000002 2000000.01 0'),
        bar(3, '1000000 2000000.02 0', '1000002 2000000.02 0'),
    ];
    const { page, close } = await open(
        pageOf(modelFile('far', `${kHead}${kThin}#Elements\n${lines.join('\n')}\n`)),
        '#parallel=1',
    );
    await page.keyboard.press('6');
    await page.locator('#model').focus();
    for (let i = 0; i < 4; ++i) await page.keyboard.press('+');
    await page.waitForTimeout(100);
    for (const identifier of [2, 1, 3]) {
        const [a, b] = await page.evaluate(
            (wanted) => window.tamur.project('Filaires', wanted),
            identifier,
        );
        await clickOnModel(page, (a!.x + b!.x) / 2, (a!.y + b!.y) / 2);
        assert.equal(
            (await page.evaluate(() => window.tamur.selected()))[0]?.identifier,
            identifier,
        );
    }
    const [first, second] = await Promise.all(
        [1, 2].map((wanted) =>
            page.evaluate((one) => window.tamur.project('Filaires', one)[0]!, wanted),
        ),
    );
    const [start, end] = await page.evaluate(() => window.tamur.project('Filaires', 1));
    const perMetre = Math.hypot(end!.x - start!.x, end!.y - start!.y) / 2;
    assert.ok(
        Math.abs(Math.hypot(first!.x - second!.x, first!.y - second!.y) / perMetre - 0.01) < 1e-5,
    );
    await close();
});
