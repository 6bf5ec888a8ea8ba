// The distance of two points: corners, ends and middles of what is clicked, or places of what is chosen in
// the tables.
import type { Point } from '../data/table';
import { add, between, length, middleOf, subtract } from '../geometry/vectors';
import type { Item, Model } from '../model';
import { numberText } from '../names';
import type { Context } from './context';
import { button, fill, h } from './dom';
import type { Overlay } from './overlay';

const kSnap = 14; // pixels

// Where such a click is meant: a corner or a middle nearby, else the foot on an edge.
function snapped(context: Context, item: Item, x: number, y: number): Point | undefined {
    const corners = context.model.placeOf(item);
    if (corners.length === 0) return undefined;
    const edges = corners.map((corner, i) => [corner, corners[(i + 1) % corners.length]!] as const);
    const candidates = [...corners, ...edges.map(([a, b]) => middleOf([a, b]))];
    const distanceTo = (point: Point): number => {
        const at = context.stage?.view.project(point);
        return at ? Math.hypot(at.x - x, at.y - y) : Infinity;
    };
    const best = candidates.reduce((a, b) => (distanceTo(b) < distanceTo(a) ? b : a));
    if (distanceTo(best) <= kSnap) return best;
    const feet = edges.flatMap(([a, b]) =>
        Array.from({ length: 65 }, (_, i) => between(a, b, i / 64)),
    );
    return feet.reduce((a, b) => (distanceTo(b) < distanceTo(a) ? b : a), best);
}

export class Measure {
    private points: Point[] = [];

    constructor(
        private readonly context: Context,
        private readonly overlay: Overlay | undefined,
        private readonly element: HTMLElement,
    ) {
        const { store } = context;
        store.on(['tool'], () => {
            this.points = [];
            this.show();
        });
        store.on(['selected'], () => {
            const item = context.model.itemOf(store.state.selected[0] ?? -1);
            if (store.state.tool === 'measure' && item && !this.isClicking)
                this.add(middleOf(context.model.placeOf(item)));
        });
    }
    private isClicking = false;

    click(item: Item, x: number, y: number): void {
        const point = snapped(this.context, item, x, y);
        this.isClicking = true;
        this.context.select(item);
        this.isClicking = false;
        if (point) this.add(point);
    }

    private add(point: Point): void {
        if (![point.x, point.y, point.z].every(Number.isFinite)) return;
        this.points = this.points.length === 2 ? [point] : [...this.points, point];
        this.show();
    }

    private show(): void {
        const { store, texts, model, stage } = this.context;
        this.element.hidden = store.state.tool !== 'measure';
        if (this.overlay) this.overlay.measured = this.points;
        stage?.view.request();
        if (this.element.hidden) return;
        fill(
            this.element,
            h(
                'p',
                { role: 'status' },
                ...(this.points.length === 2
                    ? resultOf(model, texts.distance, this.points)
                    : [this.points.length === 1 ? texts.measureNext : texts.measureHelp]),
            ),
            button(texts.close, () => store.change({ tool: 'select' })),
        );
    }
}

function resultOf(model: Model, name: string, [a, b]: Point[]): HTMLElement[] {
    const between = subtract(b!, a!);
    const text = (value: number): string => numberText(value, 7);
    const place = (point: Point): string => {
        const at = add(point, model.centre);
        return `(${text(at.x)}; ${text(at.y)}; ${text(at.z)})`;
    };
    return [
        h('strong', {}, `${name} ${text(length(between))} m`),
        h(
            'span',
            { class: 'quiet' },
            ` Δx ${text(between.x)} · Δy ${text(between.y)} · Δz ${text(between.z)}`,
        ),
        h('br'),
        h('span', { class: 'quiet' }, `${place(a!)} → ${place(b!)}`),
    ];
}
