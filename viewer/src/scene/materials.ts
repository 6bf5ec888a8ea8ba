import {
    DoubleSide,
    GLSL3,
    RawShaderMaterial,
    type Texture,
    Vector2,
    Vector3,
    Vector4,
} from 'three';

import {
    kFaceFragment,
    kFaceVertex,
    kLineFragment,
    kSymbolVertex,
    kThickVertex,
    kThinVertex,
} from './shaders';
import type { Rgb } from './states';

export const kNoItem = 0xffffffff;

// Uniforms that all materials have in common: changed once, true for all.
export class SharedUniforms {
    readonly states: { value: Texture };
    readonly hovered = { value: kNoItem };
    readonly picking = { value: false };
    readonly selectedColour = { value: new Vector3() };
    readonly clipLow = { value: new Vector3().setScalar(-Infinity) };
    readonly clipHigh = { value: new Vector3().setScalar(Infinity) };
    readonly viewport = { value: new Vector2(1, 1) };
    readonly lift = { value: 0 };
    readonly background = { value: new Vector3() };
    readonly haze = { value: new Vector2(0, 0) };
    readonly pixel = { value: 1 };
    readonly isPerspective = { value: false };
    readonly largest = { value: 1 };

    constructor(states: Texture) {
        this.states = { value: states };
    }
}

export interface Look {
    width?: number; // of lines, in pixels
    opacity?: number;
    paint?: Rgb; // instead of the colours of the items
}

const kShaders = {
    thin: [kThinVertex, kLineFragment],
    thick: [kThickVertex, kLineFragment],
    face: [kFaceVertex, kFaceFragment],
    symbol: [kSymbolVertex, kFaceFragment],
} as const;

export function makeMaterial(
    what: keyof typeof kShaders,
    shared: SharedUniforms,
    look: Look = {},
): RawShaderMaterial {
    const [vertexShader, fragmentShader] = kShaders[what];
    const opacity = look.opacity ?? 1;
    const [red, green, blue] = look.paint ?? [0, 0, 0];
    const material = new RawShaderMaterial({
        glslVersion: GLSL3,
        vertexShader,
        fragmentShader,
        uniforms: {
            ...shared,
            width: { value: look.width ?? 1 },
            opacity: { value: opacity },
            paint: {
                value: new Vector4(red / 255, green / 255, blue / 255, look.paint ? 1 : 0),
            },
        },
        side: DoubleSide,
        transparent: opacity < 1,
        depthWrite: opacity === 1,
    });
    if (what === 'face') {
        // Lines and edges in a face are seen.
        material.polygonOffset = true;
        material.polygonOffsetFactor = 1;
        material.polygonOffsetUnits = 1;
    }
    return material;
}
