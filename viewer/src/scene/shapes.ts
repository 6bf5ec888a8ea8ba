// Shapes of symbols: about the size of 1, along x.
import {
    BoxGeometry,
    BufferGeometry,
    ConeGeometry,
    CylinderGeometry,
    Float32BufferAttribute,
    OctahedronGeometry,
    SphereGeometry,
    TorusGeometry,
    TubeGeometry,
    Curve,
    Vector3,
} from 'three';

const alongX = <Shape extends BufferGeometry>(shape: Shape): Shape =>
    shape.rotateZ(-Math.PI / 2) as Shape;

// The tip at the origin, the foot against x.
export const cone = (): BufferGeometry =>
    alongX(new ConeGeometry(0.38, 1, 16).translate(0, -0.5, 0));
// A load's head: slender, the tip at the origin.
export const head = (): BufferGeometry =>
    alongX(new ConeGeometry(0.28, 1, 12).translate(0, -0.5, 0));
// The second head of a moment.
export const secondHead = (): BufferGeometry =>
    alongX(new ConeGeometry(0.28, 1, 12).translate(0, -1.2, 0));
// Below the origin, the tip in it: a hinged support.
export const pyramid = (): BufferGeometry =>
    new ConeGeometry(0.72, 1, 4)
        .rotateX(Math.PI / 2)
        .rotateZ(Math.PI / 4)
        .translate(0, 0, -0.5);
// Below the origin: a fixed support.
export const block = (): BufferGeometry => new BoxGeometry(1, 1, 0.7).translate(0, 0, -0.35);
// Across x.
export const plate = (): BufferGeometry => new BoxGeometry(0.12, 0.9, 0.9);
export const ring = (): BufferGeometry => new TorusGeometry(0.5, 0.07, 6, 24);
// About x: an elastic rotation.
export const wheel = (): BufferGeometry =>
    new TorusGeometry(0.62, 0.07, 6, 24).rotateY(Math.PI / 2);
export const ball = (): BufferGeometry => new SphereGeometry(0.5, 14, 10);
export const dot = (): BufferGeometry => new OctahedronGeometry(0.5, 1);
export const cube = (): BufferGeometry => new BoxGeometry(0.8, 0.8, 0.8);
// A ball that is off the end of a bar: a hinge.
export const hinge = (): BufferGeometry => new SphereGeometry(0.5, 14, 10).translate(1.1, 0, 0);
// A wheel off the end of a bar, about its y or z: one released rotation.
export const hingeAboutY = (): BufferGeometry =>
    new TorusGeometry(0.42, 0.11, 6, 20).rotateX(Math.PI / 2).translate(1.1, 0, 0);
export const hingeAboutZ = (): BufferGeometry =>
    new TorusGeometry(0.42, 0.11, 6, 20).translate(1.1, 0, 0);
export const hingeAboutX = (): BufferGeometry =>
    new TorusGeometry(0.42, 0.11, 6, 20).rotateY(Math.PI / 2).translate(1.1, 0, 0);
// A relaxation along x: a sleeve.
export const sleeve = (): BufferGeometry =>
    alongX(new CylinderGeometry(0.35, 0.35, 0.9, 12, 1, true)).translate(1.1, 0, 0);
// A stop: its tip where it is touched, with a gap to the foot.
export const stop = (): BufferGeometry =>
    joined([
        alongX(new ConeGeometry(0.3, 0.6, 16).translate(0, -0.3, 0)),
        new BoxGeometry(0.12, 0.9, 0.9).translate(-0.95, 0, 0),
    ]);

class Coil extends Curve<Vector3> {
    public constructor() {
        super();
    }
    override getPoint(t: number, target = new Vector3()): Vector3 {
        const angle = 2 * Math.PI * 4 * t;
        return target.set(-1.1 * t, 0.28 * Math.cos(angle), 0.28 * Math.sin(angle));
    }
}
// From the origin against x.
export const spring = (): BufferGeometry =>
    joined([
        new TubeGeometry(new Coil(), 48, 0.06, 5),
        new BoxGeometry(0.1, 0.8, 0.8).translate(-1.15, 0, 0),
    ]);

function joined(shapes: BufferGeometry[]): BufferGeometry {
    const positions: number[] = [];
    for (const shape of shapes) {
        positions.push(...shape.toNonIndexed().getAttribute('position').array);
    }
    const all = new BufferGeometry();
    all.setAttribute('position', new Float32BufferAttribute(positions, 3));
    return all;
}

// Above what is marked, so that both are seen.
export const marker = (): BufferGeometry =>
    new ConeGeometry(0.42, 1, 4).rotateX(-Math.PI / 2).translate(0, 0, 0.75);
