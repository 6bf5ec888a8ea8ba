// Makes the page without a model of the sources: one file, in which nothing refers to another. Run by
// `./dev viewer`.
import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const modules = join(here, '../build/viewer/node_modules');
const { build } = await import(join(modules, 'esbuild/lib/main.js'));
const output = process.argv[2];
// The page is passed on without us, and so has the licences of what is in it.
const { dependencies } = JSON.parse(readFileSync(join(here, 'package.json'), 'utf8'));
const licences = Object.keys(dependencies).map(
    (name) => `${name}:\n${readFileSync(join(modules, name, 'LICENSE'), 'utf8')}`,
);

async function bundle(entry) {
    const { outputFiles } = await build({
        entryPoints: [join(here, 'src', entry)],
        bundle: true,
        minify: true,
        write: false,
        charset: 'utf8',
        target: 'es2022',
        format: 'iife',
        legalComments: 'inline',
        banner: { js: `/*!\n${licences.join('\n')}*/` },
        nodePaths: [modules],
        absWorkingDir: here,
    });
    return outputFiles[0].text.trim();
}

// Nothing in it ends the element that it is in.
const script = (await bundle('main.ts'))
    .replaceAll('</script', '<\\/script')
    .replaceAll('<!--', '<\\!--');
const style = await bundle('style.css');
const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;
// Pictures that are saved are made in the page: nothing is ever loaded.
const policy = `default-src 'none'; script-src ${hash(script)}; style-src ${hash(style)}; base-uri 'none'; form-action 'none'`;
const parts = { '@POLICY@': policy, '@STYLE@': style, '@SCRIPT@': script };
const page = readFileSync(join(here, 'src/page.html'), 'utf8').replace(
    /@(POLICY|STYLE|SCRIPT)@/g,
    (part) => parts[part],
);
writeFileSync(output, page);
