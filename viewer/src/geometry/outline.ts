// The outlines of bar sections about the axis of a bar, as host/geometry/section_outline.cpp has
// them.
import { isSensible } from './vectors';

// u is along y of the bar, v along z.
export interface PlanePoint {
    u: number;
    v: number;
}

export interface Section {
    code: number; // a character
    points: number[]; // three numbers each with code S, else two
    pointCount: number; // as written: what is missing is 0
    radius: number;
    area: number;
    inertiaY: number;
    inertiaZ: number;
}

const kCircleCorners = 24;
const kCodeOfTriples = 'S'.charCodeAt(0);
const kCodeOfCircle = 'C'.charCodeAt(0);

const isUsable = (p: PlanePoint): boolean => isSensible({ x: p.u, y: p.v, z: 0 });

function doubledArea(points: PlanePoint[]): number {
    let sum = 0;
    let last = points[points.length - 1]!;
    for (const point of points) {
        sum += last.u * point.v - last.v * point.u;
        last = point;
    }
    return sum;
}

// Counter-clockwise, none twice in a row; nothing when it has no area.
function tidied(points: PlanePoint[]): PlanePoint[] {
    const isSame = (a: PlanePoint, b: PlanePoint): boolean => a.u === b.u && a.v === b.v;
    const tidy = points.filter((point, i) => i === 0 || !isSame(point, points[i - 1]!));
    while (tidy.length > 1 && isSame(tidy[0]!, tidy[tidy.length - 1]!)) tidy.pop();
    const area = tidy.length < 3 ? 0 : doubledArea(tidy);
    if (area === 0) return [];
    return area < 0 ? tidy.reverse() : tidy;
}

function pointsOf({ code, points, pointCount }: Section): PlanePoint[] {
    const step = code === kCodeOfTriples ? 3 : 2;
    const outline: PlanePoint[] = [];
    for (let i = 0; i < pointCount; ++i) {
        const point = { u: points[i * step] ?? 0, v: points[i * step + 1] ?? 0 };
        if (!isUsable(point)) return [];
        outline.push(point);
    }
    return tidied(outline);
}

function circleOf(radius: number): PlanePoint[] {
    return Array.from({ length: kCircleCorners }, (_, i) => {
        const angle = (2 * Math.PI * i) / kCircleCorners;
        return { u: radius * Math.cos(angle), v: radius * Math.sin(angle) };
    });
}

// With the area and the inertias of a section that has no outline.
function rectangleOf({ area, inertiaY, inertiaZ }: Section): PlanePoint[] {
    const u = Math.sqrt((12 * inertiaZ) / area) / 2;
    const v = Math.sqrt((12 * inertiaY) / area) / 2;
    if (!(u > 0 && v > 0 && isUsable({ u, v }))) return [];
    return [
        { u: -u, v: -v },
        { u, v: -v },
        { u, v },
        { u: -u, v },
    ];
}

export function outlineOf(section: Section): PlanePoint[] {
    const points = pointsOf(section);
    if (points.length > 0) return points;
    const isCircle = section.code === kCodeOfCircle && section.radius > 0;
    if (isCircle && isUsable({ u: section.radius, v: 0 })) return circleOf(section.radius);
    return rectangleOf(section);
}

// What is added so that the place that the excentration names is on the axis: left, centre, right,
// of each top, centre, bottom.
export function offsetOf(outline: PlanePoint[], excentration: number): PlanePoint {
    if (outline.length === 0 || excentration < 0 || excentration > 8) return { u: 0, v: 0 };
    let left = Infinity;
    let right = -Infinity;
    let bottom = Infinity;
    let top = -Infinity;
    for (const { u, v } of outline) {
        left = Math.min(left, u);
        right = Math.max(right, u);
        bottom = Math.min(bottom, v);
        top = Math.max(top, v);
    }
    return {
        u: [-left, 0, -right][Math.floor(excentration / 3)]!,
        v: [-top, 0, -bottom][excentration % 3]!,
    };
}
