// Axes, outlines, triangles, loads: as host/geometry has them.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';

import type { Point } from '../src/data/table';
import { Bars, kBars } from '../src/geometry/bars';
import {
    type Frame,
    frameOfAxis,
    frameOfPolygon,
    frameOfSupport,
    turnedAboutX,
} from '../src/geometry/frames';
import { type DrawnLoad, labelledArrows, loadsOfCase } from '../src/geometry/loads';
import { offsetOf, outlineOf, type Section } from '../src/geometry/outline';
import { heldBy } from '../src/geometry/supports';
import { trianglesOf } from '../src/geometry/triangles';
import { add, cross, length, scale, subtract } from '../src/geometry/vectors';
import { kind } from '../src/kinds';
import { Model } from '../src/model';
import { spanOf } from '../src/scene/others';
import { partsOf } from '../src/scene/supports';
import { dataOf, pageOf, root, sample } from './support';

const at = (x: number, y: number, z: number): Point => ({ x, y, z });

function near(found: Point | undefined, expected: Point, what: string): void {
    assert.ok(
        found && length(subtract(found, expected)) < 1e-12,
        `${what}: ${JSON.stringify(found)}`,
    );
}

const numberOf = (word: string): number =>
    word === 'h' ? Math.SQRT1_2 : word === '-h' ? -Math.SQRT1_2 : Number(word);

test('the axes of bars are as the shared table says', () => {
    const lines = readFileSync(join(root, 'tests/host/vectors/bar_axes.txt'), 'utf8').split('\n');
    const used = lines.filter((line) => line !== '' && !line.startsWith('#'));
    assert.ok(used.length >= 10);
    for (const line of used) {
        const n = line.trim().split(/\s+/).map(numberOf) as number[];
        const axis = frameOfAxis(at(n[0]!, n[1]!, n[2]!), at(n[3]!, n[4]!, n[5]!));
        const frame = axis && turnedAboutX(axis, n[6]!);
        near(frame?.y, at(n[7]!, n[8]!, n[9]!), line);
        near(frame?.z, at(n[10]!, n[11]!, n[12]!), line);
    }
});

test('an orientation node is where z leads', () => {
    near(frameOfAxis(at(0, 0, 0), at(4, 0, 0), at(1, 5, 0))?.z, at(0, 1, 0), 'aside');
    near(
        frameOfAxis(at(0, 0, 0), at(4, 0, 0), at(9, 0, 0))?.z,
        at(0, 0, 1),
        'on the bar: as without',
    );
    assert.equal(frameOfAxis(at(0, 0, 0), at(0, 0, 0)), undefined);
    assert.equal(frameOfAxis(at(0, 0, 0), at(Infinity, 0, 0)), undefined);
    assert.equal(frameOfAxis(at(0, 0, 0), at(NaN, 0, 0)), undefined);
});

test('a polygon has z by its order and x along its first side', () => {
    const corners = [at(1, 1, 2), at(1, 4, 2), at(3, 4, 2), at(3, 1, 2)];
    const frame = frameOfPolygon(corners) as Frame;
    near(frame.x, at(0, 1, 0), 'x');
    near(frame.z, at(0, 0, -1), 'z');
    assert.equal(frameOfPolygon([at(0, 0, 0), at(1, 0, 0)]), undefined);
    assert.equal(frameOfPolygon([]), undefined);
    assert.equal(frameOfPolygon([at(0, 0, 0), at(1, 0, 0), at(2, 0, 0)]), undefined);
});

test('supports turn about z, or with their orientation node', () => {
    near(frameOfSupport(at(1, 1, 1), 90).x, at(0, 1, 0), 'turned');
    near(frameOfSupport(at(0, 0, 0), 0, at(0, 3, 0)).x, at(0, 1, 0), 'led');
});

const section = (change: Partial<Section>): Section => ({
    code: 0,
    points: [],
    pointCount: 0,
    radius: 0,
    area: 0,
    inertiaY: 0,
    inertiaZ: 0,
    ...change,
});
const code = (letter: string): number => letter.charCodeAt(0);

