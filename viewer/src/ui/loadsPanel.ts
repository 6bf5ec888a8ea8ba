// Load cases: one is shown at a time; combinations and envelopes tell of which cases they are.
import { groupTitles } from '../colours';
import { type Case, casesOf } from '../cases';
import { itemsOfCase } from '../geometry/loads';
import { kind } from '../kinds';
import type { Model } from '../model';
import { caseTitle, nameOf, numberText } from '../names';
import type { Context } from './context';
import { button, checkbox, fill, h, newId } from './dom';
import { caseTypeName } from './meanings';

const kSelfWeights = kind('ChargesPoidsPropre');
const kThermals = kind('ChargesThermiques');

const kStep = 300; // of cases at once
const kMostParts = 500; // of a combination or an envelope

export function makeLoadsPanel(context: Context, element: HTMLElement): void {
    const { store, texts, model } = context;
    const cases = casesOf(model);
    const name = newId();
    const list = h('div', { class: 'cases', role: 'radiogroup', 'aria-label': texts.cases });
    const digits = cases.reduce((most, { number }) => Math.max(most, String(number).length), 1);
    list.style.setProperty('--digits', `${digits}ch`);
    const choice = (
        number: number | undefined,
        ...content: (Node | string | undefined)[]
    ): HTMLElement => {
        const radio = h('input', {
            type: 'radio',
            name,
            value: number ?? '',
            checked: store.state.loadCase === number,
            change: () => store.change({ loadCase: number }),
        });
        return h('label', { class: 'case' }, radio, ...content);
    };
    const entry = ({ number, title, type, loads }: Case): HTMLElement =>
        choice(
            number,
            h('span', { class: 'number' }, number),
            h(
                'span',
                { class: 'grow' },
                title ?? texts.missingCase,
                ' ',
                h('span', { class: 'quiet' }, caseTypeName(texts, type)),
            ),
            loads > 0 ? h('span', { class: 'count' }, loads) : undefined,
        );
    let shown = kStep;
    let wanted = '';
    // The one that is chosen is always among them.
    const showList = (): void => {
        const found = cases.filter(({ number, title }) =>
            `${number} ${title ?? ''}`.toLowerCase().includes(wanted),
        );
        const first = found.slice(0, shown);
        const chosen = cases.find(({ number }) => number === store.state.loadCase);
        if (chosen && !first.includes(chosen)) first.unshift(chosen);
        fill(
            list,
            choice(undefined, h('span', { class: 'grow' }, texts.noCase)),
            ...first.map(entry),
            found.length > shown
                ? button(`${texts.more} (${found.length - shown})`, () => {
                      shown += kStep;
                      showList();
                  })
                : undefined,
        );
    };
    showList();
    const filter = h('input', {
        type: 'search',
        placeholder: texts.filterCases,
        'aria-label': texts.filterCases,
        input: () => {
            wanted = filter.value.trim().toLowerCase();
            shown = kStep;
            showList();
        },
    });
    const detail = h('div', { class: 'case-detail' });
    element.append(
        h(
            'div',
            { class: 'load-options' },
            scaleSlider(context),
            valuesSwitch(context),
            cases.length > kStep ? filter : undefined,
        ),
        list,
        detail,
    );
    store.on(['loadCase', 'panel'], () => {
        const value = String(store.state.loadCase ?? '');
        const radios = (): HTMLInputElement[] => [...list.querySelectorAll('input')];
        if (!radios().some((radio) => radio.value === value)) showList();
        for (const radio of radios()) {
            const isChosen = radio.value === value;
            if (isChosen) radio.closest('label')!.scrollIntoView({ block: 'nearest' });
            radio.checked = isChosen;
        }
        fillDetail(
            context,
            detail,
            cases.find((one) => one.number === store.state.loadCase),
        );
    });
}

function scaleSlider({ store, texts }: Context): HTMLElement {
    const id = newId();
    const slider = h('input', {
        type: 'range',
        id,
        min: '-2',
        max: '2',
        step: '0.25',
        input: (event: Event) =>
            store.change({ loadScale: 2 ** Number((event.target as HTMLInputElement).value) }),
    });
    store.on(['loadScale'], () => (slider.value = String(Math.log2(store.state.loadScale))));
    return h('div', { class: 'row' }, h('label', { for: id }, texts.loadScale), slider);
}

function valuesSwitch({ store, texts }: Context): HTMLElement {
    return checkbox(texts.values, store.state.showValues, (showValues) =>
        store.change({ showValues }),
    );
}

function fillDetail(context: Context, element: HTMLElement, chosen: Case | undefined): void {
    const { texts } = context;
    if (!chosen) {
        fill(element);
        return;
    }
    const parts = [
        factored(context, chosen.number),
        ...loadsOnGroups(context, chosen.number),
        drawnLoads(context, chosen.number),
    ];
    const held = parts.filter((part) => part !== undefined);
    fill(
        element,
        h('h3', {}, `${texts.case} ${chosen.number}${chosen.title ? ` · ${chosen.title}` : ''}`),
        ...(held.length > 0
            ? held
            : [
                  h(
                      'p',
                      { class: 'quiet' },
                      chosen.type === 1 || chosen.type > 9
                          ? texts.noLoads
                          : caseTypeName(texts, chosen.type),
                  ),
              ]),
    );
}

