// Colours with their legend, what is shown, and how.
import { colourOfKind, type Category } from '../colours';
import { kKinds } from '../kinds';
import { numberText } from '../names';
import { type ColourBy, kColourBy, type State } from '../state';
import { kindName, type Texts } from '../text';
import { levelKey } from '../visibility';
import type { Context } from './context';
import { button, checkbox, fill, h, newId, swatch } from './dom';

const kMostListed = 200;

function changed<Value>(set: ReadonlySet<Value>, value: Value, isIn: boolean): ReadonlySet<Value> {
    const copy = new Set(set);
    if (isIn) copy.add(value);
    else copy.delete(value);
    return copy;
}

export function makeModelPanel(context: Context, element: HTMLElement): void {
    const { texts } = context;
    const legend = h('div');
    const kinds = h('div');
    const levels = h('div');
    const display = h('div');
    element.append(
        colourChoice(context),
        legend,
        section(texts.kinds, true, kinds),
        section(texts.display, true, display),
        ...(context.levels.heights.length > 1 ? [section(texts.levels, false, levels)] : []),
    );
    const { store } = context;
    store.on(['colourBy', 'hidden', 'theme'], () => listLegend(context, legend));
    store.on(['shownKinds', 'colourBy'], () => listKinds(context, kinds));
    store.on(['hidden'], () => listLevels(context, levels));
    store.on(['solids', 'thickness', 'releases', 'axes', 'labels', 'markers'], () =>
        listDisplay(context, display),
    );
}

function section(title: string, isOpen: boolean, content: HTMLElement): HTMLElement {
    return h('details', { open: isOpen }, h('summary', {}, title), content);
}

function colourChoice({ store, texts }: Context): HTMLElement {
    const id = newId();
    const names: Record<ColourBy, keyof Texts> = {
        kind: 'byKind',
        group: 'byGroup',
        material: 'byMaterial',
        section: 'bySection',
        type: 'byType',
        finding: 'byFinding',
    };
    const select = h(
        'select',
        {
            id,
            change: (event: Event) =>
                store.change({ colourBy: (event.target as HTMLSelectElement).value as ColourBy }),
        },
        ...kColourBy.map((by) => h('option', { value: by }, String(texts[names[by]]))),
    );
    store.on(['colourBy'], () => (select.value = store.state.colourBy));
    return h('div', { class: 'row' }, h('label', { for: id }, texts.colourBy), select);
}

// Ticks of what is hidden come off; "only" hides all others.
function listLegend(context: Context, element: HTMLElement): void {
    const { store, texts } = context;
    const { categories } = context.colouring();
    if (store.state.colourBy === 'kind') {
        fill(element);
        return;
    }
    const entry = (category: Category): HTMLElement => {
        const isShown = !store.state.hidden.has(category.key);
        const only = button(
            texts.only,
            () => {
                const others = categories
                    .filter((other) => other.key !== category.key)
                    .map((other) => other.key);
                const rest = [...store.state.hidden].filter(
                    (key) => !categories.some((other) => other.key === key),
                );
                store.change({ hidden: new Set([...rest, ...others]) });
            },
            { class: 'link only', 'aria-label': `${texts.onlyThis} ${category.name}` },
        );
        return h(
            'li',
            {},
            checkbox(
                category.name,
                isShown,
                (shows) =>
                    store.change({ hidden: changed(store.state.hidden, category.key, !shows) }),
                swatch(category.colour),
                h('span', { class: 'count' }, category.count),
            ),
            only,
        );
    };
    fill(
        element,
        h(
            'ul',
            { class: 'list', 'aria-label': texts.legend },
            ...categories.slice(0, kMostListed).map(entry),
        ),
        categories.length > kMostListed
            ? h('p', { class: 'quiet' }, `… ${categories.length}`)
            : undefined,
    );
}

function listKinds({ store, model, texts }: Context, element: HTMLElement): void {
    const present = kKinds.filter(
        (kind) => kind.shape && !kind.isLoad && model.tableOf(kind).rows > 0,
    );
    fill(
        element,
        h(
            'ul',
            { class: 'list' },
            ...present.map((kind) =>
                h(
                    'li',
                    {},
                    checkbox(
                        kindName(texts, kind),
                        store.state.shownKinds.has(kind.table),
                        (shows) =>
                            store.change({
                                shownKinds: changed(store.state.shownKinds, kind.table, shows),
                            }),
                        store.state.colourBy === 'kind' ? swatch(colourOfKind(kind)) : undefined,
                        h('span', { class: 'count' }, model.tableOf(kind).rows),
                    ),
                ),
            ),
        ),
    );
}

function listLevels({ store, levels, model, texts }: Context, element: HTMLElement): void {
    const entries = levels.heights.map((height, level) => {
        const key = levelKey(level);
        const name = `${texts.upTo} ${numberText(height + model.centre.z, 6)} m`;
        return h(
            'li',
            {},
            checkbox(name, !store.state.hidden.has(key), (shows) =>
                store.change({ hidden: changed(store.state.hidden, key, !shows) }),
            ),
            button(
                texts.only,
                () => {
                    const others = levels.heights
                        .map((_, i) => levelKey(i))
                        .filter((other) => other !== key);
                    const rest = [...store.state.hidden].filter(
                        (other) => !other.startsWith('level:'),
                    );
                    store.change({ hidden: new Set([...rest, ...others]) });
                },
                { class: 'link only', 'aria-label': `${texts.onlyThis} ${name}` },
            ),
        );
    });
    fill(element, h('ul', { class: 'list' }, ...entries.reverse()));
}

type Switch = 'solids' | 'thickness' | 'releases' | 'axes' | 'labels' | 'markers';

function listDisplay({ store, texts }: Context, element: HTMLElement): void {
    const entry = (key: Switch, name: string): HTMLElement =>
        h(
            'li',
            {},
            checkbox(name, store.state[key], (isOn) =>
                store.change({ [key]: isOn } as Partial<State>),
            ),
        );
    fill(
        element,
        h(
            'ul',
            { class: 'list' },
            entry('solids', texts.solids),
            entry('thickness', texts.thicknessOf),
            entry('releases', texts.releases),
            entry('axes', texts.axes),
            entry('labels', texts.labels),
            entry('markers', texts.markers),
        ),
    );
}
