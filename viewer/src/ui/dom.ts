// Elements in one call. Texts become text nodes: whatever a model holds, it is never HTML.

type Child = Node | string | number | undefined | false | null;
type Attributes = Record<string, string | number | boolean | undefined | ((event: never) => void)>;

export function h<Tag extends keyof HTMLElementTagNameMap>(
    tag: Tag,
    attributes: Attributes = {},
    ...children: Child[]
): HTMLElementTagNameMap[Tag] {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (value === undefined || value === false) continue;
        if (typeof value === 'function') element.addEventListener(name, value as EventListener);
        else if (
            name === 'checked' ||
            name === 'disabled' ||
            name === 'open' ||
            name === 'hidden'
        ) {
            (element as unknown as Record<string, boolean>)[name] = Boolean(value);
        } else element.setAttribute(name, value === true ? '' : String(value));
    }
    append(element, children);
    return element;
}

function append(element: HTMLElement, children: Child[]): void {
    for (const child of children) {
        if (child === undefined || child === false || child === null) continue;
        element.append(child instanceof Node ? child : String(child));
    }
}

const kFocusable = 'button, input, select, summary, [tabindex]';

// What had the focus has it again when it is made anew: at the same place.
export function fill(element: HTMLElement, ...children: Child[]): void {
    const { activeElement } = document;
    const place = element.contains(activeElement)
        ? [...element.querySelectorAll(kFocusable)].indexOf(activeElement!)
        : -1;
    element.replaceChildren();
    append(element, children);
    if (place >= 0) element.querySelectorAll<HTMLElement>(kFocusable)[place]?.focus();
}

let identifiers = 0;
export const newId = (): string => `i${++identifiers}`;

export function button(
    text: string,
    click: () => void,
    attributes: Attributes = {},
): HTMLButtonElement {
    return h('button', { type: 'button', click, ...attributes }, text);
}

// `sign` is between the box and the text, `more` after it.
export function checkbox(
    text: string,
    checked: boolean,
    change: (checked: boolean) => void,
    sign?: Child,
    ...more: Child[]
): HTMLLabelElement {
    const box = h('input', {
        type: 'checkbox',
        checked,
        change: (event: Event) => change((event.target as HTMLInputElement).checked),
    });
    return h('label', { class: 'check' }, box, sign, h('span', { class: 'grow' }, text), ...more);
}

export function swatch([red, green, blue]: readonly [number, number, number]): HTMLElement {
    const element = h('span', { class: 'swatch', 'aria-hidden': 'true' });
    element.style.backgroundColor = `rgb(${red} ${green} ${blue})`;
    return element;
}

// Saves bytes under a name.
export function save(blob: Blob, name: string): void {
    const url = URL.createObjectURL(blob);
    const link = h('a', { href: url, download: name });
    document.body.append(link);
    link.click();
    link.remove();
    setTimeout(() => URL.revokeObjectURL(url), 10000);
}
