// What is under the pointer: a few pixels around it are drawn with the numbers of items for colours.
import { Color, WebGLRenderTarget } from 'three';

import { kFaces, kFine, type View } from './view';

const kReach = 5; // pixels in each direction
const kSize = 2 * kReach + 1;

export class Picker {
    private readonly target = new WebGLRenderTarget(kSize, kSize);
    private readonly pixels = new Uint8Array(4 * kSize * kSize);
    lastTook = 0; // ms

    constructor(private readonly view: View) {}

    // The number of the item; in pixels from the upper left. Lines and symbols are taken before faces
    // that are nearer: they are hard to hit, and seen through them. `isOpaque`: they are not.
    pick(x: number, y: number, isOpaque: boolean): number | undefined {
        const began = performance.now();
        const found = isOpaque
            ? this.draw(x, y, [kFine, kFaces])
            : (this.draw(x, y, [kFine]) ?? this.draw(x, y, [kFaces]));
        this.lastTook = performance.now() - began;
        return found;
    }

    private draw(x: number, y: number, layers: number[]): number | undefined {
        const { view } = this;
        const { renderer, camera, shared } = view;
        const { width, height } = view.size;
        view.prepare();
        camera.setViewOffset(
            width,
            height,
            Math.floor(x) - kReach,
            Math.floor(y) - kReach,
            kSize,
            kSize,
        );
        const mask = camera.layers.mask;
        camera.layers.disableAll();
        for (const layer of layers) camera.layers.enable(layer);
        shared.viewport.value.set(kSize, kSize);
        shared.picking.value = true;
        const clear = renderer.getClearColor(new Color());
        renderer.setRenderTarget(this.target);
        renderer.setClearColor(0, 0);
        renderer.clear();
        renderer.render(view.scene, camera);
        renderer.readRenderTargetPixels(this.target, 0, 0, kSize, kSize, this.pixels);
        renderer.setRenderTarget(null);
        renderer.setClearColor(clear, 1);
        shared.picking.value = false;
        shared.viewport.value.set(width, height);
        camera.layers.mask = mask;
        camera.clearViewOffset();
        return this.nearest();
    }

    // Of the numbers in the pixels, the one nearest to the middle.
    private nearest(): number | undefined {
        let best: number | undefined;
        let bestDistance = Infinity;
        for (let i = 0; i < kSize * kSize; ++i) {
            const [red, green, blue] = this.pixels.subarray(4 * i, 4 * i + 3) as unknown as [
                number,
                number,
                number,
            ];
            const number = red + 256 * green + 65536 * blue;
            const distance = ((i % kSize) - kReach) ** 2 + (Math.floor(i / kSize) - kReach) ** 2;
            if (number === 0 || distance >= bestDistance) continue;
            best = number - 1;
            bestDistance = distance;
        }
        return best;
    }
}
