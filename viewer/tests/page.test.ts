// The page in a browser.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';

import { axeFindings, clickOnModel, closeBrowser, launch, open } from './browser';
import { kHead, modelFile, output, pageOf, root, run, sample, samples } from './support';

before(launch);
after(closeBrowser);

// The words of `tamur info` for each table, as the contract has them.
function tablesByPlainName(): Map<string, string> {
    const contract = readFileSync(join(root, 'idl/TAMURReader.idl'), 'utf8');
    return new Map(
        [...contract.matchAll(/\/\/ Table (\w+): (.*)/g)].map(([, table, name]) => [name!, table!]),
    );
}

for (const name of samples) {
    test(`the counts of ${name} are those of tamur info`, async () => {
        const { page, close } = await open(pageOf(sample(name)));
        const counts = await page.evaluate(() => window.tamur.counts());
        const info = run('info', sample(name));
        let compared = 0;
        for (const [plain, table] of tablesByPlainName()) {
            const count = new RegExp(`^${plain} +(\\d+)$`, 'm').exec(info)?.[1] ?? '0';
            assert.equal(counts[table], Number(count), plain);
            ++compared;
        }
        assert.ok(compared > 20);
        // The list of kinds says the same.
        assert.match(
            await page.locator('#panel-model').innerText(),
            new RegExp(`Bars\\s+${counts.Filaires}`),
        );
        await close();
    });
}

interface Seen {
    identifier: number;
    a: { x: number; y: number; depth: number };
    b: { x: number; y: number; depth: number };
}
const distanceTo = ({ a, b }: Seen, x: number, y: number): number => {
    const [dx, dy] = [b.x - a.x, b.y - a.y];
    const t = Math.max(
        0,
        Math.min(1, ((x - a.x) * dx + (y - a.y) * dy) / (dx * dx + dy * dy || 1)),
    );
    return Math.hypot(a.x + t * dx - x, a.y + t * dy - y);
};

// So that every run tests other bars, and a failure says which.
const seed = Date.now() % 100000;
function shuffled<Value>(values: Value[]): Value[] {
    let state = seed;
    const random = (): number => (state = (state * 48271) % 2147483647) / 2147483647;
    return values
        .map((value) => ({ value, at: random() }))
        .sort((a, b) => a.at - b.at)
        .map(({ value }) => value);
}

test(`a click on the middle of a bar selects it (seed ${seed})`, async () => {
    const { page, close } = await open(pageOf(sample('batiment')));
    // Only bars, so that no symbol is in front of them.
    const others = [
        'Surfaces',
        'Openings',
        'Point supports',
        'Line supports',
        'Surface supports',
        'Masses',
        'Releases',
    ];
    for (const name of others)
        await page.getByRole('checkbox', { name: new RegExp(`^${name}`) }).uncheck();
    const identifiers = (
        JSON.parse(run('dump', sample('batiment'))) as { Filaires: { identifier: number }[] }
    ).Filaires.map((bar) => bar.identifier);
    const clicked = new Set<number>();
    // From several sides: what is behind another bar here is not there.
    for (const key of ['1', '2', '4', '1']) {
        await page.locator('#model').focus();
        await page.keyboard.press(key);
        if (clicked.size > 0) for (let i = 0; i < 3; ++i) await page.keyboard.press('ArrowLeft');
        await page.waitForTimeout(50);
        const seen = await page.evaluate(
            (all) =>
                all.map((identifier) => {
                    const [a, b] = window.tamur.project('Filaires', identifier);
                    return { identifier, a: a!, b: b! };
                }),
            identifiers,
        );
        const { width, height } = (await page.locator('#model').boundingBox())!;
        for (const bar of shuffled(seen)) {
            if (clicked.has(bar.identifier) || clicked.size >= 50) continue;
            const [x, y] = [
                Math.floor((bar.a.x + bar.b.x) / 2) + 0.5,
                Math.floor((bar.a.y + bar.b.y) / 2) + 0.5,
            ];
            const isFree = seen.every((other) => other === bar || distanceTo(other, x, y) > 3);
            // Not below the tools.
            if (!isFree || x < 0 || y < 100 || x > width || y > height) continue;
            if (clicked.size === 0) {
                const box = (await page.locator('#model').boundingBox())!;
                await page.mouse.move(box.x + x, box.y + y);
                await page.getByText(`bar ${bar.identifier}`, { exact: true }).waitFor();
            }
            await clickOnModel(page, x, y);
            const selected = await page.evaluate(() => window.tamur.selected());
            assert.deepEqual(
                selected.map((item) => `${item.table} ${item.identifier}`),
                [`Filaires ${bar.identifier}`],
            );
            clicked.add(bar.identifier);
            await page.keyboard.press('Escape');
        }
    }
    assert.ok(clicked.size >= 50, `${clicked.size} bars were clicked`);
    await close();
});

