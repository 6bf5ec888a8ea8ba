// Finds records by number, label, title or name, and goes there.
import { kKinds } from '../kinds';
import type { Item, Model } from '../model';
import { nameOf, titleOf } from '../names';
import type { Context } from './context';
import { fill, h, newId } from './dom';

const kMost = 30;
const kTextColumns = ['ElemLabels.tabLabels', 'Titre', 'MaterialName', 'SectionLib', 'AttacheLib'];

// Exact numbers come first, then texts that begin with what is looked for, then those that hold it.
export function search(model: Model, wanted: string): Item[] {
    const text = wanted.trim().toLowerCase();
    if (text === '') return [];
    const found = new Map<number, Item>();
    const add = (item: Item | undefined): void => {
        if (item && found.size < kMost) found.set(item.number, item);
    };
    if (/^-?\d+$/.test(text))
        for (const kind of kKinds)
            add(kind.identifier ? model.find(kind, Number(text)) : undefined);
    const matches = (isMatch: (candidate: string) => boolean): Set<number> => {
        const places = new Set<number>();
        model.data.pool.texts.forEach((candidate, place) => {
            if (isMatch(candidate.toLowerCase())) places.add(place);
        });
        return places;
    };
    for (const places of [
        matches((one) => one.startsWith(text)),
        matches((one) => one.includes(text)),
    ]) {
        if (places.size === 0) continue;
        for (const kind of kKinds) findTexts(model, kind, places, add, () => found.size >= kMost);
    }
    return [...found.values()];
}

function findTexts(
    model: Model,
    kind: (typeof kKinds)[number],
    places: Set<number>,
    add: (item: Item) => void,
    isEnough: () => boolean,
): void {
    const table = model.tableOf(kind);
    for (const name of kTextColumns) {
        if (!table.has(name)) continue;
        const column = table.column(name);
        for (let row = 0; row < table.rows && !isEnough(); ++row) {
            const [start, end] = column.range(row);
            for (let i = start; i < end; ++i) {
                if (!places.has(column.raw[i]!)) continue;
                add(model.item(kind, row));
                break;
            }
        }
    }
}

export function makeSearch(context: Context): HTMLElement {
    const { model, texts } = context;
    const listId = newId();
    let results: Item[] = [];
    let current = -1;
    const list = h('ul', {
        class: 'results',
        role: 'listbox',
        id: listId,
        'aria-label': texts.results,
        hidden: true,
    });
    const input = h('input', {
        type: 'search',
        id: 'search',
        role: 'combobox',
        placeholder: texts.search,
        'aria-label': texts.search,
        autocomplete: 'off',
        'aria-expanded': 'false',
        'aria-controls': listId,
        'aria-autocomplete': 'list',
        spellcheck: 'false',
    });
    const take = (item: Item | undefined): void => {
        if (!item) return;
        close();
        context.goTo(item);
    };
    const close = (): void => {
        list.hidden = true;
        input.setAttribute('aria-expanded', 'false');
        input.removeAttribute('aria-activedescendant');
    };
    const show = (): void => {
        const option = (item: Item, i: number): HTMLElement =>
            h(
                'li',
                {
                    role: 'option',
                    id: `${listId}-${i}`,
                    'aria-selected': String(i === current),
                    // Before the field loses the focus and closes the list.
                    mousedown: (event: Event) => {
                        event.preventDefault();
                        take(item);
                    },
                },
                h('span', { class: 'grow' }, nameOf(model, texts, item)),
                h('span', { class: 'quiet' }, titleOf(model, item)),
            );
        fill(
            list,
            ...(results.length > 0
                ? results.map(option)
                : [
                      h(
                          'li',
                          {
                              role: 'option',
                              class: 'quiet',
                              'aria-disabled': 'true',
                              'aria-selected': 'false',
                          },
                          texts.noResult,
                      ),
                  ]),
        );
        list.hidden = input.value.trim() === '';
        input.setAttribute('aria-expanded', String(!list.hidden));
        if (current >= 0) {
            input.setAttribute('aria-activedescendant', `${listId}-${current}`);
            list.children[current]?.scrollIntoView({ block: 'nearest' });
        } else input.removeAttribute('aria-activedescendant');
    };
    let waiting: ReturnType<typeof setTimeout> | undefined;
    const find = (): void => {
        clearTimeout(waiting);
        results = search(model, input.value);
        current = results.length > 0 ? 0 : -1;
        show();
    };
    input.addEventListener('input', () => {
        clearTimeout(waiting);
        waiting = setTimeout(find, 120);
    });
    input.addEventListener('blur', close);
    input.addEventListener('keydown', (event) => {
        if (event.key === 'Escape') {
            if (!list.hidden) event.stopPropagation();
            close();
        } else if (event.key === 'Enter') {
            if (list.hidden || results.length === 0) find();
            take(results[current]);
        } else if ((event.key === 'ArrowDown' || event.key === 'ArrowUp') && results.length > 0) {
            event.preventDefault();
            current =
                (current + (event.key === 'ArrowDown' ? 1 : -1) + results.length) % results.length;
            show();
        }
    });
    return h('div', { class: 'search' }, input, list);
}
