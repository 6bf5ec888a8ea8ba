// Cuts the picture by six planes.
import { numberText } from '../names';
import { type Clip, kWhole } from '../state';
import type { Context } from './context';
import { button, fill, h, newId } from './dom';

const kAxes = ['x', 'y', 'z'] as const;
const kSteps = 200;

export function makeClip(context: Context, element: HTMLElement): void {
    const { store, texts, model } = context;
    const { low, high } = model.box;
    const outputs: (() => void)[] = [];
    const slider = (axis: 0 | 1 | 2, end: keyof Clip): HTMLElement => {
        const id = newId();
        const name = kAxes[axis];
        const input = h('input', {
            type: 'range',
            id,
            min: 0,
            max: kSteps,
            step: 1,
            input: () => {
                const clip: Clip = {
                    low: [...store.state.clip.low],
                    high: [...store.state.clip.high],
                };
                const part = Number(input.value) / kSteps;
                clip[end][axis] = part;
                if (end === 'low') clip.high[axis] = Math.max(clip.high[axis]!, part);
                else clip.low[axis] = Math.min(clip.low[axis]!, part);
                store.change({ clip });
            },
        });
        const value = h('output', { for: id });
        outputs.push(() => {
            const part = store.state.clip[end][axis]!;
            input.value = String(Math.round(part * kSteps));
            const at = low[name] + (high[name] - low[name]) * part + model.centre[name];
            value.textContent = `${numberText(at, 5)} m`;
        });
        return h(
            'div',
            { class: 'row' },
            h('label', { for: id }, `${name} ${end === 'low' ? texts.low : texts.high}`),
            input,
            value,
        );
    };
    fill(
        element,
        ...([0, 1, 2] as const).flatMap((axis) => [slider(axis, 'low'), slider(axis, 'high')]),
        button(texts.wholeModel, () => store.change({ clip: kWhole })),
    );
    store.on(['clip'], () => outputs.forEach((show) => show()));
}
