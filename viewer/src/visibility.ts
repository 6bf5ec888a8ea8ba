// Which items are seen, and in which colours: written into the states of the picture.
import type { Colouring } from './colours';
import { kKinds } from './kinds';
import type { Levels } from './levels';
import type { Model } from './model';
import type { States } from './scene/states';
import type { State } from './state';

export const levelKey = (level: number): string => `level:${level}`;

export function applyStates(
    states: States,
    model: Model,
    state: Readonly<State>,
    colouring: Colouring,
    levels: Levels,
): void {
    const hidesCategory = colouring.categories.some((category) => state.hidden.has(category.key));
    const hidesLevel = levels.heights.some((_, level) => state.hidden.has(levelKey(level)));
    for (const kind of kKinds) {
        if (!kind.shape) continue;
        const isShown = state.shownKinds.has(kind.table);
        const { rows } = model.tableOf(kind);
        for (let rank = 0; rank < rows; ++rank) {
            const item = model.item(kind, rank);
            const category = colouring.categoryOf(item);
            let isVisible = isShown && !state.hiddenItems.has(item.number);
            if (state.isolated && !kind.isLoad) isVisible &&= state.isolated.has(item.number);
            if (hidesCategory && category) isVisible &&= !state.hidden.has(category.key);
            if (hidesLevel && isVisible && !kind.isLoad) {
                isVisible = !state.hidden.has(levelKey(levels.levelOf(item)));
            }
            states.setColour(item.number, colouring.colourOf(item));
            states.setVisible(item.number, isVisible);
        }
    }
    for (const item of state.selected) states.setSelected(item);
    states.commit();
}
