// A table of records of which only the rows in sight are made.
import type { Column, Table } from '../data/table';
import { h, newId } from './dom';
import { valueText } from './details';

const kRow = 26; // pixels, as in the style
const kTallest = 8e6; // browsers place nothing below some tens of millions of pixels
const kWidestText = 28;

export interface GridOptions {
    table: Table;
    label: string;
    columns: Column[];
    nameOf: (column: Column) => string;
    cellText: (column: Column, row: number) => string;
    choose: (row: number, flies: boolean) => void;
}

export class Grid {
    readonly element: HTMLElement;
    private order: Int32Array;
    private sorted: { column: Column; isDescending: boolean } | undefined;
    private filter = '';
    private current = -1; // a row of the table
    private chosen = new Set<number>();
    private readonly body = h('div', { class: 'rows' });
    private readonly tall = h('div', { class: 'tall' });
    private readonly head = h('div', {
        role: 'row',
        class: 'grid-row grid-head',
        'aria-rowindex': '1',
    });
    private readonly scroller: HTMLElement;
    private readonly identifier = newId();
    private readonly numeric: Set<Column>;

    constructor(private readonly options: GridOptions) {
        const { table, columns } = options;
        this.order = Int32Array.from({ length: table.rows }, (_, row) => row);
        this.numeric = new Set(
            columns.filter(
                (column) =>
                    !column.isList &&
                    !column.refersTo &&
                    (column.type === 'int' || column.type === 'real'),
            ),
        );
        const widths = this.widths();
        this.scroller = h(
            'div',
            {
                class: 'grid',
                role: 'grid',
                tabindex: '0',
                'aria-label': options.label,
                'aria-rowcount': table.rows + 1,
                'aria-colcount': columns.length,
                scroll: () => this.show(),
                keydown: (event: KeyboardEvent) => this.onKey(event),
            },
            this.head,
            this.tall,
        );
        this.scroller.style.setProperty('--columns', widths.map((width) => `${width}ch`).join(' '));
        this.tall.append(this.body);
        this.tall.setAttribute('role', 'presentation');
        this.body.setAttribute('role', 'rowgroup');
        this.element = this.scroller;
        this.makeHead();
        new ResizeObserver(() => this.show()).observe(this.scroller);
    }

    get shownRows(): Int32Array {
        return this.order;
    }

    setFilter(filter: string): void {
        this.filter = filter.trim().toLowerCase();
        this.arrange();
    }

    // Marks these rows; the last one is brought into sight.
    setChosen(rows: number[]): void {
        this.chosen = new Set(rows);
        const last = rows[rows.length - 1];
        if (last !== undefined) this.setCurrent(last);
        else this.show();
    }

    private setCurrent(row: number): void {
        this.current = row;
        const place = this.order.indexOf(row);
        if (place >= 0) {
            const top = place * this.step;
            const { scrollTop, clientHeight } = this.scroller;
            if (top < scrollTop) this.scroller.scrollTop = top;
            else if (top + 2 * kRow > scrollTop + clientHeight)
                this.scroller.scrollTop = top + 2 * kRow - clientHeight;
        }
        this.show();
    }

    // Pixels of scrolling a row: less than its height where there are too many.
    private get step(): number {
        return Math.min(kRow, kTallest / Math.max(1, this.order.length));
    }

    private widths(): number[] {
        const { columns, table } = this.options;
        return columns.map((column) => {
            let width = this.options.nameOf(column).length + 4;
            for (let row = 0; row < Math.min(table.rows, 40); ++row) {
                width = Math.max(
                    width,
                    Math.min(kWidestText, this.options.cellText(column, row).length + 2),
                );
            }
            return width;
        });
    }

    private makeHead(): void {
        this.head.replaceChildren(
            ...this.options.columns.map((column, i) => {
                const isSorted = this.sorted?.column === column;
                const order = !isSorted
                    ? 'none'
                    : this.sorted!.isDescending
                      ? 'descending'
                      : 'ascending';
                return h(
                    'div',
                    {
                        role: 'columnheader',
                        title: column.name,
                        'aria-sort': order,
                        'aria-colindex': i + 1,
                        class: this.numeric.has(column) ? 'number' : undefined,
                    },
                    h(
                        'button',
                        { type: 'button', class: 'sort', click: () => this.sortBy(column) },
                        this.options.nameOf(column),
                        h(
                            'span',
                            { 'aria-hidden': 'true' },
                            order === 'none' ? '' : order === 'ascending' ? ' ▲' : ' ▼',
                        ),
                    ),
                );
            }),
        );
    }

