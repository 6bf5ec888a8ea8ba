// The levels of a building: heights at which much is horizontal.
import { kind } from './kinds';
import type { Item, Model } from './model';

const kMost = 40;

export class Levels {
    readonly heights: number[] = []; // from the centre, ascending
    private readonly tolerance: number;

    constructor(private readonly model: Model) {
        const { low, high } = model.box;
        this.tolerance = Math.max((high.z - low.z) * 1e-3, 1e-6);
        const weights = new Map<number, number>();
        const addKind = (table: string): void => {
            const ofKind = kind(table);
            for (let rank = 0; rank < model.tableOf(ofKind).rows; ++rank) {
                const heights = model.heightsOf(ofKind, rank);
                if (!heights) continue;
                const [bottom, top] = heights;
                if (top - bottom > this.tolerance) continue;
                const key = Math.round(top / this.tolerance);
                weights.set(key, (weights.get(key) ?? 0) + 1);
            }
        };
        addKind('Filaires');
        addKind('Surfaciques');
        const found = [...weights]
            .sort((a, b) => b[1] - a[1])
            .slice(0, kMost)
            .map(([key]) => key * this.tolerance);
        found.sort((a, b) => a - b);
        for (const height of found) {
            const last = this.heights[this.heights.length - 1];
            if (last === undefined || height - last > 2 * this.tolerance) this.heights.push(height);
        }
        // What is above the last one has a level too.
        const last = this.heights[this.heights.length - 1];
        if (last !== undefined && high.z > last + 2 * this.tolerance) this.heights.push(high.z);
    }

    // That which carries it: where its top is, or the next one above.
    levelOf(item: Item): number {
        const top = (this.model.heightsOf(item.kind, item.rank)?.[1] ?? 0) - 2 * this.tolerance;
        const level = this.heights.findIndex((height) => height >= top);
        return level < 0 ? this.heights.length - 1 : level;
    }
}
