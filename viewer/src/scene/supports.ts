import type { BufferGeometry, Object3D } from 'three';

import type { Point } from '../data/table';
import type { Bars } from '../geometry/bars';
import type { Frame } from '../geometry/frames';
import {
    frameOfSupportItem,
    type Held,
    kLineSupports,
    kPointSupports,
    kSurfaceSupports,
    supportOf,
} from '../geometry/supports';
import { between, length, middleOf, subtract } from '../geometry/vectors';
import type { Item, Model } from '../model';
import { Segments, Symbols } from './builders';
import type { SharedUniforms } from './materials';
import * as shapes from './shapes';
import { drawPolygons } from './surfaces';

const kPixels = 17;
const kMostOnLine = 12;

const kShapes = {
    block: shapes.block,
    pyramid: shapes.pyramid,
    cone: shapes.cone,
    plate: shapes.plate,
    spring: shapes.spring,
    wheel: shapes.wheel,
    stop: shapes.stop,
    ring: shapes.ring,
} satisfies Record<string, () => BufferGeometry>;
type Shape = keyof typeof kShapes;

// The frame with that axis as its x.
function along({ x, y, z }: Frame, axis: number): Frame {
    return [
        { x, y, z },
        { x: y, y: z, z: x },
        { x: z, y: x, z: y },
    ][axis]!;
}

// The symbols of a support: one for all where there is a usual one, else one for each direction.
export function partsOf({ condition, directions }: Held): [Shape, axis: number][] {
    if (!directions.includes(true)) return [['ring', 2]];
    const [x, y, z, ...rotations] = directions;
    if (x && y && z) {
        const turns = rotations.filter((isHeld) => isHeld).length;
        const wheels = [0, 1, 2].filter((axis) => rotations[axis]);
        if (condition === 'rigid' && turns === 3) return [['block', 0]];
        if (condition === 'rigid' && turns === 0) return [['pyramid', 0]];
        // One for three directions: below, like the others.
        if (condition === 'elastic')
            return [['spring', 2], ...wheels.map((axis): [Shape, number] => ['wheel', axis])];
        if (condition === 'stop' && turns === 0) return [['stop', 2]];
    }
    const ofTranslation =
        condition === 'elastic' ? 'spring' : condition === 'stop' ? 'stop' : 'cone';
    const ofRotation = condition === 'elastic' ? 'wheel' : 'plate';
    const parts: [Shape, number][] = [];
    directions.forEach((isHeld, i) => {
        if (isHeld) parts.push(i < 3 ? [ofTranslation, i] : [ofRotation, i - 3]);
    });
    return parts;
}

export function drawSupports(
    model: Model,
    bars: Bars,
    shared: SharedUniforms,
): { faces: Object3D[]; lines: Object3D[] } {
    const symbols = new Map<Shape, Symbols>();
    const add = (item: Item, at: Point, size: number): void => {
        const frame = frameOfSupportItem(model, bars, item, at);
        for (const [shape, axis] of partsOf(supportOf(model, item))) {
            const list = symbols.get(shape) ?? new Symbols(kShapes[shape]());
            symbols.set(shape, list);
            const isWhole = shape === 'block' || shape === 'pyramid' || shape === 'ring';
            list.add(at, isWhole ? frame : along(frame, axis), size, item.number);
        }
    };
    const lines = new Segments();
    for (let rank = 0; rank < model.tableOf(kPointSupports).rows; ++rank) {
        const item = model.item(kPointSupports, rank);
        const [at] = model.placeOf(item);
        if (at) add(item, at, kPixels);
    }
    const step = length(subtract(model.box.high, model.box.low)) / 40;
    for (let rank = 0; rank < model.tableOf(kLineSupports).rows; ++rank) {
        const item = model.item(kLineSupports, rank);
        const [start, end] = model.placeOf(item);
        if (!start || !end) continue;
        lines.add(start, end, item.number);
        const count = Math.min(
            kMostOnLine,
            Math.max(2, Math.round(length(subtract(end, start)) / step)),
        );
        for (let i = 0; i <= count; ++i) add(item, between(start, end, i / count), 0.7 * kPixels);
    }
    for (let rank = 0; rank < model.tableOf(kSurfaceSupports).rows; ++rank) {
        const item = model.item(kSurfaceSupports, rank);
        const corners = model.placeOf(item);
        if (corners.length < 3) continue;
        const middle = middleOf(corners);
        add(item, middle, 0.7 * kPixels);
        for (const corner of corners.slice(0, 32))
            add(item, between(corner, middle, 0.08), 0.7 * kPixels);
    }
    const polygons = drawPolygons(model, kSurfaceSupports, shared, 0.25);
    return {
        faces: polygons.faces,
        lines: [
            ...polygons.lines,
            lines.draw(shared, { width: 4 }),
            ...[...symbols.values()].map((list) => list.draw(shared, {})),
        ],
    };
}
