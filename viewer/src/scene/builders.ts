// Lists that grow, and what is drawn of them.
import {
    BufferAttribute,
    BufferGeometry,
    InstancedBufferAttribute,
    InstancedBufferGeometry,
    LineSegments,
    Mesh,
    type Object3D,
    Uint32BufferAttribute,
} from 'three';

import type { Point } from '../data/table';
import type { Frame } from '../geometry/frames';
import { type Look, makeMaterial, type SharedUniforms } from './materials';

// Above that, lines are one pixel wide: wider ones are two triangles each.
const kMostThick = 60000;

function shown<Drawn extends Object3D>(object: Drawn, order: number): Drawn {
    object.frustumCulled = false; // its bounds are not known to the library
    object.renderOrder = order;
    return object;
}

function release(object: Mesh | LineSegments): void {
    object.geometry.dispose();
}

export { release };

export class Segments {
    private readonly places: number[] = [];
    private readonly items: number[] = [];

    add(a: Point, b: Point, item: number): void {
        this.places.push(a.x, a.y, a.z, b.x, b.y, b.z);
        this.items.push(item);
    }
    draw(shared: SharedUniforms, look: Look, order = 2): Mesh | LineSegments {
        return drawSegments(
            Float32Array.from(this.places),
            Uint32Array.from(this.items),
            shared,
            look,
            order,
        );
    }
}

// Six coordinates and an item each.
export function drawSegments(
    places: Float32Array,
    items: Uint32Array,
    shared: SharedUniforms,
    look: Look,
    order = 2,
): Mesh | LineSegments {
    return items.length > kMostThick
        ? drawThin(places, items, shared, look, order)
        : drawThick(places, items, shared, look, order);
}

function drawThin(
    places: Float32Array,
    items: Uint32Array,
    shared: SharedUniforms,
    look: Look,
    order: number,
): LineSegments {
    const geometry = new BufferGeometry();
    const both = new Uint32Array(2 * items.length);
    items.forEach((item, i) => (both[2 * i] = both[2 * i + 1] = item));
    geometry.setAttribute('position', new BufferAttribute(places, 3));
    geometry.setAttribute('item', new Uint32BufferAttribute(both, 1));
    return shown(new LineSegments(geometry, makeMaterial('thin', shared, look)), order);
}

function drawThick(
    places: Float32Array,
    items: Uint32Array,
    shared: SharedUniforms,
    look: Look,
    order: number,
): Mesh {
    const geometry = new InstancedBufferGeometry();
    const corners = new Float32Array([0, -1, 0, 1, -1, 0, 1, 1, 0, 0, 1, 0]);
    geometry.setAttribute('position', new BufferAttribute(corners, 3));
    geometry.setIndex([0, 1, 2, 0, 2, 3]);
    const starts = new Float32Array(3 * items.length);
    const ends = new Float32Array(3 * items.length);
    for (let i = 0; i < items.length; ++i) {
        starts.set(places.subarray(6 * i, 6 * i + 3), 3 * i);
        ends.set(places.subarray(6 * i + 3, 6 * i + 6), 3 * i);
    }
    geometry.setAttribute('start', new InstancedBufferAttribute(starts, 3));
    geometry.setAttribute('end', new InstancedBufferAttribute(ends, 3));
    geometry.setAttribute('item', new InstancedBufferAttribute(items, 1));
    geometry.instanceCount = items.length;
    return shown(new Mesh(geometry, makeMaterial('thick', shared, look)), order);
}

export class Faces {
    private readonly places: number[] = [];
    private readonly items: number[] = [];

    get isEmpty(): boolean {
        return this.items.length === 0;
    }
    triangle(a: Point, b: Point, c: Point, item: number): void {
        this.places.push(a.x, a.y, a.z, b.x, b.y, b.z, c.x, c.y, c.z);
        this.items.push(item, item, item);
    }
    quad(a: Point, b: Point, c: Point, d: Point, item: number): void {
        this.triangle(a, b, c, item);
        this.triangle(a, c, d, item);
    }
    draw(shared: SharedUniforms, look: Look, order = 1): Mesh {
        const geometry = new BufferGeometry();
        geometry.setAttribute('position', new BufferAttribute(Float32Array.from(this.places), 3));
        geometry.setAttribute('item', new Uint32BufferAttribute(this.items, 1));
        return shown(new Mesh(geometry, makeMaterial('face', shared, look)), order);
    }
}

export class Symbols {
    private readonly anchors: number[] = [];
    private readonly turns: number[] = [];
    private readonly sizes: number[] = [];
    private readonly items: number[] = [];

    constructor(private readonly shape: BufferGeometry) {}

    get isEmpty(): boolean {
        return this.items.length === 0;
    }
    // `size` in pixels; the shape's axes are those of the frame.
    add(at: Point, frame: Frame, size: number, item: number): void {
        this.anchors.push(at.x, at.y, at.z);
        this.turns.push(...quaternionOf(frame));
        this.sizes.push(size);
        this.items.push(item);
    }
    draw(shared: SharedUniforms, look: Look, order = 3): Mesh {
        const geometry = new InstancedBufferGeometry();
        geometry.index = this.shape.index;
        geometry.setAttribute('position', this.shape.getAttribute('position'));
        const attribute = (name: string, values: number[], size: number): void => {
            const array = Float32Array.from(values);
            geometry.setAttribute(name, new InstancedBufferAttribute(array, size));
        };
        attribute('anchor', this.anchors, 3);
        attribute('turn', this.turns, 4);
        attribute('size', this.sizes, 1);
        geometry.setAttribute(
            'item',
            new InstancedBufferAttribute(Uint32Array.from(this.items), 1),
        );
        geometry.instanceCount = this.items.length;
        return shown(new Mesh(geometry, makeMaterial('symbol', shared, look)), order);
    }
}

// Of the rotation that leads the axes of the model to those of the frame.
function quaternionOf({ x, y, z }: Frame): [number, number, number, number] {
    const trace = x.x + y.y + z.z;
    if (trace > 0) {
        const s = 2 * Math.sqrt(trace + 1);
        return [(y.z - z.y) / s, (z.x - x.z) / s, (x.y - y.x) / s, s / 4];
    }
    if (x.x > y.y && x.x > z.z) {
        const s = 2 * Math.sqrt(1 + x.x - y.y - z.z);
        return [s / 4, (y.x + x.y) / s, (z.x + x.z) / s, (y.z - z.y) / s];
    }
    if (y.y > z.z) {
        const s = 2 * Math.sqrt(1 + y.y - x.x - z.z);
        return [(y.x + x.y) / s, s / 4, (z.y + y.z) / s, (z.x - x.z) / s];
    }
    const s = 2 * Math.sqrt(1 + z.z - x.x - y.y);
    return [(z.x + x.z) / s, (z.y + y.z) / s, s / 4, (x.y - y.x) / s];
}
