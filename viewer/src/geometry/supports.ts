// What supports hold, and how that is told from their columns.
import type { Point } from '../data/table';
import { kind } from '../kinds';
import type { Item, Model } from '../model';
import type { Bars } from './bars';
import { type Frame, frameOfSupport, kGlobal } from './frames';

export const kPointSupports = kind('AppuisPonctuels');
export const kLineSupports = kind('AppuisLineaires');
export const kSurfaceSupports = kind('AppuisSurfaciques');

// As host/structure/structure.h numbers them.
export type Condition = 'void' | 'rigid' | 'elastic' | 'stop';
const kConditions: Condition[] = ['void', 'rigid', 'elastic', 'stop'];

export interface Held {
    condition: Condition;
    directions: boolean[]; // translations along x, y, z, then rotations about them
}

// A direction is held when its stiffness is not 0. Rigid supports and stops without any stiffness hold
// everything: their columns are not always filled.
export function heldBy(condition: Condition, stiffnesses: number[]): Held {
    const directions = stiffnesses.map((stiffness) => stiffness !== 0);
    while (directions.length < 6) directions.push(false);
    const isUnsaid = !directions.includes(true) && (condition === 'rigid' || condition === 'stop');
    if (condition === 'void') return { condition, directions: directions.fill(false) };
    return { condition, directions: isUnsaid ? directions.fill(true) : directions };
}

export function supportOf(model: Model, item: Item): Held {
    const table = model.tableOf(item.kind);
    const condition = kConditions[table.column('condition').number(item.rank)] ?? 'void';
    return heldBy(condition, table.column('Raideurs').numbers(item.rank));
}

export function frameOfSupportItem(model: Model, bars: Bars, item: Item, at: Point): Frame {
    if (item.kind !== kPointSupports) return kGlobal;
    const table = model.tableOf(item.kind);
    const orientation = bars.orientation(table.column('NdOri').number(item.rank));
    return frameOfSupport(at, table.column('Angle').number(item.rank), orientation);
}
