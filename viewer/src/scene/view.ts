// The picture: renderer, cameras, controls. Draws when something changed, not all the time.
import {
    Box3,
    Color,
    type Camera,
    Group,
    type Object3D,
    OrthographicCamera,
    PerspectiveCamera,
    Scene,
    SRGBColorSpace,
    Vector3,
    WebGLRenderer,
} from 'three';
import { OrbitControls } from 'three/examples/jsm/controls/OrbitControls.js';

import type { Point } from '../data/table';
import type { Box } from '../model';
import type { SharedUniforms } from './materials';
import type { Rgb } from './states';

// What is drawn in which pass of picking: lines and symbols come before faces.
export const kFine = 1;
export const kFaces = 2;

const kFieldOfView = 35;
// The part of the picture that is filled by what is to be seen.
const kFilled = 0.84;

export type StandardView = 'iso' | 'front' | 'back' | 'left' | 'right' | 'top' | 'bottom';
// From where one looks, seen from the middle.
export const kStandardViews: Record<StandardView, Point> = {
    iso: { x: -0.62, y: -0.85, z: 0.55 },
    front: { x: 0, y: -1, z: 0 },
    back: { x: 0, y: 1, z: 0 },
    left: { x: -1, y: 0, z: 0 },
    right: { x: 1, y: 0, z: 0 },
    // Not quite: straight up there is no left and right.
    top: { x: 0, y: -1e-4, z: 1 },
    bottom: { x: 0, y: -1e-4, z: -1 },
};

export interface Eye {
    position: Point;
    target: Point;
}

export class View {
    readonly scene = new Scene();
    readonly renderer: WebGLRenderer;
    readonly controls: OrbitControls;
    onFrame: () => void = () => undefined;
    onMove: () => void = () => undefined;
    onLost: () => void = () => undefined;
    // Pixels that something else covers: what is fitted is beside it.
    covered = { right: 0, top: 0 };

    private readonly perspective = new PerspectiveCamera(kFieldOfView, 1, 0.1, 1000);
    private readonly orthographic = new OrthographicCamera(-1, 1, 1, -1, -1000, 1000);
    private isAsked = false;
    private width = 1;
    private height = 1;
    private readonly radius: number;
    private readonly middle: Vector3;
    private readonly corners: Vector3[];

    // Throws when there is no WebGL.
    constructor(
        readonly canvas: HTMLCanvasElement,
        readonly shared: SharedUniforms,
        box: Box,
    ) {
        this.renderer = new WebGLRenderer({
            canvas,
            antialias: true,
            alpha: false,
            powerPreference: 'high-performance',
            preserveDrawingBuffer: false,
        });
        canvas.addEventListener('webglcontextlost', () => this.onLost());
        this.renderer.autoClear = true;
        const { low, high } = box;
        this.middle = new Vector3((low.x + high.x) / 2, (low.y + high.y) / 2, (low.z + high.z) / 2);
        this.corners = cornersOf(
            new Box3(new Vector3(low.x, low.y, low.z), new Vector3(high.x, high.y, high.z)),
        );
        const diagonal = new Vector3(high.x - low.x, high.y - low.y, high.z - low.z);
        this.radius = Math.max(diagonal.length() / 2, 1e-6);
        for (const camera of [this.perspective, this.orthographic]) {
            camera.up.set(0, 0, 1);
            camera.layers.enable(kFine);
            camera.layers.enable(kFaces);
        }
        this.controls = new OrbitControls(this.perspective, canvas);
        this.controls.zoomToCursor = true;
        this.controls.addEventListener('change', () => {
            this.request();
            this.onMove();
        });
        shared.isPerspective.value = true;
        // As large as nothing in the model: no symbol fills the picture of a small one.
        shared.largest.value = this.radius / 260;
        this.look('iso');
    }

    get camera(): PerspectiveCamera | OrthographicCamera {
        return this.controls.object as PerspectiveCamera | OrthographicCamera;
    }
    get isOrthographic(): boolean {
        return this.camera === this.orthographic;
    }
    get size(): { width: number; height: number } {
        return { width: this.width, height: this.height };
    }

    setBackground([red, green, blue]: Rgb): void {
        this.shared.background.value.set(red / 255, green / 255, blue / 255);
        this.renderer.setClearColor(
            new Color().setRGB(red / 255, green / 255, blue / 255, SRGBColorSpace),
            1,
        );
        this.request();
    }

    resize(width: number, height: number, ratio: number): void {
        const isSame = Math.round(width) === this.width && Math.round(height) === this.height;
        if (isSame && ratio === this.renderer.getPixelRatio()) return;
        this.width = Math.max(1, Math.round(width));
        this.height = Math.max(1, Math.round(height));
        this.renderer.setPixelRatio(ratio);
        this.renderer.setSize(this.width, this.height, false);
        this.frameOrthographic();
        // At once: a canvas that was resized is empty. Before the first picture nobody waits for it.
        if (this.hasDrawn) this.draw();
        else this.request();
    }
    private hasDrawn = false;

