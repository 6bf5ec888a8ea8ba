// What all shaders share: every drawn thing belongs to an item, whose colour and visibility are in a
// texture; picking draws the item's number instead of its colour.

export const kStatesWidth = 2048;

export const kVertexHead = /* glsl */ `
precision highp float;
precision highp int;
uniform mat4 modelViewMatrix;
uniform mat4 projectionMatrix;
uniform highp sampler2D states;
uniform uint hovered;
uniform bool picking;
uniform vec3 selectedColour;
uniform vec4 paint;
uniform float lift; // towards white: on dark
flat out vec4 colour;
flat out uint number;
out vec3 place;

// 0 hidden, 1 shown, 2 under the pointer, 3 selected
int lightOf(uint item) {
    vec4 state = texelFetch(states, ivec2(int(item % ${kStatesWidth}u), int(item / ${kStatesWidth}u)), 0);
    colour = vec4(mix(mix(state.rgb, vec3(1.0), lift), paint.rgb, paint.a), 1.0);
    number = item + 1u;
    if (state.a < 0.25) return 0;
    if (picking || paint.a > 0.5) return 1;
    if (state.a < 0.75) { colour.rgb = selectedColour; return 3; }
    if (item == hovered) { colour.rgb = mix(colour.rgb, selectedColour, 0.6); return 2; }
    return 1;
}
const vec4 kNowhere = vec4(0.0, 0.0, 2.0, 1.0);
`;

export const kFragmentHead = /* glsl */ `
precision highp float;
precision highp int;
uniform bool picking;
uniform vec3 clipLow;
uniform vec3 clipHigh;
uniform float opacity;
flat in vec4 colour;
flat in uint number;
in vec3 place;
out vec4 fragment;

// Whether nothing else is to be written.
bool isDone() {
    if (any(lessThan(place, clipLow)) || any(greaterThan(place, clipHigh))) discard;
    if (!picking) return false;
    fragment = vec4(float(number & 255u), float((number >> 8) & 255u), float((number >> 16) & 255u), 255.0) / 255.0;
    return true;
}
`;

// Lines that are farther away are paler: else nobody sees what is in front.
const kHaze = /* glsl */ `
uniform vec2 haze; // from which distance, and 1 / over which
out float far;
void setHaze(float distance, int light) {
    far = light == 1 ? clamp((distance - haze.x) * haze.y, 0.0, 1.0) : 0.0;
}
`;

export const kLineFragment = /* glsl */ `${kFragmentHead}
uniform vec3 background;
in float far;
void main() {
    if (isDone()) return;
    fragment = vec4(mix(colour.rgb, background, 0.55 * far), opacity);
}
`;

// Lit from the eye, so that faces that meet are told apart from everywhere.
export const kFaceFragment = /* glsl */ `${kFragmentHead}
in vec3 seen;
void main() {
    if (isDone()) return;
    vec3 normal = normalize(cross(dFdx(seen), dFdy(seen)));
    float light = 0.58 + 0.42 * abs(dot(normal, normalize(vec3(0.25, 0.45, 1.0))));
    fragment = vec4(colour.rgb * light, opacity);
}
`;

// Lines of one pixel: for many.
export const kThinVertex = /* glsl */ `${kVertexHead}${kHaze}
in vec3 position;
in uint item;
void main() {
    place = position;
    int light = lightOf(item);
    vec4 seen = modelViewMatrix * vec4(position, 1.0);
    setHaze(-seen.z, light);
    gl_Position = light == 0 ? kNowhere : projectionMatrix * seen;
    gl_Position.z -= 2e-4 * gl_Position.w;
}
`;

// Lines of a width in pixels: a rectangle for each.
export const kThickVertex = /* glsl */ `${kVertexHead}${kHaze}
in vec3 position; // along from 0 to 1, across from -1 to 1
in vec3 start;
in vec3 end;
in uint item;
uniform vec2 viewport;
uniform float width;
void main() {
    int light = lightOf(item);
    far = 0.0;
    if (light == 0) { place = start; gl_Position = kNowhere; return; }
    vec4 a = projectionMatrix * modelViewMatrix * vec4(start, 1.0);
    vec4 b = projectionMatrix * modelViewMatrix * vec4(end, 1.0);
    // What is behind the eye would come out in front of it.
    const float kNear = 1e-4;
    float from = a.w < kNear && b.w > kNear ? (kNear - a.w) / (b.w - a.w) : 0.0;
    float to = b.w < kNear && a.w > kNear ? (kNear - a.w) / (b.w - a.w) : 1.0;
    vec4 first = mix(a, b, from);
    vec4 last = mix(a, b, to);
    vec2 along = (last.xy / last.w - first.xy / first.w) * viewport;
    float size = length(along);
    along = size > 1e-6 ? along / size : vec2(1.0, 0.0);
    float wide = width * (light == 3 ? 2.2 : light == 2 ? 1.7 : 1.0);
    gl_Position = mix(first, last, position.x);
    gl_Position.xy += vec2(-along.y, along.x) * position.y * wide / viewport * gl_Position.w;
    gl_Position.z -= (light > 1 ? 4e-4 : 2e-4) * gl_Position.w;
    place = mix(start, end, mix(from, to, position.x));
    setHaze(-(modelViewMatrix * vec4(place, 1.0)).z, light);
}
`;

export const kFaceVertex = /* glsl */ `${kVertexHead}
in vec3 position;
in uint item;
out vec3 seen;
void main() {
    place = position;
    vec4 view = modelViewMatrix * vec4(position, 1.0);
    seen = view.xyz;
    gl_Position = lightOf(item) == 0 ? kNowhere : projectionMatrix * view;
}
`;

// A shape at many places, as large on the screen everywhere, but no larger than the model allows.
export const kSymbolVertex = /* glsl */ `${kVertexHead}
in vec3 position;
in vec3 anchor;
in vec4 turn;
in float size;
in uint item;
uniform float pixel; // in the model: of an orthographic view, or at a distance of 1
uniform bool isPerspective;
uniform float largest;
out vec3 seen;
void main() {
    int light = lightOf(item);
    vec3 view = (modelViewMatrix * vec4(anchor, 1.0)).xyz;
    float unit = isPerspective ? pixel * max(-view.z, 0.0) : pixel;
    float scale = min(size * unit, size * largest) * (light > 1 ? 1.25 : 1.0);
    vec3 turned = position + 2.0 * cross(turn.xyz, cross(turn.xyz, position) + turn.w * position);
    place = anchor + turned * scale;
    vec4 at = modelViewMatrix * vec4(place, 1.0);
    seen = at.xyz;
    gl_Position = light == 0 ? kNowhere : projectionMatrix * at;
    gl_Position.z -= 3e-4 * gl_Position.w;
    place = anchor;
}
`;
