import type { BufferGeometry, Object3D } from 'three';

import { type Bars, kBars } from '../geometry/bars';
import type { Frame } from '../geometry/frames';
import { scale } from '../geometry/vectors';
import type { Model } from '../model';
import { Symbols } from './builders';
import type { SharedUniforms } from './materials';
import * as shapes from './shapes';
import type { Rgb } from './states';

const kPixels = 9;

// Bits of a release, and how each is shown; all three rotations are one hinge.
const kRotations = 7;
const kParts: [bit: number, shape: () => BufferGeometry][] = [
    [1, shapes.hingeAboutX],
    [2, shapes.hingeAboutY],
    [4, shapes.hingeAboutZ],
    [8, shapes.sleeve],
];

export function drawReleases(
    model: Model,
    bars: Bars,
    shared: SharedUniforms,
    paint: Rgb,
): Object3D[] {
    const table = model.tableOf(kBars);
    const released = model.data.table('Attaches').column('Rotules');
    const hinges = new Symbols(shapes.hinge());
    const parts = kParts.map(([bit, shape]) => ({ bit, symbols: new Symbols(shape()) }));
    const addAt = (rank: number, end: 0 | 1, bits: number): void => {
        const frame = bars.frame(rank);
        const place = model.placeOf(model.item(kBars, rank))[end];
        if (!frame || !place) return;
        // Off the end, into the bar.
        const inwards: Frame =
            end === 0 ? frame : { x: scale(frame.x, -1), y: scale(frame.y, -1), z: frame.z };
        const item = model.firstOf(kBars) + rank;
        if ((bits & kRotations) === kRotations) hinges.add(place, inwards, kPixels, item);
        for (const { bit, symbols } of parts) {
            const isOfHinge = (bit & kRotations) !== 0 && (bits & kRotations) === kRotations;
            if ((bits & bit) !== 0 && !isOfHinge) symbols.add(place, inwards, kPixels, item);
        }
    };
    const connections = [table.column('StartConnection').raw, table.column('EndConnection').raw];
    for (let rank = 0; rank < table.rows; ++rank) {
        for (const end of [0, 1] as const) {
            const release = connections[end]![rank]!;
            const bits = release < 0 ? 0 : released.number(release);
            if (bits !== 0) addAt(rank, end, bits);
        }
    }
    return [hinges, ...parts.map((part) => part.symbols)]
        .filter((symbols) => !symbols.isEmpty)
        .map((symbols) => symbols.draw(shared, { paint }));
}
