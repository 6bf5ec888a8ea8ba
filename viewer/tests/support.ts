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
