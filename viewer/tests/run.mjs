// Runs the tests of the page: those of its parts, then those in a browser. Run by `./dev test viewer`.
import { spawnSync } from 'node:child_process';
import { readdirSync, rmSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const modules = join(here, '../../build/viewer/node_modules');
const output = join(modules, '../tests');
const { build } = await import(join(modules, 'esbuild/lib/main.js'));

for (const folder of [output, join(modules, '../scratch')])
    rmSync(folder, { recursive: true, force: true });
const tests = readdirSync(here).filter((name) => name.endsWith('.test.ts'));
await build({
    entryPoints: tests.map((name) => join(here, name)),
    outdir: output,
    outExtension: { '.js': '.mjs' },
    bundle: true,
    platform: 'node',
    format: 'esm',
    target: 'node18',
    nodePaths: [modules],
    external: ['playwright-core'],
    define: { TAMUR_ROOT: JSON.stringify(join(here, '../..')) },
});

const wanted = process.argv[2] ? ['--test-name-pattern', process.argv[2]] : [];
const files = tests.map((name) => join(output, name.replace(/\.ts$/, '.mjs')));
const { status } = spawnSync(
    process.execPath,
    ['--test', '--test-reporter', 'dot', ...wanted, ...files],
    { stdio: 'inherit' },
);
process.exitCode = status === 0 ? 0 : 1;