test('what is hidden, clipped or of another group is not hit', async () => {
    const { page, close } = await open(pageOf(sample('portique')));
    const hit = async (identifier: number): Promise<boolean> => {
        await page.keyboard.press('Escape');
        const [a, b] = await page.evaluate(
            (one) => window.tamur.project('Filaires', one),
            identifier,
        );
        await clickOnModel(page, 0.4 * a!.x + 0.6 * b!.x, 0.4 * a!.y + 0.6 * b!.y);
        const selected = await page.evaluate(() => window.tamur.selected());
        return selected[0]?.table === 'Filaires' && selected[0].identifier === identifier;
    };
    const dump = JSON.parse(run('dump', sample('portique'))) as {
        Filaires: { identifier: number; GroupNumber: number; startPoint: { x: number } }[];
    };
    const [first] = dump.Filaires;
    const other = dump.Filaires.find((one) => one.GroupNumber !== first!.GroupNumber)!;
    const [one, two] = [first!.identifier, other.identifier];
    assert.deepEqual([await hit(one), await hit(two)], [true, true]);
    await page.keyboard.press('h');
    assert.deepEqual([await hit(one), await hit(two)], [true, false]);
    await page.keyboard.press('i');
    await page.keyboard.press('a');
    assert.deepEqual([await hit(two), await hit(one)], [true, true]);
    // One is selected now.
    await page.keyboard.press('i');
    assert.deepEqual([await hit(one), await hit(two)], [true, false]);
    await page.keyboard.press('a');
    await page.locator('#panel-model select').selectOption('group');
    const titles = await page.locator('.list .only').evaluateAll((all) => all.length);
    assert.ok(titles >= 2);
    await page.locator('[aria-label^="Show only"]').first().focus();
    await page.keyboard.press('Enter');
    assert.equal(Number(await hit(one)) + Number(await hit(two)), 1);
    await page.keyboard.press('a');
    await page.getByRole('button', { name: 'Clip' }).click();
    await page.locator('.clip input').nth(5).fill('0'); // nothing above the lowest
    assert.deepEqual([await hit(one), await hit(two)], [false, false]);
    await page.getByRole('button', { name: 'Whole model' }).click();
    await page.getByRole('button', { name: 'Clip' }).click();
    assert.equal(await hit(one), true);
    await close();
});

test('a case shows its loads and no others', async () => {
    const { page, close } = await open(pageOf(sample('batiment')));
    const dump = JSON.parse(run('dump', sample('batiment'))) as Record<
        string,
        { identifier: number; NumCas: number }[]
    >;
    const tables = ['ChargesPonctuelles', 'ChargesLineaires', 'ChargesSurfaciques'];
    await page.getByRole('tab', { name: 'Loads' }).click();
    let shown = 0;
    for (const loadCase of [1, 2, 3, 4, 5, 6, 7, 101]) {
        await page.locator(`.case input[value="${loadCase}"]`).check();
        const loads = await page.evaluate(() => window.tamur.loads());
        const expected = tables.flatMap((table) =>
            dump[table]!.filter((load) => load.NumCas === loadCase).map(
                (load) => `${table} ${load.identifier}`,
            ),
        );
        assert.deepEqual(
            loads.map((load) => `${load.table} ${load.identifier}`).sort(),
            expected.sort(),
        );
        assert.ok(loads.every((load) => load.arrows > 0));
        shown += loads.length;
    }
    assert.ok(shown > 30);
    const detail = page.locator('.case-detail');
    assert.match(await detail.innerText(), /1\.35 ×\s*1 Poids_propre/);
    // A case of a combination leads there.
    await detail.getByRole('button', { name: '1 Poids_propre' }).click();
    assert.match(await detail.innerText(), /Self-weight\s+direction \(0; 0; -1\) on group/);
    await page.locator('.case input[value="7"]').check();
    assert.match(await detail.innerText(), /Temperature\s+20 °C/);
    await page.locator('.case input[value=""]').check();
    assert.deepEqual(await page.evaluate(() => window.tamur.loads()), []);
    await close();
});

