// The loads of one case as arrows: where they begin, where they point, how long they are.
import type { Point } from '../data/table';
import { kind } from '../kinds';
import type { Item, Model } from '../model';
import type { Bars } from './bars';
import { kBars } from './bars';
import { type Frame, frameOfAxis, frameOfPolygon, kGlobal, toGlobal } from './frames';
import { add, between, dot, extentOf, length, scale, subtract } from './vectors';

export const kPointLoads = kind('ChargesPonctuelles');
export const kLineLoads = kind('ChargesLineaires');
export const kSurfaceLoads = kind('ChargesSurfaciques');

export const kLocal = 2;
export const kProjected = 3;

// At a point, in the model's axes; its size is that of the vector.
export interface Arrow {
    at: Point;
    vector: Point;
    isMoment: boolean;
}

export interface DrawnLoad {
    item: Item;
    arrows: Arrow[];
    ridge: number[]; // which arrows a line joins at their tails, in this order
    isArea: boolean; // per unit of length or area: sizes are compared among themselves
}

const kFrameKinds = { bar: kBars, surface: kind('Surfaciques') } as const;

// Local is that of what is loaded, or where this is not known that of the load's own shape.
function frameOf(model: Model, bars: Bars, item: Item, corners: Point[]): Frame {
    const table = model.tableOf(item.kind);
    if (table.column('Repere').number(item.rank) !== kLocal) return kGlobal;
    const bar = table.column('bar').raw[item.rank] ?? -1;
    const surface = table.column('surface').raw[item.rank] ?? -1;
    const ofCarrier =
        bar >= 0
            ? bars.frame(bar)
            : surface >= 0
              ? frameOfPolygon(model.placeOf(model.item(kFrameKinds.surface, surface)))
              : undefined;
    const [start, end] = corners;
    const own =
        item.kind === kSurfaceLoads
            ? frameOfPolygon(corners)
            : start && end && frameOfAxis(start, end);
    return ofCarrier ?? own ?? kGlobal;
}

function vectors(model: Model, item: Item, frame: Frame): { force: Point; moment: Point } {
    const table = model.tableOf(item.kind);
    const read = (x: string, y: string, z: string): Point => {
        const at = (name: string): number =>
            table.has(name) ? table.column(name).number(item.rank) : 0;
        const vector = toGlobal(frame, { x: at(x), y: at(y), z: at(z) });
        return Number.isFinite(length(vector)) ? vector : { x: 0, y: 0, z: 0 };
    };
    return { force: read('Fx', 'Fy', 'Fz'), moment: read('Mx', 'My', 'Mz') };
}

const finite = (value: number): number => (Number.isFinite(value) ? value : 0);

function pointLoad(model: Model, bars: Bars, item: Item, [at]: Point[]): DrawnLoad {
    const arrows: Arrow[] = [];
    const { force, moment } = vectors(model, item, frameOf(model, bars, item, at ? [at] : []));
    if (at && length(force) > 0) arrows.push({ at, vector: force, isMoment: false });
    if (at && length(moment) > 0) arrows.push({ at, vector: moment, isMoment: true });
    return { item, arrows, ridge: [], isArea: false };
}

function lineLoad(model: Model, bars: Bars, item: Item, corners: Point[], step: number): DrawnLoad {
    const [start, end] = corners;
    const arrows: Arrow[] = [];
    const ridge: number[] = [];
    if (start && end) {
        const { force, moment } = vectors(model, item, frameOf(model, bars, item, corners));
        const table = model.tableOf(item.kind);
        const from = finite(table.column('intensityDebut').number(item.rank));
        const to = finite(table.column('intensityFin').number(item.rank));
        const count = Math.min(16, Math.max(2, Math.ceil(length(subtract(end, start)) / step)));
        for (let i = 0; i <= count; ++i) {
            const intensity = from + ((to - from) * i) / count;
            const at = between(start, end, i / count);
            if (length(force) > 0) {
                ridge.push(arrows.length);
                arrows.push({ at, vector: scale(force, intensity), isMoment: false });
            }
            if (length(moment) > 0)
                arrows.push({ at, vector: scale(moment, intensity), isMoment: true });
        }
    }
    return { item, arrows, ridge, isArea: false };
}

// Linear over the plane by the values at the first three corners; their mean where these are on one
// line.
function intensityOver(corners: Point[], values: number[]): (at: Point) => number {
    const [i, j, k] = values.map(finite) as [number, number, number];
    const mean = (i + j + k) / 3;
    const [a, b, c] = corners;
    if (!a || !b || !c || (i === j && j === k)) return () => mean;
    const [ab, ac] = [subtract(b, a), subtract(c, a)];
    const [bb, bc, cc] = [dot(ab, ab), dot(ab, ac), dot(ac, ac)];
    const determinant = bb * cc - bc * bc;
    if (!(determinant > 1e-12 * bb * cc)) return () => mean;
    return (at) => {
        const from = subtract(at, a);
        const [pb, pc] = [dot(from, ab), dot(from, ac)];
        const u = (pb * cc - pc * bc) / determinant;
        const v = (pc * bb - pb * bc) / determinant;
        return i + u * (j - i) + v * (k - i);
    };
}

