// The columns of numbers, on the table that is shared with who writes them.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';

import {
    type IntsDescription,
    readInts,
    readReals,
    readTexts,
    type RealsDescription,
} from '../src/data/columns';
import { root } from './support';

const numbers: Record<string, number> = { nan: NaN, inf: Infinity, '-inf': -Infinity };
const numberOf = (word: string): number => numbers[word] ?? Number(word);

const lines = readFileSync(join(root, 'tests/host/vectors/columns.txt'), 'utf8')
    .split('\n')
    .filter((line) => line !== '' && !line.startsWith('#'));

test('columns are read as the shared table says', () => {
    assert.ok(lines.length >= 15);
    for (const line of lines) {
        const [kind, values, description, hex] = line.split('|') as [
            string,
            string,
            string,
            string,
        ];
        const expected = values
            .split(' ')
            .filter((word) => word !== '')
            .map(numberOf);
        const block = Uint8Array.from(Buffer.from(hex, 'hex'));
        const read =
            kind === 'ints'
                ? readInts(block, JSON.parse(description) as IntsDescription)
                : readReals(block, JSON.parse(description) as RealsDescription);
        assert.equal(read.length, expected.length, line);
        // Bit by bit: -0 is not 0, and nothing is nearly right.
        expected.forEach((value, i) => assert.ok(Object.is(read[i], value), line));
    }
});

test('texts end with a NUL each', () => {
    const bytes = new TextEncoder().encode('x\0a\0\0é</script>\0');
    assert.deepEqual(readTexts(bytes, { as: 'bytes', at: 2, count: bytes.length - 2 }), [
        'a',
        '',
        'é</script>',
    ]);
    assert.deepEqual(readTexts(bytes, { as: 'bytes', at: 0, count: 0 }), []);
});