// The cases of a combination with their factors, or those of an envelope.
function factored(context: Context, number: number): HTMLElement | undefined {
    const { model, texts, store } = context;
    const entry = (of: number, factor: number | undefined): HTMLElement =>
        h(
            'li',
            {},
            factor === undefined
                ? undefined
                : h('span', { class: 'factor' }, `${numberText(factor, 6)} ×`),
            button(
                `${of} ${caseTitle(model, of) ?? texts.missingCase}`,
                () => store.change({ loadCase: of }),
                { class: 'link' },
            ),
        );
    const list = (heading: string, parts: number[], factors?: number[]): HTMLElement =>
        h(
            'div',
            {},
            h('h4', {}, heading),
            h(
                'ul',
                { class: 'factors' },
                ...parts
                    .slice(0, kMostParts)
                    .map((of, i) => entry(of, factors && (factors[i] ?? 0))),
            ),
            parts.length > kMostParts
                ? h('p', { class: 'quiet' }, `${parts.length - kMostParts} ${texts.notListed}`)
                : undefined,
            h('p', { class: 'quiet' }, texts.chooseCase),
        );
    const combinations = model.data.table('Combinaisons');
    const row = combinations.column('iNumCas').raw.indexOf(number);
    if (row >= 0) {
        const factors = combinations.column('pCoeff').numbers(row);
        return list(texts.combines, combinations.column('pNumCas').numbers(row), factors);
    }
    const envelopes = model.data.table('Enveloppes');
    const envelope = envelopes.column('iNumCas').raw.indexOf(number);
    if (envelope < 0) return undefined;
    return list(texts.envelopes, envelopes.column('pCases').numbers(envelope));
}

// Self-weight and temperature have no arrows: they are named, with the group they are on.
function loadsOnGroups(context: Context, number: number): HTMLElement[] {
    const { model, texts } = context;
    return [kSelfWeights, kThermals].flatMap((ofKind) => {
        const table = model.tableOf(ofKind);
        const names = ofKind === kSelfWeights ? ['dX', 'dY', 'dZ'] : ['DeltaT', 'Gy', 'Gz'];
        const entries: HTMLElement[] = [];
        for (let rank = 0; rank < table.rows; ++rank) {
            if (table.column('NumCas').number(rank) !== number) continue;
            const [a, b, c] = names.map((column) =>
                numberText(table.column(column).number(rank), 6),
            );
            const what =
                ofKind === kSelfWeights
                    ? `${texts.direction} (${a}; ${b}; ${c})`
                    : `${a} °C, ${texts.gradients} ${b}; ${c}`;
            entries.push(
                h(
                    'li',
                    {},
                    button(
                        `${what} ${texts.onGroup} ${groupText(context, rank, ofKind.table)}`,
                        () => context.select(model.item(ofKind, rank)),
                        { class: 'link' },
                    ),
                ),
            );
        }
        if (entries.length === 0) return [];
        return [
            h(
                'div',
                {},
                h('h4', {}, ofKind === kSelfWeights ? texts.selfWeight : texts.thermal),
                h('ul', { class: 'factors' }, ...entries.slice(0, 200)),
            ),
        ];
    });
}

function groupText({ model, texts }: Context, rank: number, table: string): string {
    const loads = model.data.table(table);
    const place = loads.column('NumGrp').number(rank) - 1;
    const groups = model.data.table('Groupes');
    const elements = loads.column('ElemGrp').number(rank);
    if (place < 0 || place >= groups.rows) return `${elements}:${place + 1}`;
    const number = groups.column('Num').number(place);
    const title = groupTitles(model).get(`${elements}:${number}`) ?? '';
    const members = countOfGroup(model, elements, number);
    return `${number} ${title} (${members} ${texts.elements})`;
}

function countOfGroup(model: Model, elements: number, number: number): number {
    const table = {
        1: 'AppuisPonctuels',
        2: 'Filaires',
        3: 'Surfaciques',
        4: 'AppuisSurfaciques',
        5: 'AppuisLineaires',
    }[elements];
    if (!table) return 0;
    let count = 0;
    for (const group of model.data.table(table).column('GroupNumber').raw)
        count += Number(group === number);
    return count;
}

function drawnLoads(context: Context, number: number): HTMLElement | undefined {
    const { model, texts } = context;
    const items = itemsOfCase(model, number);
    if (items.length === 0) return undefined;
    const shown = items.slice(0, 200).map((item) =>
        h(
            'li',
            {},
            button(nameOf(model, texts, item), () => context.goTo(item), { class: 'link' }),
        ),
    );
    return h(
        'details',
        {},
        h('summary', {}, `${texts.ofCase}: ${items.length} ${texts.loadsCount}`),
        h('ul', { class: 'factors' }, ...shown),
    );
}
