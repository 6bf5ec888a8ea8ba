// What is written over the picture: axes, labels, values of loads, what is measured.
import type { Point } from '../data/table';
import { kBars } from '../geometry/bars';
import {
    kLineLoads,
    kLocal,
    kPointLoads,
    kProjected,
    labelledArrows,
    tailOf,
} from '../geometry/loads';
import { length, middleOf, subtract } from '../geometry/vectors';
import { kind } from '../kinds';
import type { Item } from '../model';
import { forceText, numberText } from '../names';
import { kAxisColours } from '../scene/axes';
import type { Context } from './context';

interface Label {
    at: Point;
    text: string;
    isLoad: boolean;
    item: number;
}

const kSurfaces = kind('Surfaciques');
const kWalls = kind('Parois');
const kMostLabels = 4000;
const kMostDrawn = 250;
const kFont = '11px system-ui, sans-serif';

export class Overlay {
    measured: Point[] = [];
    private labels: Label[] | undefined; // found when they are next drawn
    private readonly pen: CanvasRenderingContext2D;

    constructor(
        private readonly canvas: HTMLCanvasElement,
        private readonly context: Context,
    ) {
        this.pen = canvas.getContext('2d')!;
        const { store } = context;
        store.on(['labels', 'loadCase', 'loadScale', 'showValues', 'shownKinds'], () => {
            this.labels = undefined;
            context.stage?.view.request();
        });
    }

    resize(width: number, height: number, ratio: number): void {
        const [wide, high] = [Math.round(width * ratio), Math.round(height * ratio)];
        // To set its size clears it, even when it is the same.
        if (wide === this.canvas.width && high === this.canvas.height) return;
        this.canvas.width = wide;
        this.canvas.height = high;
        this.pen.setTransform(ratio, 0, 0, ratio, 0, 0);
    }

    draw(): void {
        const { width, height } = this.context.stage!.view.size;
        this.pen.clearRect(0, 0, width, height);
        this.pen.font = kFont;
        this.pen.textBaseline = 'middle';
        this.drawLabels();
        this.drawMeasured();
        this.drawAxes(height);
    }

    // On another canvas, for a picture of all.
    paintOn(pen: CanvasRenderingContext2D): void {
        pen.drawImage(this.canvas, 0, 0);
    }

    private colour(name: string): string {
        return getComputedStyle(document.documentElement).getPropertyValue(name);
    }

    private findLabels(): Label[] {
        const { state } = this.context.store;
        return [
            ...(state.showValues ? this.loadLabels() : []),
            ...(state.labels ? this.elementLabels() : []),
        ];
    }

    private loadLabels(): Label[] {
        const { stage, model, texts } = this.context;
        const loads = stage?.loads;
        if (!loads) return [];
        return loads.loads.flatMap((load) => {
            const { item } = load;
            const per = item.kind === kPointLoads ? '' : item.kind === kLineLoads ? '/m' : '/m²';
            const frame = model.tableOf(item.kind).column('Repere').number(item.rank);
            const note =
                frame === kLocal
                    ? ` ${texts.local}`
                    : frame === kProjected
                      ? ` ${texts.projected}`
                      : '';
            return labelledArrows(load).map((arrow) => ({
                at: tailOf(arrow, loads.factorOf(load, arrow.isMoment)),
                text: forceText(length(arrow.vector), (arrow.isMoment ? 'Nm' : 'N') + per) + note,
                isLoad: true,
                item: item.number,
            }));
        });
    }

    private elementLabels(): Label[] {
        const { model, store } = this.context;
        const labels: Label[] = [];
        for (const table of [
            'Nodes',
            'Filaires',
            'Surfaciques',
            'Parois',
            'AppuisPonctuels',
            'Masses',
        ]) {
            const ofKind = kind(table);
            if (!store.state.shownKinds.has(table)) continue;
            const rows = Math.min(model.tableOf(ofKind).rows, kMostLabels);
            for (let rank = 0; rank < rows; ++rank) {
                const item = model.item(ofKind, rank);
                const place = model.placeOf(item);
                if (place.length === 0) continue;
                const text = this.textOf(item);
                labels.push({
                    at: middleOf(place),
                    text: text.slice(0, 60),
                    isLoad: false,
                    item: item.number,
                });
            }
        }
        return labels;
    }

    private textOf(item: Item): string {
        const { model } = this.context;
        const identifier = String(model.identifierOf(item));
        if (item.kind === kBars || item.kind === kSurfaces)
            return model.labelsOf(item)[0] || identifier;
        return item.kind === kWalls ? `${identifier} ${this.climateOf(item)}` : identifier;
    }

