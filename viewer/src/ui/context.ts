// What every part of the interface works with.
import type { Colouring } from '../colours';
import type { Findings } from '../findings';
import type { Levels } from '../levels';
import type { Item, Model } from '../model';
import type { Stage } from '../scene/stage';
import type { Store } from '../state';
import type { Language, Texts } from '../text';

export interface Context {
    model: Model;
    findings: Findings;
    levels: Levels;
    store: Store;
    texts: Texts;
    language: Language;
    stage: Stage | undefined; // nothing without WebGL
    colouring: () => Colouring;
    // Selects it, opens what shows it and flies there.
    goTo: (item: Item) => void;
    // What a click on it does, here or in a list: `isAdded` keeps what was selected.
    select: (item: Item | undefined, isAdded?: boolean) => void;
    measureCovered: () => void; // before something is fitted into the picture
    say: (text: string) => void; // for people who listen and for those who look
}