const kHostile = '</script><img/src=x/onerror=alert(1)>';

test('what is written over the picture is there when the page opens', async () => {
    const { page, close } = await open(pageOf(sample('portique')), '#case=2');
    // The observer of the size has called by then.
    await page.waitForTimeout(500);
    const painted = await page.evaluate(() => {
        const canvas = document.querySelector<HTMLCanvasElement>('canvas.overlay')!;
        const { data, width, height } = canvas
            .getContext('2d')!
            .getImageData(0, 0, canvas.width, canvas.height);
        let [axes, values] = [0, 0];
        for (let i = 3; i < data.length; i += 4) {
            if (data[i] === 0) continue;
            const [x, y] = [((i - 3) / 4) % width, Math.floor((i - 3) / 4 / width)];
            if (x < 80 && y > height - 90) ++axes;
            else ++values;
        }
        return { axes, values };
    });
    assert.ok(painted.axes > 50 && painted.values > 50, JSON.stringify(painted));
    await close();
});

test('an address of what is missing says so', async () => {
    const { page, close } = await open(pageOf(sample('portique')), '#bar=123456&case=777');
    const notes = page.locator('#notes');
    assert.match(await notes.innerText(), /no bar 123456 in this model/);
    assert.match(await notes.innerText(), /no case 777 in this model/);
    assert.equal((await page.evaluate(() => window.tamur.state())).loadCase, undefined);
    await close();
    const french = await open(pageOf(sample('portique')), '#bar=123456', { locale: 'fr-FR' });
    assert.match(
        await french.page.locator('#notes').innerText(),
        /Introuvable dans ce modèle : filaire 123456/,
    );
    await french.close();
});

test('a record begins with what it is, and ends with what is least asked for', async () => {
    const { page, close } = await open(pageOf(sample('batiment')), '#bar=1&table=Filaires');
    await page.locator('.grid-head .sort').first().waitFor();
    const heads = (await page.locator('.grid-head .sort').allInnerTexts()).map((text) =>
        text.replace(/[^\w() ]/g, '').trim(),
    );
    const first = [
        'Number',
        'Label',
        'Type',
        'Group',
        'Section at start',
        'Section at end',
        'Material',
        'Release at start',
        'Release at end',
        'Length (whole)',
    ];
    assert.deepEqual(heads.slice(0, first.length), first);
    const item = await page.evaluate(() => window.tamur.counts().Filaires);
    assert.ok(item! > 0);
    await page.locator('.rows .grid-row').first().click();
    const fields = await page.locator('.fields th').allInnerTexts();
    assert.deepEqual(fields.slice(0, first.length), first);
    assert.deepEqual(fields.slice(-4), [
        'Remarks',
        'Centre of gravity',
        'Number of labels',
        'Line of the file',
    ]);
    await close();
});

test('the badge of findings is the sum of the chips', async () => {
    const { page, close } = await open(pageOf(sample('erreurs')));
    const badge = Number(await page.locator('#tab-findings .badge').innerText());
    await page.locator('#tab-findings').click();
    const chips = await page.locator('.chip[class*=severity]').allInnerTexts();
    assert.equal(
        chips.reduce((sum, text) => sum + parseInt(text, 10), 0),
        badge,
    );
    assert.ok(chips.some((text) => text.includes('note')));
    await close();
});

