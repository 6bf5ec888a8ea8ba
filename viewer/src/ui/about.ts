// What the page is, its keys, and the conventions that it draws by.
import type { Context } from './context';
import { button, h, newId } from './dom';

export function makeAbout({ texts, model }: Context): HTMLDialogElement {
    const file = model.data.table('File');
    const title = newId();
    const [intro, ...rules] = texts.conventionsText;
    const dialog = h(
        'dialog',
        { class: 'about', 'aria-labelledby': title },
        h(
            'header',
            {},
            h('h2', { id: title }, 'TAMUR view'),
            button('×', () => dialog.close(), { class: 'plain', 'aria-label': texts.close }),
        ),
        h(
            'dl',
            {},
            h('dt', {}, texts.madeFrom),
            h('dd', {}, file.column('name').text(0) ?? ''),
            h('dt', {}, texts.fileVersion),
            h('dd', {}, file.column('version').text(0) ?? ''),
        ),
        h('h3', {}, texts.keys),
        h(
            'dl',
            { class: 'keys' },
            ...texts.keysText.flatMap(([key, what]) => [
                h('dt', {}, h('kbd', {}, key)),
                h('dd', {}, what),
            ]),
        ),
        h('h3', {}, texts.conventions),
        h('p', {}, intro ?? ''),
        h('ul', {}, ...rules.map((rule) => h('li', {}, rule))),
        h('p', { class: 'quiet' }, texts.licences),
    );
    return dialog;
}
