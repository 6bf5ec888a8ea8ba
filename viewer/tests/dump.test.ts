// What a page holds is what the tool dumps, field by field.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import type { Value } from '../src/data/table';
import { dataOf, dumpOf, kHead, modelFile, pageOf, type Record_, sample, samples } from './support';

type Json = null | number | string | Json[] | { [key: string]: Json };

// Numbers as JSON has them.
function plain(value: Value): Json {
    if (typeof value === 'number')
        return Number.isNaN(value)
            ? 'nan'
            : Number.isFinite(value)
              ? value
              : value > 0
                ? 'inf'
                : '-inf';
    if (Array.isArray(value)) return value.map(plain);
    if (value === null || typeof value === 'string') return value;
    return { x: plain(value.x), y: plain(value.y), z: plain(value.z) };
}

function fieldAt(record: Record_, path: string): Json | undefined {
    let at: Json | undefined = record;
    for (const name of path.split('.')) at = (at as Record_)[name];
    return at;
}

const trimmed = (list: Json): Json => {
    if (!Array.isArray(list) || list.length <= 100) return list;
    const copy = [...list];
    while (copy.length > 100 && (copy[copy.length - 1] === 0 || copy[copy.length - 1] === ''))
        copy.pop();
    return copy;
};

async function compare(file: string): Promise<number> {
    const dump = dumpOf(file);
    const data = await dataOf(pageOf(file));
    let compared = 0;
    for (const [name, records] of Object.entries(dump)) {
        if (!Array.isArray(records) || name === 'Messages') continue;
        const table = data.table(name);
        assert.equal(table.rows, records.length, name);
        for (const column of table.columns) {
            if (
                column.refersTo === undefined &&
                records[0] &&
                fieldAt(records[0], column.name) !== undefined
            ) {
                records.forEach((record, row) => {
                    assert.deepEqual(
                        plain(column.value(row)),
                        trimmed(fieldAt(record, column.name)!),
                        `${name} ${row} ${column.name}`,
                    );
                    ++compared;
                });
            } else if (
                column.refersTo &&
                records[0] &&
                fieldAt(records[0], column.name) !== undefined
            ) {
                // Which of the other table: the copy in the record is its record.
                const others = dump[column.refersTo]!;
                records.forEach((record, row) => {
                    const place = column.number(row);
                    if (place >= 0)
                        assert.deepEqual(
                            fieldAt(record, column.name),
                            others[place] as Json,
                            `${name} ${row} ${column.name}`,
                        );
                    ++compared;
                });
            }
        }
        // No field is missing: nested records of other tables are those that are referred to.
        const known = new Set(table.columns.map((column) => column.name.split('.')[0]));
        for (const field of Object.keys(records[0] ?? {}))
            assert.ok(known.has(field), `${name} ${field}`);
    }
    return compared;
}

for (const name of samples) {
    test(`the page of ${name} holds every field of every record`, async () => {
        assert.ok((await compare(sample(name))) > 300);
    });
}

test('so does that of a hostile model', async () => {
    const file = modelFile(
        'hostile-fields',
        `${kHead}#Geometries\nS 1 1 1 1 1 1 1 1 1 1 1 49999 S 1 2 3\n#Elements\n` +
            '1 1 0 1 49999 1e308 -1e308 0 L\n1 4294967295 0 1 1 1e-320 0 0 \x80\x01<b>\n2 2 0 2 1 0 0 0 1 nan 0 L 0 0 0 1 2 0 0 1 1 9 9 9 9 5\n' +
            '3 3 0 2 1 0 0 0 1 1 1 P 0 0 0 1 3 1 1 4 4 0.2 0 0\n5 4 0 1 0 inf 0 0 0 0 0 1 1 1 1 1\n',
    );
    assert.ok((await compare(file)) > 20);
});
