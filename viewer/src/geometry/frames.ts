// Local axes, as host/geometry/frames.cpp has them; docs/conventions.md says what is assumed. Both
// are tested on tests/host/vectors/bar_axes.txt.
import type { Point } from '../data/table';
import { add, cross, dot, isSensible, length, normalized, scale, subtract } from './vectors';

export interface Frame {
    x: Point;
    y: Point;
    z: Point;
}

export const kGlobal: Frame = {
    x: { x: 1, y: 0, z: 0 },
    y: { x: 0, y: 1, z: 0 },
    z: { x: 0, y: 0, z: 1 },
};

// Sine of the angle to the vertical below which a bar counts as vertical.
const kVertical = 1e-3;

function turnOf(degrees: number): [cosine: number, sine: number] {
    const angle = degrees % 360;
    if (!Number.isFinite(angle)) return [1, 0];
    const quarters = angle / 90;
    if (Number.isInteger(quarters)) {
        return (
            [
                [1, 0],
                [0, 1],
                [-1, 0],
                [0, -1],
            ] as const
        )[(quarters + 4) % 4] as [number, number];
    }
    return [Math.cos((angle * Math.PI) / 180), Math.sin((angle * Math.PI) / 180)];
}

const across = (a: Point, direction: Point): Point =>
    subtract(a, scale(direction, dot(a, direction)));

export function turnedAboutX({ x, y, z }: Frame, degrees: number): Frame {
    const [cosine, sine] = turnOf(degrees);
    return {
        x,
        y: add(scale(y, cosine), scale(z, sine)),
        z: subtract(scale(z, cosine), scale(y, sine)),
    };
}

export function turnedAboutZ({ x, y, z }: Frame, degrees: number): Frame {
    const [cosine, sine] = turnOf(degrees);
    return {
        x: add(scale(x, cosine), scale(y, sine)),
        y: subtract(scale(y, cosine), scale(x, sine)),
        z,
    };
}

function frameWith(x: Point, up: Point): Frame {
    const z = normalized(up);
    return { x, y: cross(z, x), z };
}

// x from the start to the end, z upwards or towards the orientation node; before it is turned.
export function frameOfAxis(start: Point, end: Point, orientation?: Point): Frame | undefined {
    if (!isSensible(start) || !isSensible(end)) return undefined;
    const along = subtract(end, start);
    if (!(length(along) > 1e-150)) return undefined;
    const x = normalized(along);
    if (orientation && isSensible(orientation)) {
        const aside = subtract(orientation, start);
        const up = across(aside, x);
        if (length(up) > kVertical * length(aside)) return frameWith(x, up);
    }
    const isVertical = Math.hypot(x.x, x.y) < kVertical;
    const up = isVertical ? { x: x.z > 0 ? -1 : 1, y: 0, z: 0 } : { x: 0, y: 0, z: 1 };
    return frameWith(x, across(up, x));
}

// The angle that the file wrote: the import turns bars whose section has an outline code by a
// quarter.
export function angleAsWritten(angle: number, outlineCode: number): number {
    return outlineCode === 0 ? angle : angle - 90;
}

// By the order of the corners (Newell's normal), x along the first side that has a length.
export function frameOfPolygon(corners: Point[]): Frame | undefined {
    const origin = corners[0];
    if (!origin || !corners.every(isSensible)) return undefined;
    let doubled = { x: 0, y: 0, z: 0 };
    let perimeter = 0;
    corners.forEach((corner, i) => {
        const next = corners[(i + 1) % corners.length]!;
        doubled = add(doubled, cross(subtract(corner, origin), subtract(next, origin)));
        perimeter += length(subtract(next, corner));
    });
    if (!(length(doubled) > 0)) return undefined;
    const z = normalized(doubled);
    for (let i = 0; i < corners.length; ++i) {
        const edge = subtract(corners[(i + 1) % corners.length]!, corners[i]!);
        const side = across(edge, z);
        if (!(length(side) > kVertical * length(edge))) continue;
        if (!(length(side) > 1e-9 * perimeter)) continue;
        const x = normalized(side);
        return { x, y: cross(z, x), z };
    }
    return undefined;
}

export function frameOfSupport(at: Point, angle: number, orientation?: Point): Frame {
    const frame = orientation && frameOfAxis(at, orientation);
    return frame ? turnedAboutX(frame, angle) : turnedAboutZ(kGlobal, angle);
}

// A direction in this frame as one in the model's.
export const toGlobal = ({ x, y, z }: Frame, local: Point): Point =>
    add(add(scale(x, local.x), scale(y, local.y)), scale(z, local.z));