function isInside(frame: Frame, corners: Point[], point: Point): boolean {
    let inside = false;
    const [px, py] = [dot(point, frame.x), dot(point, frame.y)];
    corners.forEach((a, i) => {
        const b = corners[(i + 1) % corners.length]!;
        const [ax, ay, bx, by] = [
            dot(a, frame.x),
            dot(a, frame.y),
            dot(b, frame.x),
            dot(b, frame.y),
        ];
        if (ay > py !== by > py && px < ((bx - ax) * (py - ay)) / (by - ay) + ax) inside = !inside;
    });
    return inside;
}

// Points of a grid along the axes of the polygon, in it.
function gridIn(frame: Frame, corners: Point[], step: number): Point[] {
    const [u0, u1] = extentOf(corners.map((corner) => dot(corner, frame.x)));
    const [v0, v1] = extentOf(corners.map((corner) => dot(corner, frame.y)));
    const height = dot(corners[0]!, frame.z);
    const countU = Math.min(7, Math.max(1, Math.round((u1 - u0) / step)));
    const countV = Math.min(7, Math.max(1, Math.round((v1 - v0) / step)));
    const points: Point[] = [];
    for (let i = 0; i < countU; ++i) {
        for (let j = 0; j < countV; ++j) {
            const u = u0 + ((u1 - u0) * (i + 0.5)) / countU;
            const v = v0 + ((v1 - v0) * (j + 0.5)) / countV;
            const point = toGlobal(frame, { x: u, y: v, z: height });
            if (isInside(frame, corners, point)) points.push(point);
        }
    }
    return points;
}

function surfaceLoad(
    model: Model,
    bars: Bars,
    item: Item,
    corners: Point[],
    step: number,
): DrawnLoad {
    const frame = frameOfPolygon(corners);
    const arrows: Arrow[] = [];
    const ridge: number[] = [];
    if (frame) {
        const { force } = vectors(model, item, frameOf(model, bars, item, corners));
        const table = model.tableOf(item.kind);
        const values = ['intensiteI', 'intensiteJ', 'intensiteK'].map((name) =>
            table.column(name).number(item.rank),
        );
        const intensity = intensityOver(corners, values);
        const push = (at: Point): number =>
            arrows.push({ at, vector: scale(force, intensity(at)), isMoment: false }) - 1;
        if (length(force) > 0) {
            for (const corner of corners.slice(0, 64)) ridge.push(push(corner));
            if (ridge.length > 0) ridge.push(ridge[0]!);
            for (const point of gridIn(frame, corners, 2 * step)) push(point);
        }
    }
    return { item, arrows, ridge, isArea: true };
}

// Where its values are written: where the force is largest, and where it is smallest when it varies; the
// same for the moment.
export function labelledArrows({ arrows }: DrawnLoad): Arrow[] {
    return [false, true].flatMap((isMoment) => {
        const own = arrows.filter((arrow) => arrow.isMoment === isMoment);
        const size = extentOf(own.map(({ vector }) => length(vector)))[1];
        const largest = own.find(({ vector }) => length(vector) === size);
        if (!largest || size === 0) return [];
        // With a sign: a load may turn round on its way.
        const sizes = own.map(({ vector }) => dot(vector, scale(largest.vector, 1 / size)));
        const [low, high] = extentOf(sizes);
        // The middle one of those: at a corner it would be among those of others.
        const middleAt = (value: number): Arrow[] => {
            const same = own.filter((_, i) => Math.abs(sizes[i]! - value) <= 1e-9 * size);
            return same.slice(same.length >> 1, (same.length >> 1) + 1);
        };
        const isVaried = high - low > 1e-9 * size;
        return [...(isVaried && low !== 0 ? middleAt(low) : []), ...middleAt(high)];
    });
}

const kDrawnKinds = [kPointLoads, kLineLoads, kSurfaceLoads];

// Whatever number a case has: loads may be of one that is missing.
export function itemsOfCase(model: Model, number: number): Item[] {
    return kDrawnKinds.flatMap((ofKind) => {
        const cases = model.tableOf(ofKind).column('NumCas').raw;
        const items: Item[] = [];
        cases.forEach((loadCase, rank) => {
            if (loadCase === number) items.push(model.item(ofKind, rank));
        });
        return items;
    });
}

// `step` is about how far arrows are apart.
export function loadsOfCase(model: Model, bars: Bars, number: number, step: number): DrawnLoad[] {
    return itemsOfCase(model, number).map((item) => {
        const corners = model.placeOf(item);
        if (item.kind === kPointLoads) return pointLoad(model, bars, item, corners);
        if (item.kind === kLineLoads) return lineLoad(model, bars, item, corners, step);
        return surfaceLoad(model, bars, item, corners, step);
    });
}

export const tailOf = ({ at, vector }: Arrow, factor: number): Point =>
    add(at, scale(vector, -factor));