    request(): void {
        if (this.isAsked) return;
        this.isAsked = true;
        requestAnimationFrame(() => {
            this.isAsked = false;
            this.draw();
        });
    }

    draw(): void {
        this.hasDrawn = true;
        this.prepare();
        this.shared.viewport.value.set(this.width, this.height);
        this.renderer.render(this.scene, this.camera);
        this.onFrame();
    }

    // Adds what is drawn in that pass of picking.
    add(objects: Object3D[], layer: number): Group {
        const group = new Group();
        for (const object of objects) {
            object.layers.set(layer);
            group.add(object);
        }
        this.scene.add(group);
        this.request();
        return group;
    }
    remove(group: Group): void {
        group.traverse((object) => {
            if ('geometry' in object) (object.geometry as { dispose(): void }).dispose();
            if ('material' in object) (object.material as { dispose(): void }).dispose();
        });
        this.scene.remove(group);
        this.request();
    }

    setOrthographic(isOrthographic: boolean): void {
        if (isOrthographic === this.isOrthographic) return;
        const { target } = this.controls;
        const from = this.camera;
        const to = isOrthographic ? this.orthographic : this.perspective;
        const direction = from.position.clone().sub(target);
        // The target keeps its size.
        if (isOrthographic) {
            this.orthographic.zoom = this.radius / this.halfHeightAt(direction.length());
        } else {
            direction.setLength(this.radius / this.orthographic.zoom / Math.tan(kHalfField));
        }
        to.position.copy(target).add(direction);
        this.controls.object = to;
        this.frameOrthographic();
        this.shared.isPerspective.value = !isOrthographic;
        this.controls.update();
        this.request();
    }

    // What a plane model is drawn in, else from aside.
    get firstView(): StandardView {
        const size = new Box3().setFromPoints(this.corners).getSize(new Vector3());
        const isFlat = (extent: number): boolean => extent < 1e-3 * this.radius;
        return isFlat(size.z) ? 'top' : isFlat(size.y) ? 'front' : isFlat(size.x) ? 'right' : 'iso';
    }

    // Turns to a standard view and shows all.
    look(view: StandardView): void {
        const { x, y, z } = kStandardViews[view];
        this.camera.position.copy(this.controls.target).add(new Vector3(x, y, z));
        this.fit();
    }

    // Shows these points, or all, from where one looks now. What is at the upper edge is below the tools.
    fit(points?: Point[]): void {
        const { target } = this.controls;
        const direction = this.camera.position.clone().sub(target).normalize();
        const around = points && points.length > 0 ? this.around(points) : this.corners;
        target.copy(this.middle);
        let distance = 4 * this.radius;
        // The distance depends on the middle of what is seen, and that on the distance.
        for (let i = 0; i < 6; ++i) {
            this.camera.position.copy(target).addScaledVector(direction, distance);
            this.camera.lookAt(target);
            this.camera.updateMatrixWorld();
            distance = this.centreOn(around, target);
        }
        this.camera.position.copy(target).addScaledVector(direction, distance);
        this.frameOrthographic();
        this.controls.update();
        this.camera.updateMatrixWorld();
        this.shift(this.covered.right / 2 / this.height, this.covered.top / 2 / this.height);
    }

    // The corners of a box around the points, with what is next to them.
    private around(points: Point[]): Vector3[] {
        const vectors = points.map(({ x, y, z }) => new Vector3(x, y, z));
        const box = new Box3().setFromPoints(vectors);
        const size = box.getSize(new Vector3()).length();
        box.expandByScalar(Math.max(0.4 * size, this.radius / 12));
        return cornersOf(box);
    }

    // Moves the target to the middle of these points as they are seen, and returns from how far away they
    // fill the picture; an orthographic camera gets its zoom.
    private centreOn(points: Vector3[], target: Vector3): number {
        const slope = Math.tan(kHalfField);
        const [wide, high] = [this.width - this.covered.right, this.height - this.covered.top];
        const [slopeX, slopeY] = [
            (slope * wide * kFilled) / this.height,
            (slope * high * kFilled) / this.height,
        ];
        const { matrixWorld, matrixWorldInverse } = this.camera;
        const distance = this.camera.position.distanceTo(target);
        const seen = new Box3();
        let needed = 0;
        for (const point of points) {
            const at = point.clone().applyMatrix4(matrixWorldInverse);
            const depth = Math.max(-at.z, 1e-3 * distance);
            seen.expandByPoint(
                new Vector3(at.x / depth, at.y / depth, 0).multiplyScalar(
                    this.isOrthographic ? depth : distance,
                ),
            );
            const beyond = distance - depth; // nearer than the target
            needed = Math.max(
                needed,
                beyond + Math.abs(at.x) / slopeX,
                beyond + Math.abs(at.y) / slopeY,
            );
        }
        const middle = seen.getCenter(new Vector3());
        target.addScaledVector(new Vector3().setFromMatrixColumn(matrixWorld, 0), middle.x);
        target.addScaledVector(new Vector3().setFromMatrixColumn(matrixWorld, 1), middle.y);
        if (!this.isOrthographic) return needed;
        const size = seen.getSize(new Vector3());
        const half = (Math.max(size.y / high, size.x / wide) * this.height) / 2 / kFilled;
        this.orthographic.zoom = this.radius / Math.max(half, 1e-9);
        return 4 * this.radius;
    }

