// What the pointer does on the picture: names what is under it, and selects it.
import type { Item } from '../model';
import { nameOf, titleOf } from '../names';
import type { Context } from './context';
import { fill, h } from './dom';
import type { Measure } from './measure';

const kClick = 5; // pixels: more is a turn
const kQuick = 60; // ms: when looking takes longer, the pointer must rest

export function listenToPointer(
    context: Context,
    canvas: HTMLCanvasElement,
    tip: HTMLElement,
    measure: Measure,
): void {
    const { stage, store, model, texts } = context;
    if (!stage) return;
    let down: { x: number; y: number } | undefined;
    let waiting: ReturnType<typeof setTimeout> | undefined;
    const placeOf = (event: PointerEvent): { x: number; y: number } => {
        const { left, top } = canvas.getBoundingClientRect();
        return { x: event.clientX - left, y: event.clientY - top };
    };
    const leave = (): void => {
        clearTimeout(waiting);
        tip.hidden = true;
        store.change({ hovered: undefined });
    };
    const hover = ({ x, y }: { x: number; y: number }): void => {
        const item = stage.pick(x, y);
        store.change({ hovered: item?.number });
        canvas.style.cursor = item ? 'pointer' : 'default';
        tip.hidden = !item;
        if (item) showTip(item, x, y);
    };
    const showTip = (item: Item, x: number, y: number): void => {
        const title = titleOf(model, item);
        fill(tip, h('strong', {}, nameOf(model, texts, item)), title ? ` ${title}` : '');
        const { width, height } = stage.view.size;
        const isRight = x > width * 0.65;
        tip.style.left = isRight ? 'auto' : `${x + 14}px`;
        tip.style.right = isRight ? `${width - x + 14}px` : 'auto';
        tip.style.top = `${Math.min(y + 14, height - 40)}px`;
    };
    canvas.addEventListener('pointerdown', (event) => {
        down = placeOf(event);
        leave();
    });
    canvas.addEventListener('pointermove', (event) => {
        if (event.buttons !== 0 || event.pointerType === 'touch') return;
        const place = placeOf(event);
        clearTimeout(waiting);
        waiting = setTimeout(() => hover(place), stage.picker.lastTook > kQuick ? 180 : 0);
    });
    canvas.addEventListener('pointerleave', leave);
    canvas.addEventListener('pointerup', (event) => {
        const place = placeOf(event);
        const isClick =
            down && Math.hypot(place.x - down.x, place.y - down.y) <= kClick && event.button === 0;
        down = undefined;
        if (!isClick) return;
        const item = stage.pick(place.x, place.y);
        if (store.state.tool === 'measure') {
            if (item) measure.click(item, place.x, place.y);
        } else context.select(item, event.ctrlKey || event.metaKey || event.shiftKey);
    });
    canvas.addEventListener('dblclick', (event) => {
        const { left, top } = canvas.getBoundingClientRect();
        const item = stage.pick(event.clientX - left, event.clientY - top);
        if (item) stage.view.fit(model.placeOf(item));
    });
}
