// The model on the screen: what is drawn, and when it is drawn anew.
import type { Group, Object3D } from 'three';

import type { Point } from '../data/table';
import type { Findings } from '../findings';
import { type Bars, kBars } from '../geometry/bars';
import { kGlobal } from '../geometry/frames';
import { middleOf } from '../geometry/vectors';
import { kind } from '../kinds';
import type { Item, Model } from '../model';
import type { State } from '../state';
import { drawLocalAxes } from './axes';
import { drawBarAxes, drawProfiles } from './bars';
import { Symbols } from './builders';
import { drawLoads, type DrawnLoads } from './loads';
import { kNoItem, SharedUniforms } from './materials';
import { drawLines, drawPoints, drawWalls } from './others';
import { Picker } from './picking';
import { drawReleases } from './releases';
import * as shapes from './shapes';
import type { Rgb, States } from './states';
import { drawSupports } from './supports';
import { drawSurfaces } from './surfaces';
import { kFaces, kFine, View } from './view';

// So many profiles are drawn in a fifth of a second without a graphics card.
const kMostProfiles = 1000;

interface Drawn {
    faces?: Object3D[];
    lines?: Object3D[];
}

export interface StageColours {
    background: Rgb;
    lift: number; // of all colours, towards white
    selected: Rgb;
    release: Rgb;
    severities: Rgb[];
}

export class Stage {
    readonly view: View;
    readonly picker: Picker;
    readonly shared: SharedUniforms;
    loads: DrawnLoads | undefined;

    private readonly groups = new Map<string, Group[]>();
    private readonly keys = new Map<string, string>(); // what each was drawn for

    // Throws when there is no WebGL.
    constructor(
        canvas: HTMLCanvasElement,
        private readonly model: Model,
        private readonly bars: Bars,
        private readonly findings: Findings,
        readonly states: States,
    ) {
        this.shared = new SharedUniforms(states.texture);
        this.view = new View(canvas, this.shared, model.box);
        this.picker = new Picker(this.view);
    }

    setColours(colours: StageColours): void {
        const [red, green, blue] = colours.selected;
        this.shared.selectedColour.value.set(red / 255, green / 255, blue / 255);
        this.shared.lift.value = colours.lift;
        this.view.setBackground(colours.background);
        this.colours = colours;
    }
    private colours: StageColours | undefined;

    // Draws what the state asks for, and only what changed.
    update(state: Readonly<State>, changed: ReadonlySet<keyof State>): void {
        this.shared.hovered.value = state.hovered ?? kNoItem;
        this.view.request();
        if (changed.size === 1 && changed.has('hovered')) return;
        const { model, bars, shared } = this;
        const shows = (table: string): boolean =>
            state.shownKinds.has(table) && model.tableOf(kind(table)).rows > 0;
        this.draw('bars', shows('Filaires') ? 'yes' : '', () => ({
            lines: drawBarAxes(model, shared),
        }));
        this.drawProfiles(state);
        const opacity = state.thickness ? 1 : 0.34;
        this.draw(
            'surfaces',
            shows('Surfaciques') || shows('Ouvertures') ? `${state.thickness} ${opacity}` : '',
            () => drawSurfaces(model, shared, { isThick: state.thickness, opacity }),
        );
        this.draw(
            'supports',
            ['AppuisPonctuels', 'AppuisLineaires', 'AppuisSurfaciques'].some(shows) ? 'yes' : '',
            () => drawSupports(model, bars, shared),
        );
        this.draw('releases', state.releases && shows('Filaires') ? 'yes' : '', () => ({
            lines: drawReleases(model, bars, shared, this.colours!.release),
        }));
        this.draw('walls', shows('Parois') ? 'yes' : '', () => drawWalls(model, shared));
        this.drawSimple(shows);
        this.draw('axes', state.axes ? 'yes' : '', () => ({
            lines: drawLocalAxes(model, bars, shared),
        }));
        this.draw('markers', state.markers ? 'yes' : '', () => ({ lines: this.markers() }));
        this.updateLoads(state);
        this.setClip(state);
        this.view.setOrthographic(state.orthographic);
    }

    // Of many bars those near the eye have profiles: called when it has moved.
    drawProfiles(state: Readonly<State>): void {
        const chosen = new Set(
            state.selected
                .map((number) => this.model.itemOf(number))
                .filter((item) => item?.kind === kBars)
                .map((item) => item!.rank),
        );
        if (state.solids) for (const rank of this.nearBars()) chosen.add(rank);
        const key = [...chosen].sort((a, b) => a - b).join(' ');
        this.draw('profiles', key, () => ({
            lines: drawProfiles(this.bars, this.model, chosen, this.shared),
        }));
    }

