// Pages in a browser, and all that they may not do.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { type Browser, type BrowserContextOptions, chromium, type Page } from 'playwright-core';

import type { State } from '../src/state';
import { root } from './support';

// What the page tells of itself.
export interface Tamur {
    state: () => State;
    counts: () => Record<string, number>;
    project: (
        table: string,
        identifier: number,
    ) => ({ x: number; y: number; depth: number } | undefined)[];
    selected: () => { table: string; identifier: number; rank: number }[];
    loads: () => { table: string; identifier: number; arrows: number }[];
}
declare global {
    interface Window {
        tamur: Tamur;
    }
}

let browser: Browser | undefined;

export async function launch(): Promise<void> {
    browser = await chromium.launch({
        executablePath: '/usr/bin/chromium',
        args: ['--no-sandbox'],
    });
}
export async function closeBrowser(): Promise<void> {
    await browser?.close();
}

export interface OpenPage {
    page: Page;
    // Fails when the page asked for anything but itself, or complained.
    close: () => Promise<void>;
}

export async function open(
    path: string,
    hash = '',
    options: BrowserContextOptions & { script?: () => void } = {},
): Promise<OpenPage> {
    const { script, ...contextOptions } = options;
    const context = await browser!.newContext({
        viewport: { width: 1280, height: 800 },
        locale: 'en-GB',
        ...contextOptions,
    });
    const page = await context.newPage();
    const address = `file://${path}`;
    const troubles: string[] = [];
    page.on('request', (request) => {
        const url = request.url().split('#')[0]!;
        if (url !== address && !url.startsWith('blob:')) troubles.push(`request of ${url}`);
    });
    page.on('console', (message) => message.type() === 'error' && troubles.push(message.text()));
    page.on('pageerror', (error) => troubles.push(String(error)));
    page.on('dialog', (dialog) => {
        troubles.push(`dialog ${dialog.message()}`);
        void dialog.dismiss();
    });
    if (script) await page.addInitScript(script);
    await page.goto(address + hash);
    await page.waitForFunction(() => document.documentElement.dataset.ready === 'yes');
    return {
        page,
        close: async () => {
            assert.deepEqual(troubles, []);
            await context.close();
        },
    };
}

// The canvas on the page.
export async function clickOnModel(page: Page, x: number, y: number): Promise<void> {
    const box = (await page.locator('#model').boundingBox())!;
    await page.mouse.click(box.x + x, box.y + y);
}

const axe = readFileSync(join(root, 'build/viewer/node_modules/axe-core/axe.min.js'), 'utf8');

// Serious and critical findings of axe-core.
export async function axeFindings(page: Page): Promise<string[]> {
    await page.evaluate(axe);
    return page.evaluate(async () => {
        type Result = {
            violations: {
                id: string;
                impact: string;
                nodes: { html: string; failureSummary: string }[];
            }[];
        };
        const run = (window as unknown as { axe: { run: () => Promise<Result> } }).axe;
        const { violations } = await run.run();
        return violations
            .filter(({ impact }) => impact === 'serious' || impact === 'critical')
            .map(
                ({ id, nodes }) =>
                    `${id}: ${nodes
                        .slice(0, 3)
                        .map((node) => `${node.html} ${node.failureSummary}`)
                        .join(' ')}`,
            );
    });
}
