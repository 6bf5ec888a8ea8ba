// The state of a view as the part of an address after its "#": #bar=12&case=3
import { casesOf } from './cases';
import { type Kind, kindOfKey, kKinds } from './kinds';
import type { Item, Model } from './model';
import type { Eye } from './scene/view';
import { type ColourBy, kColourBy, type State } from './state';
import type { Context } from './ui/context';

const kSwitches = ['solids', 'thickness', 'axes', 'labels'] as const;

export interface Address {
    state: Partial<State>;
    item: Item | undefined;
    eye: Eye | undefined;
    missing: { kind: Kind | undefined; value: string }[]; // records, and cases, that the model has not
}

const rounded = (value: number): string => String(Number(value.toPrecision(8)));

// Of two with the same identifier the second is "12.2".
function itemKey(model: Model, item: Item): [string, string] {
    const identifier = model.identifierOf(item);
    let place = 1;
    if (item.kind.identifier) {
        const { raw } = model.tableOf(item.kind).column(item.kind.identifier);
        for (let row = 0; row < item.rank; ++row) place += Number(raw[row] === identifier);
    }
    return [item.kind.key, place > 1 ? `${identifier}.${place}` : String(identifier)];
}

function itemOf(model: Model, kind: Kind, value: string): Item | undefined {
    const parts = /^(-?\d+)(?:\.(\d+))?$/.exec(value);
    if (!parts) return undefined;
    let item = model.find(kind, Number(parts[1]));
    const { identifier } = kind;
    for (let place = 1; item && identifier && place < Number(parts[2] ?? 1); ++place) {
        const rank = model
            .tableOf(kind)
            .column(identifier)
            .raw.indexOf(Number(parts[1]), item.rank + 1);
        item = rank < 0 ? undefined : model.item(kind, rank);
    }
    return item;
}

// `hasEye`: with where one looks from.
export function addressOf({ store, model, stage }: Context, hasEye: boolean): string {
    const { state } = store;
    const parts = new URLSearchParams();
    const last = model.itemOf(state.selected[state.selected.length - 1] ?? -1);
    if (last) parts.set(...itemKey(model, last));
    if (state.loadCase !== undefined) parts.set('case', String(state.loadCase));
    if (state.colourBy !== 'kind') parts.set('colour', state.colourBy);
    const on = kSwitches.filter((name) => state[name]);
    if (on.length > 0) parts.set('show', on.join('.'));
    if (state.orthographic) parts.set('parallel', '1');
    if (state.table !== undefined) parts.set('table', state.table);
    if (hasEye && stage) {
        const { position, target } = stage.view.eye;
        // In the model's coordinates.
        const { centre } = model;
        const numbers = [position, target].flatMap((point) => [
            point.x + centre.x,
            point.y + centre.y,
            point.z + centre.z,
        ]);
        parts.set('eye', numbers.map(rounded).join(','));
    }
    const text = parts.toString().replaceAll('%2C', ',');
    return text === '' ? '' : `#${text}`;
}

export function readAddress(model: Model, hash: string): Address {
    const parts = new URLSearchParams(hash.replace(/^#/, ''));
    const state: Partial<State> = {};
    let item: Item | undefined;
    let eye: Eye | undefined;
    const missing: Address['missing'] = [];
    for (const [key, value] of parts) {
        if (key === 'case') {
            const found = casesOf(model).find(({ number }) => String(number) === value);
            if (found) state.loadCase = found.number;
            else missing.push({ kind: undefined, value });
        } else if (key === 'colour' && kColourBy.includes(value as ColourBy))
            state.colourBy = value as ColourBy;
        else if (key === 'show')
            for (const name of kSwitches) state[name] = value.split('.').includes(name);
        else if (key === 'parallel') state.orthographic = value === '1';
        else if (key === 'table') {
            if (kKinds.some((kind) => kind.table === value && model.tableOf(kind).rows > 0))
                state.table = value;
        } else if (key === 'eye') {
            const n = value.split(',').map(Number);
            if (n.length === 6 && n.every(Number.isFinite)) {
                const { x, y, z } = model.centre;
                eye = {
                    position: { x: n[0]! - x, y: n[1]! - y, z: n[2]! - z },
                    target: { x: n[3]! - x, y: n[4]! - y, z: n[5]! - z },
                };
            }
        } else {
            const kind = kindOfKey(key);
            const found = kind && itemOf(model, kind, value);
            if (kind && !found) missing.push({ kind, value });
            item ??= found;
        }
    }
    return { state, item, eye, missing };
}