test('outlines are of points, circles, or rectangles that stand for them', () => {
    const square = [0, 0, 1, 0, 1, 2, 0, 2];
    assert.deepEqual(
        outlineOf(section({ code: code('F'), points: square, pointCount: 4 })).map(({ u, v }) => [
            u,
            v,
        ]),
        [
            [0, 0],
            [1, 0],
            [1, 2],
            [0, 2],
        ],
    );
    const triples = outlineOf(
        section({ code: code('S'), points: [0, 0, 9, 1, 0, 9, 1, 2, 9], pointCount: 3 }),
    );
    assert.deepEqual(
        triples.map(({ u, v }) => [u, v]),
        [
            [0, 0],
            [1, 0],
            [1, 2],
        ],
    );
    const turned = outlineOf(
        section({ code: code('F'), points: [0, 2, 1, 2, 1, 0, 0, 0, 0, 0], pointCount: 5 }),
    );
    assert.equal(turned.length, 4);
    const circle = outlineOf(section({ code: code('C'), radius: 0.5 }));
    assert.equal(circle.length, 24);
    const stand = outlineOf(section({ area: 0.06, inertiaY: 0.0002, inertiaZ: 0.00012 }));
    assert.equal(stand.length, 4);
    const area = 4 * stand[2]!.u * stand[2]!.v;
    assert.ok(area > 0);
    assert.deepEqual(outlineOf(section({})), []);
    assert.deepEqual(
        outlineOf(section({ code: code('F'), points: [0, 0, NaN, 1, 1, 1], pointCount: 3 })),
        [],
    );
});

test('an offset puts that edge of the outline on the axis', () => {
    const outline = outlineOf(
        section({ code: code('F'), points: [-1, -2, 1, -2, 1, 2, -1, 2], pointCount: 4 }),
    );
    assert.deepEqual(offsetOf(outline, 0), { u: 1, v: -2 });
    assert.deepEqual(offsetOf(outline, 4), { u: 0, v: 0 });
    assert.deepEqual(offsetOf(outline, 8), { u: -1, v: 2 });
    assert.deepEqual(offsetOf(outline, 9), { u: 0, v: 0 });
});

function areaOf({ points, corners }: ReturnType<typeof trianglesOf>): number {
    let sum = 0;
    for (let i = 0; i < corners.length; i += 3) {
        const [a, b, c] = [
            points[corners[i]!]!,
            points[corners[i + 1]!]!,
            points[corners[i + 2]!]!,
        ];
        sum += length(cross(subtract(b, a), subtract(c, a))) / 2;
    }
    return sum;
}

test('openings are cut out of surfaces, wherever these lie', () => {
    const outline = [at(0, 0, 3), at(6, 0, 3), at(6, 4, 3), at(0, 4, 3)];
    const opening = [at(1, 1, 3), at(3, 1, 3), at(3, 2, 3), at(1, 2, 3)];
    assert.ok(Math.abs(areaOf(trianglesOf(outline)) - 24) < 1e-9);
    assert.ok(Math.abs(areaOf(trianglesOf(outline, [opening])) - 22) < 1e-9);
    const far = (points: Point[]): Point[] => points.map((point) => add(point, at(1e6, -1e6, 0)));
    assert.ok(Math.abs(areaOf(trianglesOf(far(outline), [far(opening)])) - 22) < 1e-6);
    const upright = (points: Point[]): Point[] => points.map(({ x, y }) => at(5, x, y));
    assert.ok(Math.abs(areaOf(trianglesOf(upright(outline), [upright(opening)])) - 22) < 1e-9);
    assert.deepEqual(trianglesOf([at(0, 0, 0), at(1, 0, 0)]).corners, []);
});

test('supports are drawn by what they hold', () => {
    const parts = (
        condition: 'void' | 'rigid' | 'elastic' | 'stop',
        stiffnesses: number[],
    ): string =>
        partsOf(heldBy(condition, stiffnesses))
            .map(([shape, axis]) => `${shape}${axis}`)
            .join(' ');
    assert.equal(parts('rigid', [1, 1, 1, 1, 1, 1]), 'block0');
    assert.equal(parts('rigid', [0, 0, 0, 0, 0, 0]), 'block0');
    assert.equal(parts('rigid', [1, 1, 1, 0, 0, 0]), 'pyramid0');
    assert.equal(parts('rigid', [0, 0, 1, 0, 0, 0]), 'cone2');
    assert.equal(parts('rigid', [1, 0, 1, 0, 1, 0]), 'cone0 cone2 plate1');
    assert.equal(parts('elastic', [1, 1, 1, 0, 0, 0]), 'spring2');
    assert.equal(parts('elastic', [1, 1, 1, 1, 0, 0]), 'spring2 wheel0');
    assert.equal(parts('elastic', [1, 1, 1, 0, 1, 1]), 'spring2 wheel1 wheel2');
    assert.equal(parts('elastic', [1, 0, 0, 0, 0, 1]), 'spring0 wheel2');
    assert.equal(parts('elastic', [0, 0, 0, 0, 0, 0]), 'ring2');
    assert.equal(parts('stop', [1, 1, 1, 0, 0, 0]), 'stop2');
    assert.equal(parts('void', [1, 1, 1, 1, 1, 1]), 'ring2');
});

