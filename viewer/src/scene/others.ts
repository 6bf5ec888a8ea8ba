// Nodes, masses, imposed displacements, walls, cables and lines.
import type { Object3D } from 'three';

import type { Point } from '../data/table';
import { frameOfPolygon, kGlobal } from '../geometry/frames';
import { add, length, middleOf, scale, subtract } from '../geometry/vectors';
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

// The direction of the span as an arrow with two heads: 0 along x of the wall, else along y.
function addSpan(
    corners: Point[],
    direction: number,
    item: number,
    lines: Segments,
    heads: Symbols,
): void {
    const frame = frameOfPolygon(corners);
    if (!frame) return;
    const middle = middleOf(corners);
    const size = Math.sqrt(length(subtract(corners[2]!, corners[0]!))) / 2;
    const axis = direction === 0 ? frame.x : frame.y;
    const across = direction === 0 ? frame.y : scale(frame.x, -1);
    const tips = [add(middle, scale(axis, size)), add(middle, scale(axis, -size))] as const;
    lines.add(tips[0], tips[1], item);
    heads.add(tips[0], { x: axis, y: across, z: frame.z }, 10, item);
    heads.add(tips[1], { x: scale(axis, -1), y: scale(across, -1), z: frame.z }, 10, item);
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
