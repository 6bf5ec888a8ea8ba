// The page as a whole, in one language; built anew when that changes.
import { addressOf } from '../address';
import { kKinds } from '../kinds';
import type { Panel, Theme } from '../state';
import { kindName } from '../text';
import { makeAbout } from './about';
import { makeActions } from './actions';
import { makeClip } from './clip';
import type { Context } from './context';
import { makeDetails } from './details';
import { button, fill, h } from './dom';
import { makeFindingsPanel } from './findingsPanel';
import { icon } from './icons';
import { listenToKeys } from './keys';
import { makeLoadsPanel } from './loadsPanel';
import { Measure } from './measure';
import { makeModelPanel } from './modelPanel';
import { Overlay } from './overlay';
import { listenToPointer } from './pointer';
import { makeSearch } from './search';
import { firstTable, makeTables } from './tables';
import { makeToolbar } from './toolbar';

export interface PageParts {
    canvas: HTMLCanvasElement;
    overlay: HTMLCanvasElement;
    trouble: string | undefined; // why there is no picture
}

export interface Page {
    overlay: Overlay | undefined;
}

export function makePage(
    context: Context,
    parts: PageParts,
    setLanguage: () => void,
    body: HTMLElement,
): Page {
    const { store, texts, model, stage } = context;
    document.documentElement.lang = context.language;
    const overlay = stage && new Overlay(parts.overlay, context);
    const actions = makeActions(context, () => overlay);
    const about = makeAbout(context);
    const clip = h('div', { class: 'clip floating', hidden: true });
    makeClip(context, clip);
    const measureBox = h('div', { class: 'measure floating', hidden: true });
    const tip = h('div', { class: 'tip', hidden: true });
    const details = h('aside', {
        class: 'details',
        'aria-label': texts.details,
        hidden: true,
        tabindex: '0',
    });
    makeDetails(context, details);
    const tables = h('section', { class: 'tables', 'aria-label': texts.tables, hidden: true });
    makeTables(context, tables);
    parts.canvas.setAttribute('aria-label', `${texts.picture}. ${texts.pictureHelp}`);
    const main = h(
        'main',
        { class: 'picture' },
        stage ? makeToolbar(context, actions, clip) : undefined,
        stage
            ? h('div', { class: 'canvas-place' }, parts.canvas, parts.overlay, tip)
            : h('div', { class: 'no-picture' }, h('p', {}, parts.trouble ?? '')),
        notes(context),
        clip,
        measureBox,
    );
    fill(body, header(context, about, setLanguage), panels(context), main, details, tables, about);
    const measure = new Measure(context, overlay, measureBox);
    listenToPointer(context, parts.canvas, tip, measure);
    listenToKeys(context, actions, parts.canvas, () => about);
    store.on(undefined, (changed) => {
        if (changed.size === 1 && changed.has('hovered')) return;
        try {
            history.replaceState(
                null,
                '',
                addressOf(context, false) || location.pathname + location.search,
            );
        } catch {
            // A page inside of another one has no address of its own.
        }
    });
    document.title = `${model.data.table('File').column('name').text(0) ?? ''} – TAMUR`;
    return { overlay };
}

function header(context: Context, about: HTMLDialogElement, setLanguage: () => void): HTMLElement {
    const { store, texts, model } = context;
    const name = model.data.table('File').column('name').text(0) ?? '';
    const names: [Theme, string][] = [
        ['auto', texts.auto],
        ['light', texts.light],
        ['dark', texts.dark],
    ];
    const theme = h(
        'select',
        { 'aria-label': texts.theme, change: () => store.change({ theme: theme.value as Theme }) },
        ...names.map(([value, text]) => h('option', { value }, text)),
    );
    theme.value = store.state.theme;
    const tablesButton = h('button', {
        type: 'button',
        title: texts.openTable,
        click: () =>
            store.change({
                table: store.state.table === undefined ? firstTable(context) : undefined,
            }),
    });
    tablesButton.append(icon('tables'), h('span', {}, texts.tables));
    store.on(['table'], () =>
        tablesButton.setAttribute('aria-expanded', String(store.state.table !== undefined)),
    );
    return h(
        'header',
        { class: 'top' },
        h('h1', { title: name }, name.split(/[/\\]/).pop() ?? name),
        makeSearch(context),
        h(
            'div',
            { class: 'top-actions' },
            tablesButton,
            theme,
            button(context.language === 'fr' ? 'EN' : 'FR', setLanguage, {
                lang: context.language === 'fr' ? 'en' : 'fr',
                title: texts.language,
            }),
            button(texts.about, () => about.showModal()),
        ),
    );
}

function panels(context: Context): HTMLElement {
    const { store, texts, findings } = context;
    const make: Record<Panel, [string, (context: Context, element: HTMLElement) => void]> = {
        model: [texts.model, makeModelPanel],
        loads: [texts.loads, makeLoadsPanel],
        findings: [texts.findings, makeFindingsPanel],
    };
    const keys = Object.keys(make) as Panel[];
    const contents = keys.map((key) => {
        const element = h('div', {
            class: 'panel',
            role: 'tabpanel',
            id: `panel-${key}`,
            'aria-labelledby': `tab-${key}`,
            tabindex: '0',
        });
        make[key][1](context, element);
        return element;
    });
    const found = findings.count(2) + findings.count(1) + findings.count(0);
    const tabs = keys.map((key, i) =>
        h(
            'button',
            {
                type: 'button',
                role: 'tab',
                id: `tab-${key}`,
                'aria-controls': `panel-${key}`,
                click: () => store.change({ panel: key }),
                keydown: (event: KeyboardEvent) => {
                    const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
                    if (step === undefined) return;
                    const next = (i + step + keys.length) % keys.length;
                    store.change({ panel: keys[next]! });
                    tabs[next]!.focus();
                },
            },
            make[key][0],
            key === 'findings' && found > 0 ? h('span', { class: 'badge' }, found) : undefined,
        ),
    );
    store.on(['panel'], () =>
        keys.forEach((key, i) => {
            const isOpen = store.state.panel === key;
            tabs[i]!.setAttribute('aria-selected', String(isOpen));
            tabs[i]!.tabIndex = isOpen ? 0 : -1;
            contents[i]!.hidden = !isOpen;
        }),
    );
    return h(
        'nav',
        { class: 'side', 'aria-label': texts.panels },
        h('div', { class: 'tabs', role: 'tablist', 'aria-label': texts.panels }, ...tabs),
        ...contents,
    );
}

// What cannot be shown, and what was just done.
function notes({ model, texts, stage }: Context): HTMLElement {
    const lines: string[] = [];
    const hasElements = kKinds.some((kind) => kind.shape && model.tableOf(kind).rows > 0);
    if (!hasElements) lines.push(texts.empty);
    for (const kind of kKinds) {
        const count = model.unusable.get(kind.table);
        if (count && stage) lines.push(`${count} ${kindName(texts, kind)} ${texts.cannotShow}`);
    }
    return h(
        'div',
        { class: 'notes', id: 'notes', role: 'status' },
        ...lines.map((line) => h('p', {}, line)),
    );
}