test('texts of a model are texts', async () => {
    const file = modelFile(
        'hostile-texts',
        `${kHead}#Groupes\n2 1 2 ${kHostile} O\n#Materiaux\n${kHostile} 1e10 0.2 25000 1e-5 0.05\n` +
            `#Cas\n1 ${kHostile} 1 ${kHostile} 0\n#Elements\n2 1 0 2 1 0 0 0 5 0 0 ${kHostile} 0 0 0 1 2 0 0 1 1 1 1 1 1 5\n` +
            `4 2 0 1 1 0 0 0 ${kHostile} 0 0 0 1 1 0 0 0 0 0 0 0 0\n5 3 0 1 0 2 0 0 0 0 0 1 1 0 0 -1 0 0 0\n`,
    );
    const { page, close } = await open(pageOf(file), '#bar=1&case=1&table=Filaires&show=labels');
    await page.locator('#search').fill('</script');
    await page.locator('[role=option]').first().waitFor();
    assert.match(
        await page.locator('.details').innerText(),
        /<\/script><img\/src=x\/onerror=alert\(1\)>/,
    );
    for (const tab of ['Loads', 'Findings', 'Model'])
        await page.getByRole('tab', { name: tab }).click();
    assert.equal(await page.locator('img').count(), 0);
    assert.ok(!readFileSync(pageOf(file), 'utf8').includes('<img'));
    await close();
});

test('the policy allows the page and nothing else', async () => {
    const { page, close } = await open(pageOf(sample('portique')));
    const policy = await page.locator('meta[http-equiv]').getAttribute('content');
    assert.match(
        policy!,
        /^default-src 'none'; script-src 'sha256-[^']+'; style-src 'sha256-[^']+'; base-uri 'none'; form-action 'none'$/,
    );
    const ran = await page.evaluate(() => {
        const script = document.createElement('script');
        script.textContent = 'window.intruded = true';
        document.body.append(script);
        return 'intruded' in window;
    });
    assert.equal(ran, false);
    await page.context().close();
    void close; // it would complain of what was just refused
});

