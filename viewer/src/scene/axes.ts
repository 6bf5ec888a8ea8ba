// Local axes: x red, y green, z blue.
import type { Object3D } from 'three';

import type { Point } from '../data/table';
import { type Bars, kBars } from '../geometry/bars';
import { type Frame, frameOfPolygon } from '../geometry/frames';
import { add, length, middleOf, scale, subtract } from '../geometry/vectors';
import { kind } from '../kinds';
import type { Model } from '../model';
import { Segments } from './builders';
import type { SharedUniforms } from './materials';
import type { Rgb } from './states';

export const kAxisColours: Rgb[] = [
    [214, 64, 64],
    [52, 150, 70],
    [60, 110, 220],
];
const kSurfaces = kind('Surfaciques');
// More would hide what they are of.
const kMost = 20000;

export function drawLocalAxes(model: Model, bars: Bars, shared: SharedUniforms): Object3D[] {
    const lists = kAxisColours.map(() => new Segments());
    const extent = length(subtract(model.box.high, model.box.low));
    const addAt = (middle: Point, frame: Frame, size: number, item: number): void => {
        [frame.x, frame.y, frame.z].forEach((axis, i) => {
            lists[i]!.add(middle, add(middle, scale(axis, size)), item);
        });
    };
    for (let rank = 0; rank < Math.min(kMost, bars.count); ++rank) {
        const item = model.item(kBars, rank);
        const [start, end] = model.placeOf(item);
        const frame = bars.frame(rank);
        if (!start || !end || !frame) continue;
        addAt(
            middleOf([start, end]),
            frame,
            Math.min(extent / 30, length(subtract(end, start)) / 4),
            item.number,
        );
    }
    for (let rank = 0; rank < Math.min(kMost, model.tableOf(kSurfaces).rows); ++rank) {
        const item = model.item(kSurfaces, rank);
        const corners = model.placeOf(item);
        const frame = frameOfPolygon(corners);
        if (!frame) continue;
        addAt(middleOf(corners), frame, extent / 30, item.number);
    }
    return lists.map((list, i) => list.draw(shared, { width: 1.5, paint: kAxisColours[i]! }, 4));
}
