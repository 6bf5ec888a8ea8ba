import { type Address, readAddress } from './address';
import { Colouring, kOfSeverities } from './colours';
import { readPage } from './data/read';
import { Findings } from './findings';
import { Bars } from './geometry/bars';
import { kKinds } from './kinds';
import { Levels } from './levels';
import { Model, type Item } from './model';
import { Stage } from './scene/stage';
import { States } from './scene/states';
import { kWhole, Store } from './state';
import { kindNoun, type Language, languageOf, textsIn } from './text';
import type { Context } from './ui/context';
import { makePage, type Page } from './ui/page';
import { applyStates } from './visibility';

class App {
    private readonly store = new Store({
        selected: [],
        hovered: undefined,
        loadCase: undefined,
        loadScale: 1,
        showValues: true,
        colourBy: 'kind',
        shownKinds: new Set(kKinds.filter((kind) => kind.isShown).map((kind) => kind.table)),
        hidden: new Set(),
        hiddenItems: new Set(),
        isolated: undefined,
        solids: false,
        thickness: false,
        releases: true,
        axes: false,
        labels: false,
        markers: false,
        orthographic: false,
        clip: kWhole,
        tool: 'select',
        panel: 'model',
        table: undefined,
        theme: 'auto',
    });
    private readonly findings: Findings;
    private readonly levels: Levels;
    private readonly states: States;
    private readonly canvas = document.createElement('canvas');
    private readonly overlay = document.createElement('canvas');
    private stage: Stage | undefined;
    private page: Page | undefined;
    private language: Language = languageOf(navigator.languages);
    private colouring!: Colouring;
    private trouble: string | undefined;

    constructor(
        private readonly model: Model,
        private readonly body: HTMLElement,
    ) {
        this.findings = new Findings(model);
        this.levels = new Levels(model);
        this.states = new States(model.itemCount);
        this.canvas.id = 'model';
        this.canvas.tabIndex = 0;
        this.canvas.setAttribute('role', 'img');
        this.overlay.className = 'overlay';
        this.overlay.setAttribute('aria-hidden', 'true');
        try {
            this.stage = new Stage(this.canvas, model, new Bars(model), this.findings, this.states);
        } catch {
            this.trouble = textsIn(this.language).noWebGl;
        }
    }

