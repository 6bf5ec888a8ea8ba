// Keys, as the page about itself lists them.
import type { StandardView, View } from '../scene/view';
import type { Actions } from './actions';
import type { Context } from './context';
import { firstTable } from './tables';

const kViews: StandardView[] = ['iso', 'front', 'back', 'left', 'right', 'top', 'bottom'];
const kTurn = Math.PI / 24;

function move(view: View, event: KeyboardEvent): boolean {
    const [right, up] = {
        ArrowLeft: [-1, 0],
        ArrowRight: [1, 0],
        ArrowUp: [0, 1],
        ArrowDown: [0, -1],
    }[event.key] ?? [0, 0];
    if (right === 0 && up === 0) return false;
    if (event.shiftKey) view.shift(right! * 0.06, up! * 0.06);
    else view.turn(-right! * kTurn, -up! * kTurn);
    return true;
}

export function listenToKeys(
    context: Context,
    actions: Actions,
    canvas: HTMLElement,
    about: () => HTMLDialogElement,
): void {
    const { store, stage } = context;
    canvas.addEventListener('keydown', (event) => {
        if (event.ctrlKey || event.metaKey || event.altKey || !stage) return;
        let isTaken = move(stage.view, event);
        if (event.key === '+' || event.key === '=') isTaken = (stage.view.approach(1.2), true);
        if (event.key === '-') isTaken = (stage.view.approach(1 / 1.2), true);
        if (isTaken) event.preventDefault();
    });
    const simple: Record<string, () => void> = {
        f: actions.fit,
        h: actions.hide,
        i: actions.isolate,
        a: actions.showAll,
        p: () => store.change({ orthographic: !store.state.orthographic }),
        m: () => store.change({ tool: store.state.tool === 'measure' ? 'select' : 'measure' }),
        t: () =>
            store.change({
                table: store.state.table === undefined ? firstTable(context) : undefined,
            }),
        '/': () => document.getElementById('search')?.focus(),
        '?': () => about().showModal(),
        Escape: () => store.change({ selected: [], tool: 'select' }),
    };
    document.onkeydown = (event) => {
        const { target } = event;
        const isTyping =
            target instanceof HTMLInputElement &&
            !['checkbox', 'radio', 'range'].includes(target.type);
        if (
            event.ctrlKey ||
            event.metaKey ||
            event.altKey ||
            isTyping ||
            target instanceof HTMLSelectElement
        )
            return;
        if (document.querySelector('dialog[open]')) return;
        const view = kViews[Number(event.key) - 1];
        const action = view
            ? () => actions.look(view)
            : simple[event.key.length === 1 ? event.key.toLowerCase() : event.key];
        if (!action) return;
        event.preventDefault();
        action();
    };
}
