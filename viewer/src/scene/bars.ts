import earcut from 'earcut';
import type { Object3D } from 'three';

import { type Bars, kBars } from '../geometry/bars';
import type { Model } from '../model';
import { drawSegments, Faces } from './builders';
import type { SharedUniforms } from './materials';

export function drawBarAxes(model: Model, shared: SharedUniforms): Object3D[] {
    const table = model.tableOf(kBars);
    if (table.rows === 0) return [];
    const { x, y, z } = model.data.pool;
    const ends = [table.column('startPoint').raw, table.column('endPoint').raw];
    const places = new Float32Array(6 * table.rows);
    const items = new Uint32Array(table.rows);
    const first = model.firstOf(kBars);
    for (let rank = 0; rank < table.rows; ++rank) {
        items[rank] = first + rank;
        for (let end = 0; end < 2; ++end) {
            const point = ends[end]![rank]!;
            // Taken off in double precision: far from the origin single precision has no room.
            places[6 * rank + 3 * end] = x[point]! - model.centre.x;
            places[6 * rank + 3 * end + 1] = y[point]! - model.centre.y;
            places[6 * rank + 3 * end + 2] = z[point]! - model.centre.z;
        }
    }
    return [drawSegments(places, items, shared, { width: 2 })];
}

export function drawProfiles(
    bars: Bars,
    model: Model,
    ranks: Iterable<number>,
    shared: SharedUniforms,
): Object3D[] {
    const faces = new Faces();
    for (const rank of ranks) {
        const placed = bars.placedOutlines(rank);
        if (!placed) continue;
        const { start, end, plane } = placed;
        const item = model.firstOf(kBars) + rank;
        start.forEach((point, i) => {
            const next = (i + 1) % start.length;
            faces.quad(point, start[next]!, end[next]!, end[i]!, item);
        });
        const cap = earcut(plane.flatMap(({ u, v }) => [u, v]));
        for (let i = 0; i + 2 < cap.length; i += 3) {
            const [a, b, c] = [cap[i]!, cap[i + 1]!, cap[i + 2]!];
            faces.triangle(start[a]!, start[c]!, start[b]!, item);
            faces.triangle(end[a]!, end[b]!, end[c]!, item);
        }
    }
    return faces.isEmpty ? [] : [faces.draw(shared, {}, 0)];
}