test('an address leads to a view, and a view has an address', async () => {
    const path = pageOf(sample('hall'));
    const first = await open(path, '#bar=101&case=2&colour=section&show=solids&parallel=1');
    const { page } = first;
    const state = await page.evaluate(() => {
        const { loadCase, colourBy, solids, orthographic } = window.tamur.state();
        return { loadCase, colourBy, solids, orthographic, selected: window.tamur.selected() };
    });
    assert.deepEqual(state, {
        loadCase: 2,
        colourBy: 'section',
        solids: true,
        orthographic: true,
        selected: [{ table: 'Filaires', identifier: 101, rank: 0 }],
    });
    await page
        .locator('.case input[value="1"]')
        .evaluate((radio: HTMLInputElement) => radio.click());
    assert.match(page.url(), /#bar=101&case=1&colour=section&show=solids&parallel=1$/);
    // With the eye: the same picture elsewhere.
    await page.locator('#model').focus();
    for (const key of ['ArrowLeft', 'ArrowUp', '+']) await page.keyboard.press(key);
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    await page.getByRole('button', { name: 'Link' }).click();
    await page.getByText('was copied').or(page.getByText('The address of this view:')).waitFor();
    const address = await page.evaluate(() => navigator.clipboard.readText());
    assert.match(address, /&eye=/);
    const at = await page.evaluate(() => window.tamur.project('Filaires', 110));
    await first.close();
    const second = await open(path, `#${address.split('#')[1]}`);
    const there = await second.page.evaluate(() => window.tamur.project('Filaires', 110));
    at.forEach((point, i) =>
        assert.ok(Math.hypot(point!.x - there[i]!.x, point!.y - there[i]!.y) < 1),
    );
    // Another address in the same page.
    await second.page.evaluate(() => (location.hash = '#node=1&case=none'));
    await second.page.waitForFunction(() => window.tamur.selected()[0]?.table === 'Nodes');
    await second.close();
    const nonsense = await open(
        path,
        '#bar=999999&case=x&eye=1,2&colour=none&table=None&<script>=1',
    );
    assert.deepEqual(await nonsense.page.evaluate(() => window.tamur.selected()), []);
    await nonsense.close();
});

test('the tables sort, search, and lead to the model by the keyboard alone', async () => {
    const { page, close } = await open(pageOf(sample('batiment')));
    await page.keyboard.press('t');
    const grid = page.getByRole('grid');
    await grid.focus();
    await page.keyboard.press('End');
    await page.keyboard.press('ArrowUp');
    await page.keyboard.press('Enter');
    const [selected] = await page.evaluate(() => window.tamur.selected());
    assert.deepEqual([selected?.table, selected?.rank], ['Filaires', 61]);
    assert.equal(await page.locator('.grid-row.chosen').count(), 1);
    await page.getByRole('columnheader', { name: 'Number' }).getByRole('button').press('Enter');
    await page.getByRole('columnheader', { name: 'Number' }).getByRole('button').press('Enter');
    const identifiers = (
        JSON.parse(run('dump', sample('batiment'))) as { Filaires: { identifier: number }[] }
    ).Filaires.map((bar) => bar.identifier);
    assert.equal(
        await page.locator('.rows [role=gridcell]').first().innerText(),
        String(Math.max(...identifiers)),
    );
    await page.getByRole('searchbox', { name: 'Filter' }).fill('RDC-L5');
    await page.getByText('1 rows').waitFor();
    const download = page.waitForEvent('download');
    await page.getByRole('button', { name: 'Save the table as CSV' }).click();
    const csv = output('Filaires.csv');
    await (await download).saveAs(csv);
    const lines = readFileSync(csv, 'utf8').trim().split('\r\n');
    assert.equal(lines.length, 2);
    assert.match(lines[0]!, /^\ufeff?identifier,ElemLabels\.tabLabels,/);
    assert.match(lines[1]!, /,RDC-L5,/);
    await page.keyboard.press('Escape');
    await page.locator('#model').focus();
    await page.keyboard.press('/');
    await page.keyboard.type('N1-LI');
    await page.locator('[role=option]').first().waitFor();
    await page.keyboard.press('Enter');
    assert.equal((await page.evaluate(() => window.tamur.selected()))[0]?.identifier, 308);
    await close();
});

test('the keys turn, hide, isolate and show', async () => {
    const { page, close } = await open(pageOf(sample('batiment')), '#bar=101');
    const where = () => page.evaluate(() => window.tamur.project('Filaires', 101)[0]!);
    await page.locator('#model').focus();
    for (const key of ['ArrowLeft', 'ArrowUp', 'Shift+ArrowRight', '+', '-', '2', '6', 'p', 'f']) {
        const before_ = await where();
        await page.keyboard.press(key);
        await page.waitForTimeout(30);
        const now = await where();
        assert.ok(Math.hypot(now.x - before_.x, now.y - before_.y) > 0.5 || key === 'f', key);
    }
    await page.keyboard.press('i');
    assert.equal(await page.evaluate(() => window.tamur.state().isolated?.size), 1);
    await page.keyboard.press('a');
    await page.keyboard.press('h');
    assert.deepEqual(
        await page.evaluate(() => [
            window.tamur.state().isolated,
            window.tamur.state().hiddenItems.size,
            window.tamur.selected().length,
        ]),
        [null, 1, 0].map((value) => value ?? undefined),
    );
    await page.keyboard.press('?');
    assert.ok(await page.locator('dialog').isVisible());
    await page.keyboard.press('Escape');
    await close();
});

test('findings are listed, and lead to what they are about', async () => {
    const { page, close } = await open(pageOf(sample('erreurs')), '', { locale: 'fr-FR' });
    assert.equal(await page.locator('html').getAttribute('lang'), 'fr');
    await page.getByRole('tab', { name: 'Constats' }).click();
    const found = JSON.parse(
        run('check', '--format', 'json', '--exit-zero', '--all', sample('erreurs')),
    ) as { files?: { findings: unknown[] }[]; findings?: unknown[] };
    const count = found.files
        ? found.files.flatMap((file) => file.findings).length
        : found.findings!.length;
    assert.equal(await page.locator('.findings li').count(), count);
    await page.locator('.findings button', { hasText: 'TMR420' }).click();
    assert.deepEqual(
        await page.evaluate(() =>
            window.tamur.selected().map((item) => [item.table, item.identifier]),
        ),
        [['AppuisPonctuels', 44]],
    );
    await close();
});

test('what is measured is the distance', async () => {
    const { page, close } = await open(pageOf(sample('portique')));
    await page.keyboard.press('m');
    await page.keyboard.press('t');
    await page.getByLabel('Table', { exact: true }).selectOption('AppuisPonctuels');
    for (const row of [0, 1]) await page.locator('.rows .grid-row').nth(row).click();
    assert.match(await page.locator('.measure').innerText(), /Distance 20 m/);
    await page.keyboard.press('Escape');
    assert.ok(await page.locator('.measure').isHidden());
    await close();
});

test('the picture can be saved, and shows something', async () => {
    const { page, close } = await open(pageOf(sample('hall')));
    const download = page.waitForEvent('download');
    await page.getByRole('button', { name: 'Picture' }).click();
    const path = output('model.png');
    await (await download).saveAs(path);
    const { width, height } = (await page.locator('#model').boundingBox())!;
    const png = readFileSync(path);
    assert.deepEqual(
        [png.readUInt32BE(16), png.readUInt32BE(20)],
        [Math.round(width), Math.round(height)],
    );
    assert.ok(png.length > 20000);
    await close();
});

for (const [name, options] of Object.entries({
    light: {},
    dark: { colorScheme: 'dark' as const, locale: 'fr-FR' },
    phone: { viewport: { width: 360, height: 740 }, hasTouch: true },
    'zoom of 400 %': { viewport: { width: 320, height: 256 } },
})) {
    test(`axe-core has no serious finding: ${name}`, async () => {
        const { page, close } = await open(
            pageOf(sample('erreurs')),
            '#bar=10&table=Filaires&colour=group',
            options,
        );
        await page.locator('#search').fill('1');
        await page.locator('[role=option]').first().waitFor();
        assert.deepEqual(await axeFindings(page), []);
        await page.keyboard.press('Escape');
        await page.locator('#tab-loads').click();
        await page.locator('.case input').nth(1).check();
        await page.locator('.top-actions button').last().click();
        assert.deepEqual(await axeFindings(page), []);
        await page.keyboard.press('Escape');
        await page.locator('#tab-findings').click();
        assert.deepEqual(await axeFindings(page), []);
        // Nothing is wider than the page.
        const [width, inner] = await page.evaluate(() => [
            document.documentElement.scrollWidth,
            window.innerWidth,
        ]);
        assert.ok(width! <= inner!, `${width} in ${inner}`);
        await close();
    });
}

test('the page works inside of another one, as in a notebook', async () => {
    const { page, close } = await open(pageOf(sample('portique')));
    const html = readFileSync(pageOf(sample('hall')), 'utf8');
    const outside = await page.context().newPage();
    const troubles: string[] = [];
    outside.on('pageerror', (error) => troubles.push(String(error)));
    outside.on('console', (message) => message.type() === 'error' && troubles.push(message.text()));
    await outside.setContent('<iframe id="inside" style="width: 900px; height: 600px"></iframe>');
    await outside
        .locator('#inside')
        .evaluate((frame: HTMLIFrameElement, text) => (frame.srcdoc = text), html);
    const inside = outside.frameLocator('#inside');
    await inside.locator('#tab-loads').click();
    await inside.locator('.case input[value="2"]').check();
    await inside.getByText('Case 2 · Neige').waitFor();
    assert.deepEqual(troubles, []);
    await close();
});

test('without WebGL the tables remain', async () => {
    const { page, close } = await open(pageOf(sample('hall')), '', {
        script: () => {
            const { getContext } = HTMLCanvasElement.prototype;
            HTMLCanvasElement.prototype.getContext = function (
                this: HTMLCanvasElement,
                kind: string,
                ...rest: unknown[]
            ) {
                return kind.startsWith('webgl')
                    ? null
                    : (getContext as (...all: unknown[]) => unknown).call(this, kind, ...rest);
            } as typeof getContext;
        },
    });
    assert.match(await page.locator('.no-picture').innerText(), /WebGL/);
    await page.locator('.rows .grid-row').nth(3).click();
    assert.equal((await page.evaluate(() => window.tamur.selected())).length, 1);
    await page.getByRole('tab', { name: 'Loads' }).click();
    await page.locator('.case input').nth(2).check();
    assert.deepEqual(await axeFindings(page), []);
    await page.context().close();
    void close; // the library says itself that there is no context
});
