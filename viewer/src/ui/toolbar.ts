import type { StandardView } from '../scene/view';
import type { Actions } from './actions';
import type { Context } from './context';
import { fill, h, newId } from './dom';
import { icon, type IconName } from './icons';

const kViews: StandardView[] = ['iso', 'front', 'back', 'left', 'right', 'top', 'bottom'];

export function makeToolbar(context: Context, actions: Actions, clip: HTMLElement): HTMLElement {
    const { store, texts } = context;
    const id = newId();
    const views = h(
        'select',
        {
            id,
            'aria-label': texts.view,
            change: () => {
                actions.look(views.value as StandardView);
                views.selectedIndex = 0;
            },
        },
        h('option', { value: '', disabled: true }, texts.view),
        ...kViews.map((view) => h('option', { value: view }, texts[view])),
    );
    views.selectedIndex = 0;
    const tool = (
        name: IconName,
        text: string,
        click: () => void,
        help?: string,
    ): HTMLButtonElement => {
        const element = h('button', { type: 'button', click, title: help ?? text });
        element.append(icon(name), h('span', {}, text));
        return element;
    };
    const pressed = (element: HTMLButtonElement, isPressed: boolean): void =>
        element.setAttribute('aria-pressed', String(isPressed));
    const parallel = tool(
        'parallel',
        texts.parallel,
        () => store.change({ orthographic: !store.state.orthographic }),
        texts.parallelHelp,
    );
    store.on(['orthographic'], () => pressed(parallel, store.state.orthographic));
    const measure = tool('measure', texts.measure, () =>
        store.change({ tool: store.state.tool === 'measure' ? 'select' : 'measure' }),
    );
    store.on(['tool'], () => pressed(measure, store.state.tool === 'measure'));
    const clipping = tool('clip', texts.clip, () => {
        clip.hidden = !clip.hidden;
        clipping.setAttribute('aria-expanded', String(!clip.hidden));
    });
    clipping.setAttribute('aria-expanded', 'false');
    const ofSelection = [
        tool('hide', texts.hide, actions.hide),
        tool('isolate', texts.isolate, actions.isolate),
    ];
    store.on(['selected'], () =>
        ofSelection.forEach((one) => (one.disabled = store.state.selected.length === 0)),
    );
    const all = tool('all', texts.showAll, actions.showAll);
    store.on(['hiddenItems', 'isolated', 'hidden', 'clip'], () => {
        const { hiddenItems, isolated, hidden } = store.state;
        const { low, high } = store.state.clip;
        all.disabled =
            hiddenItems.size === 0 &&
            !isolated &&
            hidden.size === 0 &&
            low.every((part) => part === 0) &&
            high.every((part) => part === 1);
    });
    const link = tool('link', texts.link, () => void actions.link(), texts.linkHelp);
    const bar = h('div', { class: 'toolbar', role: 'toolbar', 'aria-label': texts.tools });
    fill(
        bar,
        h(
            'div',
            { class: 'tools' },
            views,
            tool('fit', texts.fit, actions.fit, texts.fitHelp),
            parallel,
        ),
        h('div', { class: 'tools' }, measure, clipping),
        h('div', { class: 'tools' }, ...ofSelection, all),
        h(
            'div',
            { class: 'tools' },
            tool('picture', texts.png, actions.picture, texts.pngHelp),
            link,
        ),
    );
    return bar;
}
