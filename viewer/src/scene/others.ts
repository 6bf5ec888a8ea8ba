// Nodes, masses, imposed displacements, walls, cables and lines.
import type { Object3D } from 'three';

import type { Point } from '../data/table';
import { type Frame, frameOfPolygon, kGlobal } from '../geometry/frames';
import { add, dot, extentOf, middleOf, scale, subtract } from '../geometry/vectors';
import { type Kind, kind } from '../kinds';
import type { Model } from '../model';
import { Segments, Symbols } from './builders';
import type { SharedUniforms } from './materials';
import * as shapes from './shapes';
import { drawPolygons } from './surfaces';

export function drawLines(
    model: Model,
    ofKind: Kind,
    shared: SharedUniforms,
    width: number,
): Object3D[] {
    const segments = new Segments();
    for (let rank = 0; rank < model.tableOf(ofKind).rows; ++rank) {
        const item = model.item(ofKind, rank);
        const [start, end] = model.placeOf(item);
        if (start && end) segments.add(start, end, item.number);
    }
    return [segments.draw(shared, { width })];
}

export function drawPoints(
    model: Model,
    ofKind: Kind,
    shared: SharedUniforms,
    shape: 'dot' | 'ball' | 'cube',
    pixels: number,
): Object3D[] {
    const symbols = new Symbols(shapes[shape]());
    for (let rank = 0; rank < model.tableOf(ofKind).rows; ++rank) {
        const item = model.item(ofKind, rank);
        const [at] = model.placeOf(item);
        if (at) symbols.add(at, kGlobal, pixels, item.number);
    }
    return symbols.isEmpty ? [] : [symbols.draw(shared, {})];
}

const kWalls = kind('Parois');
const kSpanPart = 0.3;

// The direction of the span as an arrow with two heads: 0 along x of the wall, else along y. It is as
// long as a part of the wall in that direction.
export function spanOf(
    corners: Point[],
    direction: number,
): { frame: Frame; tips: [Point, Point] } | undefined {
    const own = frameOfPolygon(corners);
    if (!own) return undefined;
    const { x, y, z } = own;
    const frame = direction === 0 ? own : { x: y, y: scale(x, -1), z };
    const [low, high] = extentOf(corners.map((corner) => dot(corner, frame.x)));
    const half = scale(frame.x, (kSpanPart * (high - low)) / 2);
    const middle = middleOf(corners);
    return { frame, tips: [add(middle, half), subtract(middle, half)] };
}

function addSpan(
    corners: Point[],
    direction: number,
    item: number,
    lines: Segments,
    heads: Symbols,
): void {
    const span = spanOf(corners, direction);
    if (!span) return;
    const { frame, tips } = span;
    lines.add(tips[0], tips[1], item);
    heads.add(tips[0], frame, 10, item);
    heads.add(tips[1], { x: scale(frame.x, -1), y: scale(frame.y, -1), z: frame.z }, 10, item);
}

export function drawWalls(
    model: Model,
    shared: SharedUniforms,
): { faces: Object3D[]; lines: Object3D[] } {
    const { faces, lines } = drawPolygons(model, kWalls, shared, 0.14);
    const spans = new Segments();
    const heads = new Symbols(shapes.head());
    const table = model.tableOf(kWalls);
    for (let rank = 0; rank < table.rows; ++rank) {
        const item = model.item(kWalls, rank);
        const corners = model.placeOf(item);
        if (corners.length < 3) continue;
        addSpan(corners, table.column('iSensPortee').number(rank), item.number, spans, heads);
    }
    return {
        faces,
        lines: [
            ...lines,
            spans.draw(shared, { width: 1.5 }),
            ...(heads.isEmpty ? [] : [heads.draw(shared, {})]),
        ],
    };
}
