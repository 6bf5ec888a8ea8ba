// Signs of 16 by 16, in the colour of the text.
const kPaths = {
    fit: 'M2 6V2h4M10 2h4v4M14 10v4h-4M6 14H2v-4',
    parallel: 'M3 5l5-3 5 3v6l-5 3-5-3zM3 5l5 3 5-3M8 8v6',
    measure: 'M2 11L11 2l3 3-9 9zM5 8l1.5 1.5M7.5 5.5L9 7',
    clip: 'M2 4h9v9H2zM5 1v15M5 8h10',
    hide: 'M1.5 8s2.5-4 6.5-4 6.5 4 6.5 4-2.500 4-6.500 4S1.500 8 1.500 8zM3 14L13 2',
    isolate: 'M8 5a3 3 0 1 0 .01 0M8 1v2M8 13v2M1 8h2M13 8h2',
    all: 'M1.500 8s2.500-4 6.500-4 6.500 4 6.500 4-2.500 4-6.500 4S1.500 8 1.500 8zM8 6a2 2 0 1 0 .01 0',
    picture: 'M2 4h3l1-1.500h4L11 4h3v9H2zM8 6a2.500 2.500 0 1 0 .01 0',
    link: 'M6.500 9.500l3-3M7 5l2-2a2.800 2.800 0 0 1 4 4l-2 2M9 11l-2 2a2.800 2.800 0 0 1-4-4l2-2',
    tables: 'M2 3h12v10H2zM2 6.500h12M2 10h12M6 3v10',
} as const;

export type IconName = keyof typeof kPaths;

export function icon(name: IconName): SVGSVGElement {
    const space = 'http://www.w3.org/2000/svg';
    const svg = document.createElementNS(space, 'svg');
    svg.setAttribute('viewBox', '0 0 16 16');
    svg.setAttribute('class', 'icon');
    svg.setAttribute('aria-hidden', 'true');
    const path = document.createElementNS(space, 'path');
    path.setAttribute('d', kPaths[name]);
    svg.append(path);
    return svg;
}