    start(): void {
        const address = readAddress(this.model, location.hash);
        const marks = this.findings.count(2) + this.findings.count(1) > 0;
        this.store.change({
            ...address.state,
            markers: marks,
            selected: address.item ? [address.item.number] : [],
        });
        if (!this.stage && this.store.state.table === undefined) {
            this.store.change({
                table: kKinds.find((kind) => this.model.tableOf(kind).rows > 0)?.table,
            });
        }
        this.build();
        this.follow();
        this.sayMissing(address);
        if (address.eye && this.stage) this.stage.view.eye = address.eye;
        else if (address.item) this.goTo(address.item);
        window.addEventListener('hashchange', () => this.goToAddress());
        matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () =>
            this.setColours(),
        );
    }

    private build(): void {
        this.store.forget();
        const texts = textsIn(this.language);
        if (this.trouble) this.trouble = texts.noWebGl;
        this.colouring = new Colouring(this.store.state.colourBy, this.model, this.findings, texts);
        const context: Context = {
            model: this.model,
            findings: this.findings,
            levels: this.levels,
            store: this.store,
            texts,
            language: this.language,
            stage: this.stage,
            colouring: () => this.colouring,
            goTo: (item) => this.goTo(item),
            select: (item, isAdded) => this.select(item, isAdded),
            measureCovered: () => this.measureCovered(),
            say: (text) => this.say(text),
        };
        // Before what shows the legend.
        this.store.on(['colourBy'], () => {
            if (this.colouring.by === this.store.state.colourBy) return;
            this.colouring = new Colouring(
                this.store.state.colourBy,
                this.model,
                this.findings,
                texts,
            );
        });
        if (this.stage) this.setColours();
        this.page = makePage(
            context,
            { canvas: this.canvas, overlay: this.overlay, trouble: this.trouble },
            () => {
                this.language = this.language === 'fr' ? 'en' : 'fr';
                this.build();
            },
            this.body,
        );
        this.store.on(['theme'], () => this.setColours());
        if (this.stage) this.show(this.stage);
    }

    private show(stage: Stage): void {
        this.store.on(
            ['selected', 'colourBy', 'shownKinds', 'hidden', 'hiddenItems', 'isolated'],
            () =>
                applyStates(this.states, this.model, this.store.state, this.colouring, this.levels),
        );
        this.store.on(undefined, (changed) => stage.update(this.store.state, changed));
        stage.view.onFrame = () => this.page?.overlay?.draw();
        let waiting: ReturnType<typeof setTimeout> | undefined;
        stage.view.onMove = () => {
            if (!this.store.state.solids) return;
            clearTimeout(waiting);
            waiting = setTimeout(() => stage.drawProfiles(this.store.state), 250);
        };
        stage.view.onLost = () => this.say(textsIn(this.language).lostWebGl);
        const place = this.canvas.parentElement!;
        const resize = (): void => {
            const { clientWidth, clientHeight } = place;
            const ratio = Math.min(devicePixelRatio, 2);
            this.page?.overlay?.resize(clientWidth, clientHeight, ratio);
            stage.view.resize(clientWidth, clientHeight, ratio);
        };
        resize();
        new ResizeObserver(resize).observe(place);
        this.measureCovered();
        if (!this.hasFitted) stage.view.look(stage.view.firstView);
        this.hasFitted = true;
    }
    private hasFitted = false;

    // Whatever hides it is undone: who goes somewhere wants to see it.
    private goTo(item: Item): void {
        const { state } = this.store;
        this.store.change({ selected: [item.number] });
        if (!item.kind.shape) return;
        if (item.kind.isLoad) {
            const loadCase = this.model.tableOf(item.kind).column('NumCas').number(item.rank);
            this.store.change({ loadCase });
        } else if (!this.states.isVisible(item.number)) {
            const hiddenItems = new Set(state.hiddenItems);
            hiddenItems.delete(item.number);
            const category = this.colouring.categoryOf(item)?.key;
            const hidden = new Set(
                [...state.hidden].filter((key) => key !== category && !key.startsWith('level:')),
            );
            this.store.change({
                hiddenItems,
                hidden,
                isolated: undefined,
                shownKinds: new Set([...state.shownKinds, item.kind.table]),
            });
        }
        const place = this.model.placeOf(item);
        this.measureCovered();
        if (place.length > 0) this.stage?.view.fit(place);
    }

    // Where details and tools are in front of the picture.
    private measureCovered(): void {
        const view = this.stage?.view;
        const details = document.querySelector<HTMLElement>('.details');
        const tools = document.querySelector<HTMLElement>('.toolbar');
        if (!view || !details || !tools) return;
        const picture = view.canvas.getBoundingClientRect();
        const panel = details.getBoundingClientRect();
        const isBeside =
            !details.hidden &&
            panel.top < picture.bottom &&
            panel.left > picture.left + 0.4 * picture.width;
        view.covered = {
            right: isBeside ? picture.right - panel.left : 0,
            top: Math.max(0, tools.getBoundingClientRect().bottom - picture.top),
        };
    }

    private select(item: Item | undefined, isAdded = false): void {
        const { selected } = this.store.state;
        if (!item) {
            if (!isAdded && selected.length > 0) this.store.change({ selected: [] });
            return;
        }
        const rest = selected.filter((number) => number !== item.number);
        const isRemoved = isAdded && rest.length < selected.length;
        this.store.change({
            selected: isAdded ? (isRemoved ? rest : [...rest, item.number]) : [item.number],
        });
    }

    private goToAddress(): void {
        const address = readAddress(this.model, location.hash);
        const { state, item, eye } = address;
        this.sayMissing(address);
        this.store.change({ ...state, selected: item ? [item.number] : [] });
        if (eye && this.stage) this.stage.view.eye = eye;
        else if (item) this.goTo(item);
    }

    private sayMissing({ missing }: Address): void {
        const texts = textsIn(this.language);
        for (const { kind, value } of missing.slice(0, 5)) {
            const name = kind ? kindNoun(texts, kind) : texts.case.toLowerCase();
            this.say(texts.missing.replace('@', () => `${name} ${value.slice(0, 40)}`));
        }
    }

    private say(text: string): void {
        const notes = document.getElementById('notes');
        const line = document.createElement('p');
        line.textContent = text;
        notes?.append(line);
        setTimeout(() => line.remove(), 15000);
    }

    private setColours(): void {
        const { theme } = this.store.state;
        document.documentElement.dataset.theme = theme;
        const isDark =
            theme === 'dark' ||
            (theme === 'auto' && matchMedia('(prefers-color-scheme: dark)').matches);
        this.stage?.setColours({
            background: isDark ? [20, 23, 28] : [246, 247, 249],
            lift: isDark ? 0.22 : 0,
            selected: [245, 130, 20],
            release: isDark ? [235, 238, 242] : [30, 34, 40],
            severities: kOfSeverities,
        });
    }

    // For tests and for scripts that are curious: what is where on the screen.
    private follow(): void {
        const { model, store } = this;
        (window as unknown as Record<string, unknown>).tamur = {
            state: () => ({ ...store.state }),
            counts: () =>
                Object.fromEntries(
                    [...model.data.tables].map(([name, table]) => [name, table.rows]),
                ),
            project: (table: string, identifier: number) => {
                const kind = kKinds.find((one) => one.table === table);
                const item = kind && model.find(kind, identifier);
                return item && this.stage
                    ? model.placeOf(item).map((point) => this.stage!.view.project(point))
                    : [];
            },
            selected: () =>
                store.state.selected.map((number) => {
                    const item = model.itemOf(number)!;
                    return {
                        table: item.kind.table,
                        identifier: model.identifierOf(item),
                        rank: item.rank,
                    };
                }),
            loads: () =>
                this.stage?.loads?.loads.map(({ item, arrows }) => ({
                    table: item.kind.table,
                    identifier: model.identifierOf(item),
                    arrows: arrows.length,
                })) ?? [],
        };
    }
}

async function start(): Promise<void> {
    const texts = textsIn(languageOf(navigator.languages));
    const body = document.getElementById('page')!;
    try {
        if (typeof DecompressionStream === 'undefined') throw new Error(texts.old);
        const packed = document.getElementById('data')!;
        const data = await readPage(packed.textContent!.trim());
        packed.remove();
        new App(new Model(data), body).start();
        document.documentElement.dataset.ready = 'yes';
    } catch (error) {
        console.error(error);
        body.textContent = typeof DecompressionStream === 'undefined' ? texts.old : texts.broken;
    }
}

void start();
