// How records and values are written for people.
import type { Item, Model } from './model';
import { kindNoun, type Texts } from './text';

export function nameOf(model: Model, texts: Texts, item: Item): string {
    return `${kindNoun(texts, item.kind)} ${model.identifierOf(item)}`;
}

// The label, the title or the name of a record, if it has one.
export function titleOf(model: Model, item: Item): string {
    const table = model.tableOf(item.kind);
    for (const name of ['Titre', 'MaterialName', 'SectionLib', 'AttacheLib']) {
        if (table.has(name)) return table.column(name).text(item.rank) ?? '';
    }
    if (table.has('iNumCas'))
        return caseTitle(model, table.column('iNumCas').number(item.rank)) ?? '';
    return model.labelsOf(item).join(' ');
}

export function caseTitle(model: Model, number: number): string | undefined {
    const cases = model.data.table('Cas');
    const row = cases.column('Num').raw.indexOf(number);
    return row < 0 ? undefined : (cases.column('Titre').text(row) ?? '');
}

// Without the digits that only a computer sees.
export function numberText(value: number, digits = 7): string {
    if (!Number.isFinite(value)) return String(value);
    const rounded = Number(value.toPrecision(digits));
    const size = Math.abs(rounded);
    return size !== 0 && (size >= 1e7 || size < 1e-4) ? rounded.toExponential() : String(rounded);
}

// A force, or one per length or area, in newtons.
export function forceText(value: number, unit: string): string {
    return Math.abs(value) >= 1000
        ? `${numberText(value / 1000, 4)} k${unit}`
        : `${numberText(value, 4)} ${unit}`;
}
