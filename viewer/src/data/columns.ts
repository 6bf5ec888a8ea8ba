// Columns as host/view/data_block.cpp writes them.

interface ConstantInts {
    as: 'constant';
    value: number;
    count: number;
}
interface WrittenInts {
    as: 'plain' | 'differences';
    bytes: 1 | 2 | 4;
    at: number;
    count: number;
}
export type IntsDescription = ConstantInts | WrittenInts;

interface DecimalReals {
    as: 'decimal';
    digits: number;
    ints: IntsDescription;
}
interface FewReals {
    as: 'few';
    at: number;
    values: number;
    places: IntsDescription;
}
interface PlainReals {
    as: 'real';
    at: number;
    count: number;
}
export type RealsDescription = DecimalReals | FewReals | PlainReals;

export interface BytesDescription {
    as: 'bytes';
    at: number;
    count: number;
}

// The first bytes of all values, then the second ones, as values again.
function joinPlanes(block: Uint8Array, at: number, width: number, count: number): Uint8Array {
    const joined = new Uint8Array(width * count);
    for (let plane = 0; plane < width; ++plane) {
        const start = at + plane * count;
        for (let i = 0; i < count; ++i) joined[i * width + plane] = block[start + i]!;
    }
    return joined;
}

export function readInts(block: Uint8Array, what: IntsDescription): Int32Array {
    if (what.as === 'constant') return new Int32Array(what.count).fill(what.value);
    const bytes = joinPlanes(block, what.at, what.bytes, what.count).buffer;
    const written =
        what.bytes === 1
            ? new Int8Array(bytes)
            : what.bytes === 2
              ? new Int16Array(bytes)
              : new Int32Array(bytes);
    const values = Int32Array.from(written);
    if (what.as === 'differences') {
        // Stored as 32 bits, sums go around like those of the writer.
        for (let i = 1; i < values.length; ++i) values[i] = values[i]! + values[i - 1]!;
    }
    return values;
}

export function readReals(block: Uint8Array, what: RealsDescription): Float64Array {
    switch (what.as) {
        case 'decimal': {
            const power = 10 ** what.digits;
            return Float64Array.from(readInts(block, what.ints), (value) => value / power);
        }
        case 'few': {
            const few = new Float64Array(block.slice(what.at, what.at + 8 * what.values).buffer);
            return Float64Array.from(readInts(block, what.places), (place) => few[place]!);
        }
        case 'real':
            return new Float64Array(joinPlanes(block, what.at, 8, what.count).buffer);
    }
}

export function readTexts(block: Uint8Array, what: BytesDescription): string[] {
    const texts = new TextDecoder()
        .decode(block.subarray(what.at, what.at + what.count))
        .split('\0');
    texts.pop(); // what follows the last NUL
    return texts;
}
