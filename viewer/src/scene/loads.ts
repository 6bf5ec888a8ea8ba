import type { Object3D } from 'three';

import type { Bars } from '../geometry/bars';
import { type Frame, frameOfAxis } from '../geometry/frames';
import { type Arrow, type DrawnLoad, loadsOfCase, tailOf } from '../geometry/loads';
import { add, length, subtract } from '../geometry/vectors';
import type { Model } from '../model';
import { Faces, Segments, Symbols } from './builders';
import type { SharedUniforms } from './materials';
import * as shapes from './shapes';

const kHeadPixels = 11;

export interface DrawnLoads {
    faces: Object3D[];
    lines: Object3D[];
    loads: DrawnLoad[];
    // How long a size of that is in the model.
    factorOf: (load: DrawnLoad, isMoment: boolean) => number;
}

// Forces, forces per length, forces per area and moments have units of their own: the largest of each
// is as long as the others.
function factors(loads: DrawnLoad[], longest: number): DrawnLoads['factorOf'] {
    const largest = new Map<string, number>();
    const keyOf = (load: DrawnLoad, isMoment: boolean): string =>
        `${load.item.kind.table} ${isMoment}`;
    for (const load of loads) {
        for (const { vector, isMoment } of load.arrows) {
            const key = keyOf(load, isMoment);
            largest.set(key, Math.max(largest.get(key) ?? 0, length(vector)));
        }
    }
    return (load, isMoment) => longest / (largest.get(keyOf(load, isMoment)) || 1);
}

export function drawLoads(
    model: Model,
    bars: Bars,
    loadCase: number,
    scale: number,
    shared: SharedUniforms,
): DrawnLoads {
    const extent = Math.max(length(subtract(model.box.high, model.box.low)), 1e-9);
    const loads = loadsOfCase(model, bars, loadCase, extent / 30);
    const factorOf = factors(loads, 0.07 * extent * scale);
    const lines = new Segments();
    const faces = new Faces();
    const heads = new Symbols(shapes.head());
    const secondHeads = new Symbols(shapes.secondHead());
    for (const load of loads) {
        const factor = (arrow: Arrow): number => factorOf(load, arrow.isMoment);
        const item = load.item.number;
        for (const arrow of load.arrows) {
            if (length(arrow.vector) === 0) continue;
            const tail = tailOf(arrow, factor(arrow));
            const frame: Frame | undefined = frameOfAxis(
                add(tail, model.centre),
                add(arrow.at, model.centre),
            );
            if (!frame) continue;
            lines.add(tail, arrow.at, item);
            heads.add(arrow.at, frame, kHeadPixels, item);
            if (arrow.isMoment) secondHeads.add(arrow.at, frame, kHeadPixels, item);
        }
        for (let i = 0; i + 1 < load.ridge.length; ++i) {
            const [a, b] = [load.arrows[load.ridge[i]!]!, load.arrows[load.ridge[i + 1]!]!];
            const [tailA, tailB] = [tailOf(a, factor(a)), tailOf(b, factor(b))];
            lines.add(tailA, tailB, item);
            faces.quad(a.at, b.at, tailB, tailA, item);
        }
    }
    return {
        faces: faces.isEmpty ? [] : [faces.draw(shared, { opacity: 0.1 })],
        lines: [
            lines.draw(shared, { width: 1.25 }, 4),
            ...[heads, secondHeads]
                .filter((list) => !list.isEmpty)
                .map((list) => list.draw(shared, {}, 4)),
        ],
        loads,
        factorOf,
    };
}