    // Snow, and wind with the external coefficients of its zones.
    private climateOf(item: Item): string {
        const { model, texts } = this.context;
        const table = model.tableOf(item.kind);
        const parts: string[] = [];
        if (table.column('bNeige').number(item.rank) !== 0) parts.push(texts.snow);
        if (table.column('bVent').number(item.rank) !== 0) {
            const zones = table
                .column('dCe')
                .numbers(item.rank)
                .map((value) => numberText(value, 3));
            parts.push(`${texts.wind} Ce ${zones.join(' / ')}`);
        }
        return parts.join(', ');
    }

    private drawLabels(): void {
        const { stage } = this.context;
        const taken = new Set<number>();
        const { width, height } = stage!.view.size;
        let drawn = 0;
        const halo = this.colour('--page');
        this.labels ??= this.findLabels();
        for (const label of this.labels) {
            if (drawn >= kMostDrawn) break;
            if (!stage!.states.isVisible(label.item) || !stage!.shows(label.at)) continue;
            const at = stage!.view.project(label.at);
            if (!at || at.x < 0 || at.y < 0 || at.x > width || at.y > height) continue;
            const wide = this.pen.measureText(label.text).width;
            // A force and a moment may have their tails in one place.
            const y = [at.y - 8, ...(label.isLoad ? [at.y + 10] : [])].find((one) =>
                this.take(taken, at.x + 4, one, wide),
            );
            if (y === undefined) continue;
            ++drawn;
            this.pen.lineWidth = 3;
            this.pen.strokeStyle = halo;
            this.pen.strokeText(label.text, at.x + 4, y);
            this.pen.fillStyle = this.colour(label.isLoad ? '--load' : '--text');
            this.pen.fillText(label.text, at.x + 4, y);
        }
    }

    // Whether nothing is written there yet.
    private take(taken: Set<number>, x: number, y: number, wide: number): boolean {
        const cells: number[] = [];
        for (let column = Math.floor(x / 12); column <= Math.floor((x + wide) / 12); ++column) {
            for (const row of [Math.floor((y - 6) / 6), Math.floor(y / 6), Math.floor((y + 6) / 6)])
                cells.push(column * 10000 + row);
        }
        if (cells.some((cell) => taken.has(cell))) return false;
        for (const cell of cells) taken.add(cell);
        return true;
    }

    private drawMeasured(): void {
        const { stage, texts } = this.context;
        const [a, b] = this.measured.map((point) => stage!.view.project(point));
        const pen = this.pen;
        pen.strokeStyle = pen.fillStyle = this.colour('--accent');
        pen.lineWidth = 2;
        for (const end of [a, b]) {
            if (!end) continue;
            pen.beginPath();
            pen.arc(end.x, end.y, 4, 0, 2 * Math.PI);
            pen.fill();
        }
        if (!a || !b) return;
        pen.beginPath();
        pen.moveTo(a.x, a.y);
        pen.lineTo(b.x, b.y);
        pen.stroke();
        const distance = length(subtract(this.measured[1]!, this.measured[0]!));
        const text = `${texts.distance} ${numberText(distance, 6)} m`;
        pen.font = 'bold 13px system-ui, sans-serif';
        pen.lineWidth = 4;
        pen.strokeStyle = this.colour('--page');
        const [x, y] = [(a.x + b.x) / 2 + 8, (a.y + b.y) / 2 - 10];
        pen.strokeText(text, x, y);
        pen.fillText(text, x, y);
        pen.font = kFont;
    }

    // The model's, in the lower left corner.
    private drawAxes(height: number): void {
        const { view } = this.context.stage!;
        const elements = view.camera.matrixWorldInverse.elements;
        const [x0, y0, size] = [38, height - 48, 24];
        const axes = ['X', 'Y', 'Z'].map((name, i) => ({
            name,
            colour: `rgb(${kAxisColours[i]!.join(' ')})`,
            x: elements[4 * i]!,
            y: -elements[4 * i + 1]!,
            z: elements[4 * i + 2]!,
        }));
        axes.sort((a, b) => a.z - b.z);
        for (const { name, colour, x, y } of axes) {
            this.pen.strokeStyle = this.pen.fillStyle = colour;
            this.pen.lineWidth = 2;
            this.pen.beginPath();
            this.pen.moveTo(x0, y0);
            this.pen.lineTo(x0 + size * x, y0 + size * y);
            this.pen.stroke();
            this.pen.fillText(name, x0 + (size + 8) * x - 4, y0 + (size + 8) * y);
        }
    }
}
