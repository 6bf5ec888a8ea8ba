// Polygons with openings as triangles.
import earcut from 'earcut';

import type { Point } from '../data/table';
import { type Frame, frameOfPolygon } from './frames';
import { dot, isSensible, subtract } from './vectors';

export interface Triangles {
    points: Point[];
    corners: number[]; // three each
}

function flat(frame: Frame, origin: Point, points: Point[], out: number[]): void {
    for (const point of points) {
        const from = subtract(point, origin);
        out.push(dot(from, frame.x), dot(from, frame.y));
    }
}

// Nothing for a polygon without an area, or with a coordinate that cannot be meant.
export function trianglesOf(outline: Point[], openings: Point[][] = []): Triangles {
    const frame = frameOfPolygon(outline);
    const origin = outline[0];
    if (!frame || !origin) return { points: [], corners: [] };
    const points = [...outline];
    const plane: number[] = [];
    const holes: number[] = [];
    flat(frame, origin, outline, plane);
    for (const opening of openings) {
        if (opening.length < 3 || !opening.every(isSensible)) continue;
        holes.push(points.length);
        for (const point of opening) points.push(point);
        flat(frame, origin, opening, plane);
    }
    return { points, corners: earcut(plane, holes, 2) };
}
