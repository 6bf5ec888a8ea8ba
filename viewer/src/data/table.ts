// Tables of records, column by column. Columns are decoded when they are first asked for.
import { type IntsDescription, type RealsDescription, readInts, readReals } from './columns';

export type ColumnType = 'int' | 'real' | 'text' | 'point';

export interface ColumnDescription {
    name: string;
    type: ColumnType;
    table?: string; // integers that are places in that table
    counts?: IntsDescription; // of a list: the number of values of each row
    values: IntsDescription | RealsDescription;
}

export interface TableDescription {
    name: string;
    rows: number;
    columns: ColumnDescription[];
}

export interface Point {
    x: number;
    y: number;
    z: number;
}

// What the columns of all tables refer to.
export interface Pool {
    block: Uint8Array;
    texts: string[];
    x: Float64Array;
    y: Float64Array;
    z: Float64Array;
}

export type Value = number | string | null | Point | Value[];

export class Column {
    private decoded: Int32Array | Float64Array | undefined;
    private starts: Int32Array | undefined;

    constructor(
        private readonly what: ColumnDescription,
        private readonly pool: Pool,
    ) {}

    get name(): string {
        return this.what.name;
    }
    get type(): ColumnType {
        return this.what.type;
    }
    get isList(): boolean {
        return this.what.counts !== undefined;
    }
    // The table that the values are places in.
    get refersTo(): string | undefined {
        return this.what.table;
    }

    // As stored: numbers, and places of texts and points.
    get raw(): Int32Array | Float64Array {
        this.decoded ??=
            this.what.type === 'real'
                ? readReals(this.pool.block, this.what.values as RealsDescription)
                : readInts(this.pool.block, this.what.values as IntsDescription);
        return this.decoded;
    }

    // Where the list of that row is in `raw`.
    range(row: number): [number, number] {
        if (!this.what.counts) return [row, row + 1];
        if (!this.starts) {
            const counts = readInts(this.pool.block, this.what.counts);
            this.starts = new Int32Array(counts.length + 1);
            counts.forEach((count, i) => (this.starts![i + 1] = this.starts![i]! + count));
        }
        return [this.starts[row] ?? 0, this.starts[row + 1] ?? 0];
    }

    number(row: number): number {
        return this.raw[row] ?? 0;
    }
    text(row: number): string | null {
        return this.textAt(row);
    }
    numbers(row: number): number[] {
        const [start, end] = this.range(row);
        return Array.from(this.raw.subarray(start, end));
    }
    points(row: number): Point[] {
        return this.numbers(row).map((place) => this.pointAt(place));
    }
    texts(row: number): string[] {
        const [start, end] = this.range(row);
        const texts: string[] = [];
        for (let i = start; i < end; ++i) texts.push(this.textAt(i) ?? '');
        return texts;
    }

    value(row: number): Value {
        if (!this.isList) return this.valueAt(row);
        const [start, end] = this.range(row);
        const values: Value[] = [];
        for (let i = start; i < end; ++i) values.push(this.valueAt(i));
        return values;
    }

    private valueAt(i: number): Value {
        if (this.type === 'text') return this.textAt(i);
        if (this.type === 'point') return this.pointAt(this.raw[i] ?? -1);
        return this.raw[i] ?? 0;
    }
    private textAt(i: number): string | null {
        return this.pool.texts[this.raw[i] ?? -1] ?? null;
    }
    private pointAt(place: number): Point {
        const { x, y, z } = this.pool;
        return { x: x[place] ?? NaN, y: y[place] ?? NaN, z: z[place] ?? NaN };
    }
}

export class Table {
    readonly name: string;
    readonly rows: number;
    readonly columns: Column[];
    private readonly byName = new Map<string, Column>();

    constructor(what: TableDescription, pool: Pool) {
        this.name = what.name;
        this.rows = what.rows;
        this.columns = what.columns.map((column) => new Column(column, pool));
        for (const column of this.columns) this.byName.set(column.name, column);
    }

    has(name: string): boolean {
        return this.byName.has(name);
    }
    // A table without records has no columns: then one without values.
    column(name: string): Column {
        return this.byName.get(name) ?? kNoColumn;
    }
}

const kNothing: Pool = {
    block: new Uint8Array(),
    texts: [],
    x: new Float64Array(),
    y: new Float64Array(),
    z: new Float64Array(),
};
const kNoColumn = new Column(
    { name: '', type: 'int', values: { as: 'constant', value: 0, count: 0 } },
    kNothing,
);
