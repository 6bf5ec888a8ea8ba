// Bars as they lie: frames, and outlines of their sections placed at their ends.
import type { Point } from '../data/table';
import { kind } from '../kinds';
import type { Model } from '../model';
import { angleAsWritten, type Frame, frameOfAxis, turnedAboutX } from './frames';
import { offsetOf, outlineOf, type PlanePoint } from './outline';
import { add, scale } from './vectors';

export const kBars = kind('Filaires');

export class Bars {
    private outlines = new Map<number, PlanePoint[]>();
    private nodes: Map<number, number> | undefined; // ranks by identifier

    constructor(private readonly model: Model) {}

    get count(): number {
        return this.model.tableOf(kBars).rows;
    }
    private number(column: string, rank: number): number {
        return this.model.tableOf(kBars).column(column).number(rank);
    }

    // Where the node with that number is, if there is one.
    orientation(identifier: number): Point | undefined {
        if (identifier === 0) return undefined;
        const nodes = this.model.data.table('Nodes');
        if (!this.nodes) {
            this.nodes = new Map();
            const identifiers = nodes.column('identifier').raw;
            for (let i = identifiers.length - 1; i >= 0; --i) this.nodes.set(identifiers[i]!, i);
        }
        const rank = this.nodes.get(identifier);
        return rank === undefined ? undefined : nodes.column('Geometrie').points(rank)[0];
    }

    frame(rank: number): Frame | undefined {
        const [start, end] = this.model.cornersOf(this.model.item(kBars, rank));
        const orientation = this.orientation(this.number('OrientationNode', rank));
        const frame = start && end && frameOfAxis(start, end, orientation);
        if (!frame) return undefined;
        const section = this.number('StartSection', rank);
        const code = this.model.data.table('Sections').column('epureSec.Code');
        const written = angleAsWritten(
            this.number('Angle', rank),
            section < 0 ? 0 : code.number(section),
        );
        return turnedAboutX(frame, written);
    }

    outlineOfSection(section: number): PlanePoint[] {
        let outline = this.outlines.get(section);
        if (!outline) {
            const table = this.model.data.table('Sections');
            const number = (name: string): number => table.column(name).number(section);
            outline =
                section < 0
                    ? []
                    : outlineOf({
                          code: number('epureSec.Code'),
                          points: table.column('epureSec.pTabPoints').numbers(section),
                          pointCount: number('epureSec.nbPoints'),
                          radius: number('epureSec.dfRadius'),
                          area: number('Sx'),
                          inertiaY: number('Iy'),
                          inertiaZ: number('Iz'),
                      });
            this.outlines.set(section, outline);
        }
        return outline;
    }

    // The outlines at both ends, with as many points each; nothing for what has none.
    placedOutlines(
        rank: number,
    ): { start: Point[]; end: Point[]; plane: PlanePoint[] } | undefined {
        const frame = this.frame(rank);
        const [from, to] = this.model.placeOf(this.model.item(kBars, rank));
        if (!frame || !from || !to) return undefined;
        const first = this.outlineOfSection(this.number('StartSection', rank));
        let last = this.outlineOfSection(this.number('EndSection', rank));
        if (first.length === 0) return undefined;
        if (last.length !== first.length) last = first;
        const excentration = this.number('Excentration', rank);
        const place = (at: Point, outline: PlanePoint[]): Point[] => {
            const offset = offsetOf(outline, excentration);
            return outline.map(({ u, v }) =>
                add(at, add(scale(frame.y, u + offset.u), scale(frame.z, v + offset.v))),
            );
        };
        return { start: place(from, first), end: place(to, last), plane: first };
    }
}
