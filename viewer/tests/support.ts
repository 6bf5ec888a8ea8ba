// The tool that is tested, and pages that it makes.
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';

import { type Data, readPage } from '../src/data/read';

declare const TAMUR_ROOT: string;

export const root = TAMUR_ROOT;
const tool = join(root, 'build/native/tamur');
mkdirSync(join(root, 'build/viewer/scratch'), { recursive: true });
const scratch = mkdtempSync(join(root, 'build/viewer/scratch/'));

export const sample = (name: string): string => join(root, 'samples', `${name}.txt`);
export const samples = ['portique', 'hall', 'batiment', 'erreurs'];

// Model files are in Windows-1252.
export function modelFile(name: string, text: string): string {
    const path = join(scratch, `${name}.txt`);
    writeFileSync(path, text, 'latin1');
    return path;
}

export const output = (name: string): string => join(scratch, name);

export function run(...parameters: string[]): string {
    return execFileSync(tool, parameters, { encoding: 'utf8', maxBuffer: 2 ** 28 });
}

type Json = null | number | string | Json[] | { [key: string]: Json };
export type Record_ = { [key: string]: Json };

const kReferences: { [field: string]: string } = {
    StartSection: 'Sections',
    EndSection: 'Sections',
    StartConnection: 'Attaches',
    EndConnection: 'Attaches',
    FilaireMaterial: 'Materials',
    SurfaciqueMaterial: 'Materials',
};

const pointOf = ([x, y, z]: Json[]): Json => ({ x: x!, y: y!, z: z! });

function wholeList(name: string, list: Json[]): Json {
    if (name === 'ElemLabels') return { nbLabels: list.length, tabLabels: list };
    if (name === 'portCoef') return { nbPoints: list.length, tabCoef: list };
    if (['startPoint', 'endPoint', 'start', 'end'].includes(name)) return pointOf(list);
    if (name !== 'Geometrie' && name !== 'Surface') return list;
    if (list.length > 0 && !Array.isArray(list[0])) return pointOf(list);
    return { nbPoints: list.length, tabPoints: list.map((point) => pointOf(point as Json[])) };
}

function whole(name: string, value: Json, dump: Record<string, Record_[]>): Json {
    if (Array.isArray(value)) return wholeList(name, value);
    if (name in kReferences && typeof value === 'number')
        return dump[kReferences[name]!]![value] as Json;
    // That of a load case is a text.
    if (name === 'epureSec') {
        const outline = value as Record_;
        return { ...outline, Code: (outline.Code as string).charCodeAt(0) };
    }
    if (value === null || typeof value !== 'object') return value;
    return Object.fromEntries(
        Object.entries(value).map(([key, one]) => [key, whole(key, one, dump)]),
    );
}

// The dump of a model with every record whole, as the contract has it: no references.
export function dumpOf(file: string): Record<string, Record_[]> {
    const dump = JSON.parse(run('dump', file)) as Record<string, Record_[]>;
    for (const [name, records] of Object.entries(dump)) {
        if (Array.isArray(records) && name !== 'Messages')
            dump[name] = records.map((record) => whole('', record, dump) as Record_);
    }
    return dump;
}

// The path of the page of that model file.
export function pageOf(file: string): string {
    const path = output(`${file.split('/').pop()}.html`);
    run('view', file, '-o', path, '--force');
    return path;
}

export function dataOf(page: string): Promise<Data> {
    const html = readFileSync(page, 'utf8');
    const text = /id="data">([^<]*)</.exec(html)?.[1];
    if (text === undefined) throw new Error('the page has no data');
    return readPage(text);
}

export const kHead = '#Version\n12.1\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n1\n';

// A line of "#Elements".
export const bar = (identifier: number, from: string, to: string, label = 'B'): string =>
    `2 ${identifier} 0 2 1 ${from} ${to} ${label} 0 0 0 1 2 0 0 1 1 1 1 1 1 5`;
