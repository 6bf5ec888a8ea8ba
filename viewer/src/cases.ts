// Load cases, with how many loads each has.
import type { Model } from './model';

export interface Case {
    number: number;
    title: string | undefined; // nothing: the file has no such case
    type: number;
    loads: number;
}

// Those of the file, then those that only loads name.
export function casesOf(model: Model): Case[] {
    const counts = new Map<number, number>();
    for (const table of [
        'ChargesPonctuelles',
        'ChargesLineaires',
        'ChargesSurfaciques',
        'ChargesPoidsPropre',
        'ChargesThermiques',
    ]) {
        for (const number of model.data.table(table).column('NumCas').raw)
            counts.set(number, (counts.get(number) ?? 0) + 1);
    }
    const table = model.data.table('Cas');
    const cases: Case[] = [];
    const known = new Set<number>();
    for (let row = 0; row < table.rows; ++row) {
        const number = table.column('Num').number(row);
        if (known.has(number)) continue;
        known.add(number);
        cases.push({
            number,
            title: table.column('Titre').text(row) ?? '',
            type: table.column('Type').number(row),
            loads: counts.get(number) ?? 0,
        });
    }
    for (const [number, loads] of counts) {
        if (!known.has(number)) cases.push({ number, title: undefined, type: 1, loads });
    }
    return cases;
}
