// The model as the page sees it: its records numbered through, and where they are.
import type { Data } from './data/read';
import type { Column, Point, Table } from './data/table';
import { isSensible, subtract } from './geometry/vectors';
import { kKinds, type Kind } from './kinds';

// A record: a table and a place in it.
export interface Item {
    kind: Kind;
    rank: number;
    number: number; // through all tables
}

export interface Box {
    low: Point;
    high: Point;
}

export class Model {
    readonly itemCount: number;
    readonly centre: Point; // taken off in double precision before coordinates become single
    readonly box: Box; // of all that can be drawn, from the centre
    readonly unusable = new Map<string, number>(); // by table: elements that cannot be drawn

    private readonly firsts = new Map<string, number>();
    private readonly sensible: Uint8Array; // of each point, whether it can be meant

    constructor(readonly data: Data) {
        const { x, y, z } = data.pool;
        this.sensible = Uint8Array.from(x, (_, i) =>
            Number(isSensible({ x: x[i]!, y: y[i]!, z: z[i]! })),
        );
        let count = 0;
        for (const kind of kKinds) {
            this.firsts.set(kind.table, count);
            count += this.tableOf(kind).rows;
        }
        this.itemCount = count;
        const box = this.findBox();
        this.centre = box
            ? {
                  x: Math.round((box.low.x + box.high.x) / 2),
                  y: Math.round((box.low.y + box.high.y) / 2),
                  z: Math.round((box.low.z + box.high.z) / 2),
              }
            : { x: 0, y: 0, z: 0 };
        this.box = box
            ? { low: subtract(box.low, this.centre), high: subtract(box.high, this.centre) }
            : { low: { x: -1, y: -1, z: -1 }, high: { x: 1, y: 1, z: 1 } };
    }

    tableOf(kind: Kind): Table {
        return this.data.table(kind.table);
    }
    firstOf(kind: Kind): number {
        return this.firsts.get(kind.table) ?? 0;
    }
    item(kind: Kind, rank: number): Item {
        return { kind, rank, number: this.firstOf(kind) + rank };
    }
    itemOf(number: number): Item | undefined {
        if (number < 0 || number >= this.itemCount) return undefined;
        let found: Kind | undefined;
        for (const kind of kKinds) {
            if (this.firstOf(kind) <= number && this.tableOf(kind).rows > 0) found = kind;
        }
        return found && this.item(found, number - this.firstOf(found));
    }

    // What people call it by; places of what has no identifier count from 1.
    identifierOf(item: Item): number {
        const { identifier } = item.kind;
        return identifier
            ? this.tableOf(item.kind).column(identifier).number(item.rank)
            : item.rank + 1;
    }
    find(kind: Kind, identifier: number): Item | undefined {
        const table = this.tableOf(kind);
        const rank = kind.identifier
            ? table.column(kind.identifier).raw.indexOf(identifier)
            : identifier - 1;
        return rank >= 0 && rank < table.rows ? this.item(kind, rank) : undefined;
    }

    // The columns with its corners, and their number for all rows where it is the same.
    private cornerColumns(kind: Kind): Column[] {
        return (kind.corners ?? []).map((name) => this.tableOf(kind).column(name));
    }
    // As in the file.
    cornersOf(item: Item): Point[] {
        return this.cornerColumns(item.kind).flatMap((column) => column.points(item.rank));
    }
    // From the centre; nothing when a coordinate cannot be meant.
    placeOf(item: Item): Point[] {
        const corners = this.cornersOf(item);
        return corners.every(isSensible) ? corners.map((p) => subtract(p, this.centre)) : [];
    }

    // From which height to which, from the centre; nothing as with places.
    heightsOf(kind: Kind, rank: number): [bottom: number, top: number] | undefined {
        const { z } = this.data.pool;
        let bottom = Infinity;
        let top = -Infinity;
        for (const column of this.cornerColumns(kind)) {
            const [start, end] = column.range(rank);
            for (let i = start; i < end; ++i) {
                const point = column.raw[i]!;
                if (!this.sensible[point]) return undefined;
                const height = z[point]! - this.centre.z;
                if (height < bottom) bottom = height;
                if (height > top) top = height;
            }
        }
        return bottom <= top ? [bottom, top] : undefined;
    }

    lineOf(item: Item): number {
        return this.tableOf(item.kind).column('line').number(item.rank);
    }
    labelsOf(item: Item): string[] {
        return this.tableOf(item.kind).column('ElemLabels.tabLabels').texts(item.rank);
    }
    // The number of its group; nothing for kinds that are in none.
    groupOf(item: Item): number | undefined {
        if (item.kind.groupKind === undefined) return undefined;
        return this.tableOf(item.kind).column('GroupNumber').number(item.rank);
    }

    // Also counts what cannot be drawn: a coordinate that cannot be meant, or no polygon.
    private findBox(): Box | undefined {
        const { x, y, z } = this.data.pool;
        const low = [Infinity, Infinity, Infinity];
        const high = [-Infinity, -Infinity, -Infinity];
        const { sensible } = this;
        for (const kind of kKinds) {
            const columns = this.cornerColumns(kind);
            const { rows } = this.tableOf(kind);
            let unusable = 0;
            for (let row = 0; row < rows && columns.length > 0; ++row) {
                let isUsable = true;
                for (const column of columns) {
                    const [start, end] = column.range(row);
                    if (kind.shape === 'polygon' && end - start < 3) isUsable = false;
                    for (let i = start; i < end; ++i) {
                        const place = column.raw[i]!;
                        if (!sensible[place]) {
                            isUsable = false;
                            continue;
                        }
                        const at = [x[place]!, y[place]!, z[place]!];
                        for (let axis = 0; axis < 3; ++axis) {
                            if (at[axis]! < low[axis]!) low[axis] = at[axis]!;
                            if (at[axis]! > high[axis]!) high[axis] = at[axis]!;
                        }
                    }
                }
                if (!isUsable) ++unusable;
            }
            if (unusable > 0) this.unusable.set(kind.table, unusable);
        }
        const point = ([px, py, pz]: number[]): Point => ({ x: px!, y: py!, z: pz! });
        return low[0]! <= high[0]! ? { low: point(low), high: point(high) } : undefined;
    }
}
