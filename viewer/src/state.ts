// What the user chose. Whoever shows it listens; whoever changes it does so here.

export type ColourBy = 'kind' | 'group' | 'material' | 'section' | 'type' | 'finding';
export const kColourBy: ColourBy[] = ['kind', 'group', 'material', 'section', 'type', 'finding'];

export type Tool = 'select' | 'measure';
export type Panel = 'model' | 'loads' | 'findings';
export type Theme = 'auto' | 'light' | 'dark';

// Of each axis, from 0 to 1 through the model.
export interface Clip {
    low: [number, number, number];
    high: [number, number, number];
}
export const kWhole: Clip = { low: [0, 0, 0], high: [1, 1, 1] };

export interface State {
    selected: readonly number[]; // items; the last one is shown in detail
    hovered: number | undefined;
    loadCase: number | undefined;
    loadScale: number;
    showValues: boolean;
    colourBy: ColourBy;
    shownKinds: ReadonlySet<string>; // tables
    hidden: ReadonlySet<string>; // categories of colours, and levels: see visibility.ts
    hiddenItems: ReadonlySet<number>;
    isolated: ReadonlySet<number> | undefined;
    solids: boolean; // profiles of bars
    thickness: boolean;
    releases: boolean;
    axes: boolean;
    labels: boolean;
    markers: boolean; // of findings
    orthographic: boolean;
    clip: Clip;
    tool: Tool;
    panel: Panel;
    table: string | undefined; // that is open
    theme: Theme;
}

type Listener = (changed: ReadonlySet<keyof State>) => void;

export class Store {
    private listeners: { keys: ReadonlySet<keyof State> | undefined; listen: Listener }[] = [];

    constructor(private current: State) {}

    get state(): Readonly<State> {
        return this.current;
    }

    change(change: Partial<State>): void {
        const changed = new Set<keyof State>();
        for (const key of Object.keys(change) as (keyof State)[]) {
            if (this.current[key] !== change[key]) changed.add(key);
        }
        if (changed.size === 0) return;
        this.current = { ...this.current, ...change };
        for (const { keys, listen } of [...this.listeners]) {
            if (!keys || [...changed].some((key) => keys.has(key))) listen(changed);
        }
    }

    // Calls at once, too. Without keys: on every change.
    on(keys: (keyof State)[] | undefined, listen: Listener): void {
        this.listeners.push({ keys: keys && new Set(keys), listen });
        listen(new Set(keys));
    }
    // The interface is built anew: what listened is gone.
    forget(): void {
        this.listeners = [];
    }
}
