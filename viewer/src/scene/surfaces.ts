import type { Object3D } from 'three';

import type { Point } from '../data/table';
import { frameOfPolygon } from '../geometry/frames';
import { trianglesOf } from '../geometry/triangles';
import { add, scale } from '../geometry/vectors';
import { type Kind, kind } from '../kinds';
import type { Item, Model } from '../model';
import { Faces, Segments } from './builders';
import type { SharedUniforms } from './materials';

const kSurfaces = kind('Surfaciques');
const kOpenings = kind('Ouvertures');

// The outlines of the openings of each surface.
function openingsBySurface(model: Model): Map<number, Point[][]> {
    const table = model.tableOf(kOpenings);
    const openings = new Map<number, Point[][]>();
    for (let rank = 0; rank < table.rows; ++rank) {
        const surface = table.column('surface').number(rank);
        const outline = model.placeOf(model.item(kOpenings, rank));
        if (surface < 0 || outline.length < 3) continue;
        openings.set(surface, [...(openings.get(surface) ?? []), outline]);
    }
    return openings;
}

function addEdges(outline: Point[], item: number, edges: Segments): void {
    outline.forEach((point, i) => edges.add(point, outline[(i + 1) % outline.length]!, item));
}

function addFlat(outline: Point[], openings: Point[][], item: number, faces: Faces): void {
    const { points, corners } = trianglesOf(outline, openings);
    for (let i = 0; i + 2 < corners.length; i += 3) {
        faces.triangle(
            points[corners[i]!]!,
            points[corners[i + 1]!]!,
            points[corners[i + 2]!]!,
            item,
        );
    }
}

// Half of the thickness on each side.
function addThick(
    outline: Point[],
    openings: Point[][],
    thickness: number,
    item: number,
    faces: Faces,
): void {
    const frame = frameOfPolygon(outline);
    if (!frame) return;
    const half = scale(frame.z, thickness / 2);
    const top = (points: Point[]): Point[] => points.map((point) => add(point, half));
    const bottom = (points: Point[]): Point[] => points.map((point) => add(point, scale(half, -1)));
    addFlat(top(outline), openings.map(top), item, faces);
    addFlat(bottom(outline), openings.map(bottom), item, faces);
    for (const ring of [outline, ...openings]) {
        const [above, below] = [top(ring), bottom(ring)];
        ring.forEach((_, i) => {
            const next = (i + 1) % ring.length;
            faces.quad(below[i]!, below[next]!, above[next]!, above[i]!, item);
        });
    }
}

export interface SurfaceLook {
    isThick: boolean;
    opacity: number;
}

export function drawSurfaces(
    model: Model,
    shared: SharedUniforms,
    look: SurfaceLook,
): { faces: Object3D[]; lines: Object3D[] } {
    const table = model.tableOf(kSurfaces);
    const openings = openingsBySurface(model);
    const faces = new Faces();
    const edges = new Segments();
    for (let rank = 0; rank < table.rows; ++rank) {
        const { number } = model.item(kSurfaces, rank);
        const outline = model.placeOf(model.item(kSurfaces, rank));
        if (outline.length < 3) continue;
        const thickness = table.column('Thickness').number(rank);
        const isThick = look.isThick && thickness > 0 && thickness < 1e3;
        if (isThick) addThick(outline, openings.get(rank) ?? [], thickness, number, faces);
        else addFlat(outline, openings.get(rank) ?? [], number, faces);
        addEdges(outline, number, edges);
    }
    const outlines = new Segments();
    for (let rank = 0; rank < model.tableOf(kOpenings).rows; ++rank) {
        const item = model.item(kOpenings, rank);
        addEdges(model.placeOf(item), item.number, outlines);
    }
    return {
        faces: faces.isEmpty ? [] : [faces.draw(shared, { opacity: look.opacity })],
        lines: [edges.draw(shared, { width: 1 }), outlines.draw(shared, { width: 1.5 })],
    };
}

// Polygons that are only marked: walls, surface supports.
export function drawPolygons(
    model: Model,
    ofKind: Kind,
    shared: SharedUniforms,
    opacity: number,
): { faces: Object3D[]; lines: Object3D[] } {
    const faces = new Faces();
    const edges = new Segments();
    for (let rank = 0; rank < model.tableOf(ofKind).rows; ++rank) {
        const item: Item = model.item(ofKind, rank);
        const outline = model.placeOf(item);
        if (outline.length < 3) continue;
        addFlat(outline, [], item.number, faces);
        addEdges(outline, item.number, edges);
    }
    return {
        faces: faces.isEmpty ? [] : [faces.draw(shared, { opacity })],
        lines: [edges.draw(shared, { width: 1 })],
    };
}
