// What buttons and keys do.
import { kWhole } from '../state';
import { addressOf } from '../address';
import type { StandardView } from '../scene/view';
import type { Context } from './context';
import { save } from './dom';
import type { Overlay } from './overlay';

export interface Actions {
    look: (view: StandardView) => void;
    fit: () => void;
    hide: () => void;
    isolate: () => void;
    showAll: () => void;
    picture: () => void;
    link: () => Promise<void>;
}

export function makeActions(context: Context, overlay: () => Overlay | undefined): Actions {
    const { store, model, stage, texts } = context;
    return {
        look: (view) => {
            context.measureCovered();
            stage?.view.look(view);
        },
        fit: () => {
            context.measureCovered();
            const points = store.state.selected.flatMap((number) => {
                const item = model.itemOf(number);
                return item ? model.placeOf(item) : [];
            });
            stage?.view.fit(points.length > 0 ? points : undefined);
        },
        hide: () =>
            store.change({
                hiddenItems: new Set([...store.state.hiddenItems, ...store.state.selected]),
                selected: [],
            }),
        isolate: () => {
            if (store.state.selected.length > 0)
                store.change({ isolated: new Set(store.state.selected) });
        },
        showAll: () =>
            store.change({
                hiddenItems: new Set(),
                isolated: undefined,
                hidden: new Set(),
                clip: kWhole,
            }),
        picture: () => {
            if (!stage) return;
            const { canvas } = stage.view;
            const picture = document.createElement('canvas');
            picture.width = canvas.width;
            picture.height = canvas.height;
            const pen = picture.getContext('2d')!;
            stage.view.draw(); // what was drawn before is gone
            pen.drawImage(canvas, 0, 0);
            overlay()?.paintOn(pen);
            picture.toBlob((blob) => blob && save(blob, 'model.png'), 'image/png');
        },
        link: async () => {
            const address = location.href.split('#')[0] + addressOf(context, true);
            try {
                await navigator.clipboard.writeText(address);
                context.say(texts.linkCopied);
            } catch {
                context.say(`${texts.linkHere} ${address}`); // not every browser lets pages of files copy
            }
        },
    };
}
