// Colour and visibility of every item, in a texture that all shaders read.
import { DataTexture, NearestFilter, RGBAFormat, UnsignedByteType } from 'three';

import { kStatesWidth } from './shaders';

export type Rgb = readonly [number, number, number]; // 0 to 255

export class States {
    readonly texture: DataTexture;
    private readonly bytes: Uint8Array;

    constructor(readonly itemCount: number) {
        const height = Math.max(1, Math.ceil(itemCount / kStatesWidth));
        this.bytes = new Uint8Array(4 * kStatesWidth * height);
        this.texture = new DataTexture(
            this.bytes,
            kStatesWidth,
            height,
            RGBAFormat,
            UnsignedByteType,
        );
        this.texture.minFilter = NearestFilter;
        this.texture.magFilter = NearestFilter;
        this.commit();
    }

    setColour(item: number, [red, green, blue]: Rgb): void {
        this.bytes[4 * item] = red;
        this.bytes[4 * item + 1] = green;
        this.bytes[4 * item + 2] = blue;
    }
    setVisible(item: number, isVisible: boolean): void {
        this.bytes[4 * item + 3] = isVisible ? 255 : 0;
    }
    // What is hidden stays so.
    setSelected(item: number): void {
        if (this.isVisible(item)) this.bytes[4 * item + 3] = 128;
    }
    isVisible(item: number): boolean {
        return this.bytes[4 * item + 3] !== 0;
    }
    colourOf(item: number): Rgb {
        return [this.bytes[4 * item]!, this.bytes[4 * item + 1]!, this.bytes[4 * item + 2]!];
    }
    commit(): void {
        this.texture.needsUpdate = true;
    }
}