    get isOpaque(): boolean {
        return this.keys.get('surfaces')?.endsWith(' 1') ?? false;
    }

    private drawSimple(shows: (table: string) => boolean): void {
        const { model, shared } = this;
        const lines = { Cables: 2.5, Lines: 1, LinesInterieur: 1.5, SurfacicSections: 1.5 };
        for (const [table, width] of Object.entries(lines)) {
            this.draw(table, shows(table) ? 'yes' : '', () => ({
                lines: drawLines(model, kind(table), shared, width),
            }));
        }
        const points = {
            Nodes: ['dot', 7],
            Masses: ['ball', 16],
            Deplacements: ['cube', 12],
        } as const;
        for (const [table, [shape, pixels]] of Object.entries(points)) {
            this.draw(table, shows(table) ? 'yes' : '', () => ({
                lines: drawPoints(model, kind(table), shared, shape, pixels),
            }));
        }
    }

    private updateLoads(state: Readonly<State>): void {
        const { loadCase, loadScale } = state;
        const key = loadCase === undefined ? '' : `${loadCase} ${loadScale}`;
        if (key === '') this.loads = undefined;
        this.draw('loads', key, () => {
            this.loads = drawLoads(this.model, this.bars, loadCase!, loadScale, this.shared);
            return this.loads;
        });
    }

    private draw(name: string, key: string, make: () => Drawn): void {
        if ((this.keys.get(name) ?? '') === key) return;
        this.keys.set(name, key);
        for (const group of this.groups.get(name) ?? []) this.view.remove(group);
        this.groups.delete(name);
        if (key === '') return;
        const { faces = [], lines = [] } = make();
        this.groups.set(name, [this.view.add(faces, kFaces), this.view.add(lines, kFine)]);
    }

    private *nearBars(): Iterable<number> {
        const { rows } = this.model.tableOf(kBars);
        const all = Array.from({ length: rows }, (_, rank) => rank);
        if (rows <= kMostProfiles) {
            yield* all;
            return;
        }
        const { x, y, z } = this.model.data.pool;
        const { centre } = this.model;
        const from = this.view.isOrthographic ? this.view.eye.target : this.view.eye.position;
        const starts = this.model.tableOf(kBars).column('startPoint').raw;
        const ends = this.model.tableOf(kBars).column('endPoint').raw;
        const first = this.model.firstOf(kBars);
        const distances = Float64Array.from(all, (rank) => {
            if (!this.states.isVisible(first + rank)) return Infinity;
            const [a, b] = [starts[rank]!, ends[rank]!];
            return (
                ((x[a]! + x[b]!) / 2 - centre.x - from.x) ** 2 +
                ((y[a]! + y[b]!) / 2 - centre.y - from.y) ** 2 +
                ((z[a]! + z[b]!) / 2 - centre.z - from.z) ** 2
            );
        });
        // Not all are sorted: those up to the distance of the last one that is taken.
        const limit = Float64Array.from(distances).sort()[kMostProfiles - 1]!;
        yield* all.filter((rank) => distances[rank]! <= limit).slice(0, kMostProfiles);
    }

    private markers(): Object3D[] {
        const lists = this.colours!.severities.map(() => new Symbols(shapes.marker()));
        for (const [number, severity] of this.findings.items) {
            const item = this.model.itemOf(number);
            const place = item ? this.model.placeOf(item) : [];
            if (place.length > 0) lists[severity]!.add(middleOf(place), kGlobal, 13, number);
        }
        return lists.flatMap((list, severity) =>
            list.isEmpty
                ? []
                : [list.draw(this.shared, { paint: this.colours!.severities[severity]! }, 5)],
        );
    }

    private setClip({ clip }: Readonly<State>): void {
        const { low, high } = this.model.box;
        const at = (part: number, from: number, to: number): number =>
            part <= 0 ? -Infinity : part >= 1 ? Infinity : from + (to - from) * part;
        this.shared.clipLow.value.set(
            at(clip.low[0], low.x, high.x),
            at(clip.low[1], low.y, high.y),
            at(clip.low[2], low.z, high.z),
        );
        this.shared.clipHigh.value.set(
            at(clip.high[0], low.x, high.x),
            at(clip.high[1], low.y, high.y),
            at(clip.high[2], low.z, high.z),
        );
    }

    // Whether the clipping leaves the point.
    shows({ x, y, z }: Point): boolean {
        const { clipLow, clipHigh } = this.shared;
        const [low, high] = [clipLow.value, clipHigh.value];
        return x >= low.x && y >= low.y && z >= low.z && x <= high.x && y <= high.y && z <= high.z;
    }

    pick(x: number, y: number): Item | undefined {
        const number = this.picker.pick(x, y, this.isOpaque);
        return number === undefined ? undefined : this.model.itemOf(number);
    }
}
