// What the page holds: base64, deflated; then the length of a header, the header and the columns.
import { type BytesDescription, type RealsDescription, readReals, readTexts } from './columns';
import { type Pool, Table, type TableDescription } from './table';

interface Header {
    tables: TableDescription[];
    points: { x: RealsDescription; y: RealsDescription; z: RealsDescription };
    texts: BytesDescription;
}

export class Data {
    readonly tables = new Map<string, Table>();

    constructor(
        header: Header,
        readonly pool: Pool,
    ) {
        for (const what of header.tables) this.tables.set(what.name, new Table(what, pool));
    }

    table(name: string): Table {
        return this.tables.get(name) ?? new Table({ name, rows: 0, columns: [] }, this.pool);
    }
}

function fromBase64(text: string): Uint8Array<ArrayBuffer> {
    const binary = atob(text);
    const bytes = new Uint8Array(binary.length);
    for (let i = 0; i < binary.length; ++i) bytes[i] = binary.charCodeAt(i);
    return bytes;
}

async function inflate(bytes: Uint8Array<ArrayBuffer>): Promise<Uint8Array> {
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate'));
    return new Uint8Array(await new Response(stream).arrayBuffer());
}

export function readData(bytes: Uint8Array): Data {
    const length = new DataView(bytes.buffer, bytes.byteOffset).getUint32(0, true);
    const header = JSON.parse(new TextDecoder().decode(bytes.subarray(4, 4 + length))) as Header;
    const block = bytes.subarray(4 + length);
    return new Data(header, {
        block,
        texts: readTexts(block, header.texts),
        x: readReals(block, header.points.x),
        y: readReals(block, header.points.y),
        z: readReals(block, header.points.z),
    });
}

export async function readPage(text: string): Promise<Data> {
    return readData(await inflate(fromBase64(text)));
}