const sizesOf = (load: DrawnLoad): number[] =>
    labelledArrows(load).map(({ vector }) => Math.round(length(vector) * 1e6) / 1e6);

test('loads that vary have the smallest and the largest value written, forces and moments apart', () => {
    const load = (table: string, forces: number[], moments: number[] = []): DrawnLoad => {
        const arrow = (isMoment: boolean) => (size: number, x: number) => ({
            at: at(x, 0, 0),
            vector: at(0, 0, size),
            isMoment,
        });
        return {
            item: { kind: kind(table), rank: 0, number: 0 },
            arrows: [...forces.map(arrow(false)), ...moments.map(arrow(true))],
            ridge: [],
            isArea: false,
        };
    };
    assert.deepEqual(sizesOf(load('ChargesPonctuelles', [-10], [4000])), [10, 4000]);
    assert.deepEqual(
        labelledArrows(load('ChargesPonctuelles', [-10], [4000])).map((one) => one.isMoment),
        [false, true],
    );
    const trapezoid = load('ChargesLineaires', [-1000, -1500, -2000], [3, 3, 3]);
    assert.deepEqual(sizesOf(trapezoid), [1000, 2000, 3]);
    assert.deepEqual(
        labelledArrows(trapezoid).map((one) => one.at.x),
        [0, 2, 1],
    );
    assert.deepEqual(sizesOf(load('ChargesLineaires', [0, 5, 10])), [10]);
    assert.deepEqual(sizesOf(load('ChargesLineaires', [-10, 0, 10])), [10, 10]);
    assert.deepEqual(sizesOf(load('ChargesSurfaciques', [7, 7, 7, 7])), [7]);
    assert.deepEqual(sizesOf(load('ChargesSurfaciques', [])), []);
});

test('the span of a wall is drawn over a part of it', () => {
    const corners = [at(0, 0, 0), at(20, 0, 0), at(20, 0, 5), at(0, 0, 5)];
    const lengthOf = (direction: number): Point => {
        const { tips } = spanOf(corners, direction)!;
        return subtract(tips[0], tips[1]);
    };
    near(lengthOf(0), at(6, 0, 0), 'along the first side');
    near(lengthOf(1), at(0, 0, 1.5), 'across it');
});

test('loads have the sizes and directions of their columns', async () => {
    const model = new Model(await dataOf(pageOf(sample('batiment'))));
    const bars = new Bars(model);
    const loads = loadsOfCase(model, bars, 2, 1);
    const line = loads.find(({ item }) => model.identifierOf(item) === 515)!;
    near(line.arrows[0]?.vector, at(0, 0, -4500), 'the first arrow of a line load');
    near(add(line.arrows[0]!.at, model.centre), at(0, 10, 3.2), 'its place');
    assert.deepEqual(sizesOf(line), [4500]);
    const surface = loads.find(({ item }) => model.identifierOf(item) === 506)!;
    for (const { vector } of surface.arrows)
        near(vector, at(0, 0, -1500), 'an arrow of a surface load');
    assert.ok(surface.arrows.length > 4);
    assert.deepEqual(sizesOf(surface), [1500]);
});

test('outlines are placed at the ends of their bars', async () => {
    const model = new Model(await dataOf(pageOf(sample('batiment'))));
    const bars = new Bars(model);
    let [centred, offset] = [0, 0];
    for (let rank = 0; rank < bars.count; ++rank) {
        const placed = bars.placedOutlines(rank)!;
        if (model.tableOf(kBars).column('Excentration').number(rank) !== 4) {
            ++offset;
            continue;
        }
        ++centred;
        const [start] = model.placeOf(model.item(kBars, rank));
        const middle = scale(placed.start.reduce(add, at(0, 0, 0)), 1 / placed.start.length);
        assert.ok(length(subtract(middle, start!)) < 1e-9);
        assert.equal(placed.start.length, placed.end.length);
    }
    assert.ok(centred > 10 && offset > 10);
});
