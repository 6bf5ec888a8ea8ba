// What `tamur check` found; each leads to what it is about.
import { type Severity, textOf } from '../findings';
import type { Context } from './context';
import { button, fill, h } from './dom';

const kStep = 100;

export function makeFindingsPanel(context: Context, element: HTMLElement): void {
    const { findings, texts } = context;
    const counts = ([2, 1, 0] as Severity[]).map((severity) => ({
        severity,
        count: findings.count(severity),
    }));
    if (counts.every(({ count }) => count === 0)) {
        element.append(h('p', { class: 'quiet' }, texts.noFindings));
        return;
    }
    let chosen: Severity | undefined;
    let shown = kStep;
    const words = (severity: Severity, count: number): string => {
        const [one, many] = (
            [
                [texts.note, texts.notes],
                [texts.warning, texts.warnings],
                [texts.error, texts.errors],
            ] as const
        )[severity];
        return count === 1 ? one.toLowerCase() : many;
    };
    const list = h('ul', { class: 'findings' });
    const rest = h('div');
    const filters = h('div', { class: 'chips', role: 'group', 'aria-label': texts.findings });
    const choose = (severity: Severity | undefined): void => {
        chosen = severity;
        shown = kStep;
        show();
    };
    const show = (): void => {
        fill(
            filters,
            button(texts.all, () => choose(undefined), {
                class: 'chip',
                'aria-pressed': String(chosen === undefined),
            }),
            ...counts
                .filter(({ count }) => count > 0)
                .map(({ severity, count }) =>
                    button(`${count} ${words(severity, count)}`, () => choose(severity), {
                        class: `chip severity-${severity}`,
                        'aria-pressed': String(chosen === severity),
                    }),
                ),
        );
        const all = findings.all.filter(
            ({ severity }) => chosen === undefined || severity === chosen,
        );
        fill(
            list,
            ...all.slice(0, shown).map((finding) => {
                const text = h('span', {}, textOf(finding, context.language));
                const about = h(
                    'span',
                    { class: 'quiet' },
                    [finding.code, finding.line > 0 ? `${texts.line} ${finding.line}` : ''].join(
                        ' · ',
                    ),
                );
                const { item } = finding;
                return h(
                    'li',
                    { class: `severity-${finding.severity}` },
                    item
                        ? h(
                              'button',
                              { type: 'button', click: () => context.goTo(item) },
                              text,
                              about,
                          )
                        : h('div', {}, text, about),
                );
            }),
        );
        fill(
            rest,
            all.length > shown
                ? button(`${texts.more} (${all.length - shown})`, () => {
                      shown += kStep;
                      show();
                  })
                : undefined,
            ...findings.notListed.map(({ code, count }) =>
                h('p', { class: 'quiet' }, `${code}: ${count} ${texts.notListed}`),
            ),
        );
    };
    element.append(filters, list, rest);
    show();
}
