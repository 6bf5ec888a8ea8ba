// Every field of the record that is selected.
import type { Column, Value } from '../data/table';
import { textOf } from '../findings';
import { kindOfTable } from '../kinds';
import { fieldName } from '../text/fields';
import type { Item } from '../model';
import { nameOf, numberText, titleOf } from '../names';
import { inOrder } from './columnOrder';
import type { Context } from './context';
import { button, fill, h } from './dom';
import { meaningOf } from './meanings';

const kMostValues = 60; // of a list
const kCase = /^(NumCas|iNumCas|Num)$/;

export function makeDetails(context: Context, element: HTMLElement): void {
    const { store, model, texts } = context;
    store.on(['selected'], () => {
        const { selected } = store.state;
        const last = selected[selected.length - 1];
        const item = last === undefined ? undefined : model.itemOf(last);
        element.hidden = item === undefined;
        if (!item) return;
        const count =
            selected.length > 1
                ? h('span', { class: 'badge' }, `${selected.length} ${texts.selectedCount}`)
                : undefined;
        const title = titleOf(model, item);
        fill(
            element,
            h(
                'header',
                {},
                h('h2', {}, nameOf(model, texts, item)),
                count,
                button('×', () => context.select(undefined), {
                    class: 'plain',
                    'aria-label': texts.close,
                }),
            ),
            title ? h('p', { class: 'title' }, title) : undefined,
            actions(context, item),
            findingsOf(context, item),
            fields(context, item),
        );
    });
}

function actions(context: Context, item: Item): HTMLElement {
    const { texts, stage, store, model } = context;
    const table = model.tableOf(item.kind);
    const cases = table.columns.find((column) => kCase.test(column.name) && !column.isList);
    return h(
        'div',
        { class: 'actions' },
        item.kind.shape && stage ? button(texts.flyTo, () => context.goTo(item)) : undefined,
        cases &&
            (item.kind.isLoad || item.kind.table === 'Cas' || item.kind.table === 'Combinaisons')
            ? button(texts.showCase, () =>
                  store.change({ loadCase: cases.number(item.rank), panel: 'loads' }),
              )
            : undefined,
        button(texts.inTable, () => store.change({ table: item.kind.table })),
    );
}

function findingsOf({ findings, language }: Context, item: Item): HTMLElement | undefined {
    const own = findings.of(item.number);
    if (own.length === 0) return undefined;
    return h(
        'ul',
        { class: 'own-findings' },
        ...own
            .slice(0, 20)
            .map((finding) =>
                h(
                    'li',
                    { class: `severity-${finding.severity}` },
                    `${textOf(finding, language)} [${finding.code}]`,
                ),
            ),
    );
}

function fields(context: Context, item: Item): HTMLElement {
    const { model, texts, language } = context;
    const rows = inOrder(model.tableOf(item.kind).columns)
        .filter((column) => column.name !== 'line')
        .map((column) =>
            h(
                'tr',
                {},
                h('th', { scope: 'row', title: column.name }, fieldName(language, column.name)),
                h('td', {}, cell(context, item, column)),
            ),
        );
    const line = model.lineOf(item);
    if (line > 0)
        rows.push(h('tr', {}, h('th', { scope: 'row' }, texts.inFile), h('td', {}, line)));
    return h(
        'table',
        { class: 'fields' },
        h('caption', { class: 'unseen' }, nameOf(model, texts, item)),
        h('tbody', {}, ...rows),
    );
}

function cell(context: Context, item: Item, column: Column): Node | string {
    const { refersTo } = column;
    if (refersTo) {
        const of = kindOfTable(refersTo);
        const rank = column.number(item.rank);
        if (!of || rank < 0) return '–';
        const referred = context.model.item(of, rank);
        const title =
            titleOf(context.model, referred) || nameOf(context.model, context.texts, referred);
        return button(title, () => context.select(referred), { class: 'link' });
    }
    const value = column.value(item.rank);
    const meaning = meaningOf(context, item, column.name, value);
    const text = valueText(value);
    return meaning ? h('span', {}, text, h('span', { class: 'meaning' }, ` ${meaning}`)) : text;
}

export function valueText(value: Value): string {
    if (value === null) return '–';
    if (typeof value === 'string') return value;
    if (typeof value === 'number') return numberText(value, 12);
    if (!Array.isArray(value))
        return `(${[value.x, value.y, value.z].map((part) => numberText(part, 12)).join('; ')})`;
    const shown = value.slice(0, kMostValues).map(valueText).join(', ');
    return value.length > kMostValues ? `${shown} … (${value.length})` : shown;
}