    private sortBy(column: Column): void {
        const isSame = this.sorted?.column === column;
        this.sorted =
            isSame && this.sorted!.isDescending ? undefined : { column, isDescending: isSame };
        const focused = document.activeElement
            ?.closest('[role=columnheader]')
            ?.getAttribute('aria-colindex');
        this.makeHead();
        if (focused)
            this.head.querySelector<HTMLElement>(`[aria-colindex="${focused}"] button`)?.focus();
        this.arrange();
    }

    private arrange(): void {
        const { table } = this.options;
        let rows = Array.from({ length: table.rows }, (_, row) => row);
        if (this.filter) rows = rows.filter((row) => this.holds(row));
        if (this.sorted) {
            const { column, isDescending } = this.sorted;
            const sign = isDescending ? -1 : 1;
            if (this.numeric.has(column)) {
                const { raw } = column;
                rows.sort((a, b) => sign * (raw[a]! - raw[b]!) || a - b);
            } else {
                const texts = new Map(rows.map((row) => [row, this.options.cellText(column, row)]));
                const { compare } = new Intl.Collator(undefined, { numeric: true });
                rows.sort((a, b) => sign * compare(texts.get(a)!, texts.get(b)!) || a - b);
            }
        }
        this.order = Int32Array.from(rows);
        this.scroller.setAttribute('aria-rowcount', String(rows.length + 1));
        this.scroller.scrollTop = 0;
        this.show();
        this.onArranged();
    }
    onArranged: () => void = () => undefined;

    private holds(row: number): boolean {
        return this.options.columns.some((column) =>
            this.options.cellText(column, row).toLowerCase().includes(this.filter),
        );
    }

    private show(): void {
        const count = this.order.length;
        const { step } = this;
        this.tall.style.height = `${Math.ceil(count * step)}px`;
        const { scrollTop, clientHeight } = this.scroller;
        const first = Math.max(
            0,
            Math.min(Math.floor(scrollTop / step), count - Math.floor(clientHeight / kRow) + 1),
        );
        const rows = Math.min(count - first, Math.ceil(clientHeight / kRow) + 1);
        this.body.style.transform = `translateY(${step < kRow ? scrollTop : first * kRow}px)`;
        this.body.replaceChildren(
            ...Array.from({ length: Math.max(0, rows) }, (_, i) => this.makeRow(first + i)),
        );
        const active = this.body.querySelector('.current');
        if (active) this.scroller.setAttribute('aria-activedescendant', active.id);
        else this.scroller.removeAttribute('aria-activedescendant');
    }

    private makeRow(place: number): HTMLElement {
        const row = this.order[place]!;
        const isChosen = this.chosen.has(row);
        const classes = `grid-row${isChosen ? ' chosen' : ''}${row === this.current ? ' current' : ''}`;
        return h(
            'div',
            {
                role: 'row',
                id: `${this.identifier}-${row}`,
                class: classes,
                'aria-rowindex': place + 2,
                'aria-selected': String(isChosen),
                click: () => this.options.choose(row, false),
                dblclick: () => this.options.choose(row, true),
            },
            ...this.options.columns.map((column, i) =>
                h(
                    'div',
                    {
                        role: 'gridcell',
                        'aria-colindex': i + 1,
                        class: this.numeric.has(column) ? 'number' : undefined,
                    },
                    this.options.cellText(column, row),
                ),
            ),
        );
    }

    private onKey(event: KeyboardEvent): void {
        if (event.target !== this.scroller) return;
        const place = this.order.indexOf(this.current);
        const page = Math.max(1, Math.floor(this.scroller.clientHeight / kRow) - 2);
        const last = this.order.length - 1;
        const moves: Record<string, number> = {
            ArrowDown: Math.min(last, place + 1),
            ArrowUp: Math.max(0, place - 1),
            PageDown: Math.min(last, place + page),
            PageUp: Math.max(0, place - page),
            Home: 0,
            End: last,
        };
        const next = moves[event.key];
        if (next !== undefined && last >= 0) {
            event.preventDefault();
            const row = this.order[next]!;
            this.setCurrent(row);
            this.options.choose(row, false);
        } else if (event.key === 'Enter' && place >= 0) {
            event.preventDefault();
            this.options.choose(this.current, true);
        }
    }
}

export const cellText = (column: Column, row: number): string => valueText(column.value(row));
