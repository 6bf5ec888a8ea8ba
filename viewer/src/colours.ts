// Colours of items, and the categories that legends list.
import type { Findings } from './findings';
import { type Kind, kind, kKinds } from './kinds';
import type { Item, Model } from './model';
import type { Rgb } from './scene/states';
import type { ColourBy } from './state';
import { kindName, type Texts } from './text';

export interface Category {
    key: string; // "section:3", as in State.hidden
    name: string;
    colour: Rgb;
    count: number;
}

const kOfKinds: Record<string, Rgb> = {
    Filaires: [62, 104, 160],
    Surfaciques: [140, 160, 184],
    Ouvertures: [196, 110, 60],
    Parois: [200, 160, 60],
    Nodes: [110, 116, 128],
    AppuisPonctuels: [38, 140, 92],
    AppuisLineaires: [38, 140, 92],
    AppuisSurfaciques: [38, 140, 92],
    Masses: [128, 84, 170],
    Cables: [0, 140, 150],
    Deplacements: [190, 70, 140],
    LinesInterieur: [120, 130, 150],
    Lines: [150, 150, 150],
    SurfacicSections: [170, 90, 120],
    ChargesPonctuelles: [208, 64, 48],
    ChargesLineaires: [208, 64, 48],
    ChargesSurfaciques: [208, 64, 48],
};
export const kNeutral: Rgb = [138, 144, 152];
export const kOfSeverities: Rgb[] = [
    [66, 120, 200],
    [214, 140, 20],
    [204, 46, 46],
];

// Apart from each other on light and on dark; further ones go around the circle.
const kPalette: Rgb[] = [
    [52, 110, 186],
    [226, 126, 42],
    [52, 152, 86],
    [200, 62, 66],
    [136, 98, 184],
    [150, 104, 82],
    [212, 110, 176],
    [30, 158, 172],
    [172, 162, 40],
    [96, 110, 132],
    [100, 170, 230],
    [236, 160, 110],
];

export function paletteColour(index: number): Rgb {
    const known = kPalette[index];
    if (known) return known;
    const hue = (index * 137.508) % 360;
    const part = (offset: number): number => {
        const k = (offset + hue / 30) % 12;
        return Math.round(255 * (0.5 - 0.28 * Math.max(-1, Math.min(k - 3, 9 - k, 1))));
    };
    return [part(0), part(8), part(4)];
}

export const colourOfKind = (of: Kind): Rgb => kOfKinds[of.table] ?? kNeutral;

const kBars = kind('Filaires');
const kSurfaces = kind('Surfaciques');

export class Colouring {
    readonly categories: Category[] = [];
    private readonly found: Category[] = []; // in the order of the items
    private readonly places = new Map<string, number>(); // in it, by key
    private readonly ofItems: Int32Array; // places in it, by item
    private readonly ofItem: (
        item: Item,
    ) => { key: string; name: string; colour?: Rgb } | undefined;

    constructor(
        readonly by: ColourBy,
        private readonly model: Model,
        private readonly findings: Findings,
        private readonly texts: Texts,
    ) {
        this.ofItem = this.chooser();
        this.ofItems = new Int32Array(model.itemCount).fill(-1);
        for (const ofKind of kKinds) {
            if (!ofKind.shape || ofKind.isLoad) continue;
            const { rows } = model.tableOf(ofKind);
            for (let rank = 0; rank < rows; ++rank) this.countIn(model.item(ofKind, rank));
        }
        for (const category of this.found) this.categories.push(category);
        if (by !== 'kind' && by !== 'finding') {
            this.categories.sort((a, b) => b.count - a.count);
            this.categories.forEach((category, i) => (category.colour = paletteColour(i)));
        }
    }

    categoryOf(item: Item): Category | undefined {
        return this.found[this.ofItems[item.number] ?? -1];
    }
    colourOf(item: Item): Rgb {
        if (item.kind.isLoad) return colourOfKind(item.kind);
        return this.categoryOf(item)?.colour ?? kNeutral;
    }

    private countIn(item: Item): void {
        const found = this.ofItem(item);
        if (!found) return;
        let place = this.places.get(found.key);
        if (place === undefined) {
            place = this.found.length;
            this.places.set(found.key, place);
            this.found.push({
                key: found.key,
                name: found.name,
                colour: found.colour ?? kNeutral,
                count: 0,
            });
        }
        this.ofItems[item.number] = place;
        ++this.found[place]!.count;
    }

    private chooser(): (item: Item) => { key: string; name: string; colour?: Rgb } | undefined {
        const { model, texts } = this;
        switch (this.by) {
            case 'kind':
                return ({ kind: of }) => ({
                    key: `kind:${of.table}`,
                    name: kindName(texts, of),
                    colour: colourOfKind(of),
                });
            case 'group': {
                const titles = groupTitles(model);
                return (item) => {
                    const group = model.groupOf(item);
                    if (group === undefined) return undefined;
                    const key = `${item.kind.groupKind}:${group}`;
                    return {
                        key: `group:${key}`,
                        name: titles.get(key) ?? `${texts.noGroup} ${group}`,
                    };
                };
            }
            case 'material':
                return (item) =>
                    this.referred(item, 'material', 'Materials', 'MaterialName', {
                        Filaires: 'FilaireMaterial',
                        Surfaciques: 'SurfaciqueMaterial',
                    });
            case 'section':
                return (item) =>
                    item.kind === kSurfaces
                        ? this.thickness(item)
                        : this.referred(item, 'section', 'Sections', 'SectionLib', {
                              Filaires: 'StartSection',
                          });
            case 'type':
                return (item) => {
                    const column = model.tableOf(item.kind).column('ElementType');
                    if (item.kind !== kBars && item.kind !== kSurfaces && !item.kind.groupKind)
                        return undefined;
                    const name = column.text(item.rank) || texts.noType;
                    return { key: `type:${item.kind.table}:${name}`, name };
                };
            case 'finding':
                return (item) => {
                    const severity = this.findings.worstOf(item.number);
                    if (severity === undefined)
                        return { key: 'finding:none', name: texts.noFinding, colour: kNeutral };
                    const names = [texts.note, texts.warning, texts.error];
                    return {
                        key: `finding:${severity}`,
                        name: names[severity]!,
                        colour: kOfSeverities[severity]!,
                    };
                };
        }
    }
    private referred(
        item: Item,
        key: string,
        table: string,
        nameColumn: string,
        columns: Record<string, string>,
    ): { key: string; name: string } | undefined {
        const column = columns[item.kind.table];
        if (!column) return undefined;
        const place = this.model.tableOf(item.kind).column(column).number(item.rank);
        if (place < 0) return { key: `${key}:-1`, name: this.texts.none };
        const name = this.model.data.table(table).column(nameColumn).text(place);
        return { key: `${key}:${place}`, name: name || `${place + 1}` };
    }
    private thickness(item: Item): { key: string; name: string } {
        const value = this.model.tableOf(item.kind).column('Thickness').number(item.rank);
        return {
            key: `thickness:${value}`,
            name: `${this.texts.thickness} ${Number(value.toPrecision(6))} m`,
        };
    }
}

// By kind of the elements and number: the first of each.
export function groupTitles(model: Model): Map<string, string> {
    const groups = model.data.table('Groupes');
    const titles = new Map<string, string>();
    for (let row = groups.rows - 1; row >= 0; --row) {
        const key = `${groups.column('Elem').number(row)}:${groups.column('Num').number(row)}`;
        titles.set(key, groups.column('Titre').text(row) ?? '');
    }
    return titles;
}
