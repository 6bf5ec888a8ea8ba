import type { Point } from '../data/table';

// What is farther away cannot be meant: as in host/structure/tolerances.h.
const kFarthest = 1e9;

export function isSensible(p: Point): boolean {
    // No comparison holds for what is no number.
    return Math.abs(p.x) <= kFarthest && Math.abs(p.y) <= kFarthest && Math.abs(p.z) <= kFarthest;
}

export const add = (a: Point, b: Point): Point => ({ x: a.x + b.x, y: a.y + b.y, z: a.z + b.z });
export const subtract = (a: Point, b: Point): Point => ({
    x: a.x - b.x,
    y: a.y - b.y,
    z: a.z - b.z,
});
export const scale = (a: Point, by: number): Point => ({ x: a.x * by, y: a.y * by, z: a.z * by });
export const dot = (a: Point, b: Point): number => a.x * b.x + a.y * b.y + a.z * b.z;
export const cross = (a: Point, b: Point): Point => ({
    x: a.y * b.z - a.z * b.y,
    y: a.z * b.x - a.x * b.z,
    z: a.x * b.y - a.y * b.x,
});
// A loop: values of hostile models are too many for the parameters of a call.
export function extentOf(values: Iterable<number>): [low: number, high: number] {
    let [low, high] = [Infinity, -Infinity];
    for (const value of values) {
        if (value < low) low = value;
        if (value > high) high = value;
    }
    return [low, high];
}

export const length = (a: Point): number => Math.sqrt(dot(a, a));
export const normalized = (a: Point): Point => scale(a, 1 / length(a));
export const between = (a: Point, b: Point, place: number): Point =>
    add(a, scale(subtract(b, a), place));

export function middleOf(points: Point[]): Point {
    return scale(points.reduce(add, { x: 0, y: 0, z: 0 }), 1 / Math.max(points.length, 1));
}