    get eye(): Eye {
        const { target } = this.controls;
        const position = this.camera.position.clone();
        if (this.isOrthographic) {
            // As far away as a perspective shows as much from.
            const distance = this.radius / this.orthographic.zoom / Math.tan(kHalfField);
            position.sub(target).setLength(distance).add(target);
        }
        return {
            position: { x: position.x, y: position.y, z: position.z },
            target: { x: target.x, y: target.y, z: target.z },
        };
    }
    set eye({ position, target }: Eye) {
        this.camera.position.set(position.x, position.y, position.z);
        this.controls.target.set(target.x, target.y, target.z);
        if (this.isOrthographic) {
            const distance = this.camera.position.distanceTo(this.controls.target);
            this.orthographic.zoom = this.radius / this.halfHeightAt(distance);
        }
        this.frameOrthographic();
        this.controls.update();
        this.request();
    }

    // Turns by angles, shifts by parts of the picture, or comes nearer: what the keyboard does.
    turn(around: number, up: number): void {
        const offset = this.camera.position.clone().sub(this.controls.target);
        offset.applyAxisAngle(this.camera.up, around);
        const aside = new Vector3().crossVectors(this.camera.up, offset).normalize();
        const tilted = offset.clone().applyAxisAngle(aside, up);
        if (Math.abs(tilted.clone().normalize().z) < 0.9999) offset.copy(tilted);
        this.camera.position.copy(this.controls.target).add(offset);
        this.controls.update();
        this.request();
    }
    shift(right: number, up: number): void {
        const distance = this.camera.position.distanceTo(this.controls.target);
        const height =
            2 *
            (this.isOrthographic
                ? this.radius / this.orthographic.zoom
                : this.halfHeightAt(distance));
        const move = new Vector3()
            .setFromMatrixColumn(this.camera.matrix, 0)
            .multiplyScalar(right * height);
        move.addScaledVector(new Vector3().setFromMatrixColumn(this.camera.matrix, 1), up * height);
        this.camera.position.add(move);
        this.controls.target.add(move);
        this.controls.update();
        this.request();
    }
    approach(factor: number): void {
        if (this.isOrthographic) {
            this.orthographic.zoom *= factor;
            this.frameOrthographic();
        } else {
            const offset = this.camera.position.clone().sub(this.controls.target);
            this.camera.position.copy(this.controls.target).addScaledVector(offset, 1 / factor);
        }
        this.controls.update();
        this.request();
        this.onMove();
    }

    // In pixels from the upper left; nothing for what is behind the eye.
    project({ x, y, z }: Point): { x: number; y: number; depth: number } | undefined {
        const at = new Vector3(x, y, z).applyMatrix4(this.camera.matrixWorldInverse);
        if (!this.isOrthographic && at.z > -this.perspective.near) return undefined;
        at.applyMatrix4(this.camera.projectionMatrix);
        return { x: ((at.x + 1) / 2) * this.width, y: ((1 - at.y) / 2) * this.height, depth: at.z };
    }

    // Cameras and uniforms for what is drawn next.
    prepare(): void {
        this.camera.updateMatrixWorld();
        const distance = this.camera.position.distanceTo(this.middle);
        this.shared.haze.value.set(Math.max(0, distance - this.radius), 1 / (2 * this.radius));
        if (this.isOrthographic) {
            this.orthographic.near = -distance - 10 * this.radius;
            this.orthographic.far = distance + 10 * this.radius;
            this.shared.pixel.value = (2 * this.radius) / this.orthographic.zoom / this.height;
        } else {
            this.perspective.far = distance + 3 * this.radius;
            this.perspective.near = Math.max(
                (distance - 2 * this.radius) / 2,
                this.perspective.far / 5e4,
            );
            this.shared.pixel.value = (2 * Math.tan(kHalfField)) / this.height;
        }
        this.camera.updateProjectionMatrix();
    }
    get activeCamera(): Camera {
        return this.camera;
    }

    private halfHeightAt(distance: number): number {
        return Math.max(distance * Math.tan(kHalfField), 1e-9);
    }
    private frameOrthographic(): void {
        const aspect = this.width / this.height;
        this.perspective.aspect = aspect;
        this.orthographic.left = -this.radius * aspect;
        this.orthographic.right = this.radius * aspect;
        this.orthographic.top = this.radius;
        this.orthographic.bottom = -this.radius;
        this.perspective.updateProjectionMatrix();
        this.orthographic.updateProjectionMatrix();
    }
}

const kHalfField = (kFieldOfView * Math.PI) / 360;

function cornersOf({ min, max }: Box3): Vector3[] {
    return [min.x, max.x].flatMap((x) =>
        [min.y, max.y].flatMap((y) => [min.z, max.z].map((z) => new Vector3(x, y, z))),
    );
}
