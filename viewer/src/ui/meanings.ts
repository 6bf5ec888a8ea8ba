// What numbers of records mean, in words.
import type { Value } from '../data/table';
import { groupTitles } from '../colours';
import type { Item } from '../model';
import { caseTitle } from '../names';
import type { Texts } from '../text';
import type { Context } from './context';

export function caseTypeName(texts: Texts, type: number): string {
    const names: Record<number, string> = {
        1: texts.static,
        2: texts.combination,
        3: texts.modal,
        4: texts.seismic,
        9: texts.envelope,
        12: texts.selfWeightCase,
        13: texts.thermalCase,
    };
    return names[type] ?? '';
}

const kSides = [
    ['left, top', 'gauche, haut'],
    ['left, centre', 'gauche, centre'],
    ['left, bottom', 'gauche, bas'],
    ['centre, top', 'centre, haut'],
    ['centre', 'centre'],
    ['centre, bottom', 'centre, bas'],
    ['right, top', 'droite, haut'],
    ['right, centre', 'droite, centre'],
    ['right, bottom', 'droite, bas'],
] as const;
const kRotations = ['x', 'y', 'z'];

export function meaningOf(
    { model, texts, language }: Context,
    item: Item,
    column: string,
    value: Value,
): string | undefined {
    if (typeof value !== 'number') return undefined;
    switch (column) {
        case 'GroupNumber':
            return item.kind.groupKind === undefined
                ? undefined
                : groupTitles(model).get(`${item.kind.groupKind}:${value}`);
        case 'NumCas':
        case 'iNumCas':
            return caseTitle(model, value);
        case 'Type':
            return caseTypeName(texts, value);
        case 'Repere':
            return item.kind.isLoad
                ? ['', texts.global, texts.local, texts.projected][value]
                : undefined;
        case 'Excentration':
            return kSides[value]?.[language === 'fr' ? 1 : 0];
        case 'Rotules': {
            const axes = kRotations.filter((_, i) => (value & (1 << i)) !== 0).join(', ');
            return axes || undefined;
        }
        case 'epureSec.Code':
            return value > 32 && value < 127 ? String.fromCharCode(value) : undefined;
        default:
            return undefined;
    }
}
