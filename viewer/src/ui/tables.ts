// The tables of the model below the picture.
import type { Column } from '../data/table';
import { kindOfTable, kKinds, type Kind } from '../kinds';
import { titleOf } from '../names';
import { kindName } from '../text';
import { fieldName } from '../text/fields';
import { inOrder, isCount } from './columnOrder';
import type { Context } from './context';
import { button, fill, h, newId, save } from './dom';
import { cellText, Grid } from './grid';

function columnsOf(context: Context, kind: Kind): Column[] {
    return inOrder(context.model.tableOf(kind).columns).filter((column) => !isCount(column));
}

function textOfCell(context: Context, column: Column, row: number): string {
    const { refersTo } = column;
    const of = refersTo ? kindOfTable(refersTo) : undefined;
    if (!of) return cellText(column, row);
    const rank = column.number(row);
    return rank < 0
        ? '–'
        : titleOf(context.model, context.model.item(of, rank)) || String(rank + 1);
}

export function firstTable({ model }: Context): string | undefined {
    return kKinds.find((kind) => model.tableOf(kind).rows > 0)?.table;
}

export function makeTables(context: Context, element: HTMLElement): void {
    const { store, model, texts } = context;
    const present = kKinds.filter((kind) => model.tableOf(kind).rows > 0);
    const id = newId();
    const filterId = newId();
    const choice = h(
        'select',
        { id, change: () => store.change({ table: choice.value }) },
        ...present.map((kind) =>
            h(
                'option',
                { value: kind.table },
                `${kindName(texts, kind)} (${model.tableOf(kind).rows})`,
            ),
        ),
    );
    const filter = h('input', {
        type: 'search',
        id: filterId,
        placeholder: texts.filter,
        'aria-label': texts.filter,
    });
    const count = h('span', { class: 'quiet', role: 'status' });
    const place = h('div', { class: 'grid-place' });
    let grid: Grid | undefined;
    let shown: Kind | undefined;
    let waiting: ReturnType<typeof setTimeout> | undefined;
    filter.addEventListener('input', () => {
        clearTimeout(waiting);
        waiting = setTimeout(() => grid?.setFilter(filter.value), 200);
    });
    element.append(
        h(
            'header',
            {},
            h('label', { for: id, class: 'unseen' }, texts.table),
            choice,
            filter,
            count,
            button(texts.csv, () => grid && shown && saveCsv(context, shown, grid), {
                title: texts.csvHelp,
                'aria-label': texts.csvHelp,
            }),
            button('×', () => store.change({ table: undefined }), {
                class: 'plain',
                'aria-label': texts.close,
            }),
        ),
        place,
    );
    const tell = (): void => fill(count, `${grid?.shownRows.length ?? 0} ${texts.rows}`);

    const markChosen = (): void => {
        const items = store.state.selected.map((number) => model.itemOf(number));
        grid?.setChosen(items.filter((item) => item?.kind === shown).map((item) => item!.rank));
    };

    store.on(['table'], () => {
        const kind = store.state.table === undefined ? undefined : kindOfTable(store.state.table);
        element.hidden = kind === undefined;
        if (!kind || kind === shown) return;
        shown = kind;
        choice.value = kind.table;
        filter.value = '';
        grid = new Grid({
            table: model.tableOf(kind),
            label: kindName(texts, kind),
            columns: columnsOf(context, kind),
            nameOf: (column) => fieldName(context.language, column.name),
            cellText: (column, row) => textOfCell(context, column, row),
            choose: (row, flies) => (flies ? context.goTo : context.select)(model.item(kind, row)),
        });
        grid.onArranged = tell;
        tell();
        fill(place, grid.element);
        markChosen();
    });
    // The record lights up in its table, which is turned to when tables are open.
    store.on(['selected'], () => {
        const last = store.state.selected[store.state.selected.length - 1];
        const item = last === undefined ? undefined : model.itemOf(last);
        if (item && store.state.table !== undefined && item.kind !== shown)
            store.change({ table: item.kind.table });
        markChosen();
    });
}

// What spreadsheets would take for a formula is text.
function csvCell(text: string): string {
    const safe = /^[=+@\t\r]|^-(?![\d.])/.test(text) ? `'${text}` : text;
    return /[",;\r\n]/.test(safe) ? `"${safe.replaceAll('"', '""')}"` : safe;
}

export function csvOf(
    columns: Column[],
    rows: Iterable<number>,
    textAt: (column: Column, row: number) => string,
): string {
    const lines = [columns.map((column) => csvCell(column.name)).join(',')];
    for (const row of rows)
        lines.push(columns.map((column) => csvCell(textAt(column, row))).join(','));
    return `\ufeff${lines.join('\r\n')}\r\n`; // spreadsheets know UTF-8 by its mark
}

function saveCsv(context: Context, kind: Kind, grid: Grid): void {
    const text = csvOf(columnsOf(context, kind), grid.shownRows, (column, row) =>
        textOfCell(context, column, row),
    );
    save(new Blob([text], { type: 'text/csv' }), `${kind.table}.csv`);
}
