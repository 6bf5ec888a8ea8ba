// The order of fields for people, in tables and of a record: not that of the contract.
import type { Column } from '../data/table';

const kLeading = [
    'identifier',
    'lIdentifier',
    'Num',
    'iNumCas',
    'ElemLabels.tabLabels',
    'Titre',
    'MaterialName',
    'SectionLib',
    'AttacheLib',
    'ElementType',
    'GroupNumber',
    'StartSection',
    'EndSection',
    'FilaireMaterial',
    'SurfaciqueMaterial',
    'StartConnection',
    'EndConnection',
    'RealLength',
    'NumCas',
];
const kTrailing = ['ErrorMessage', 'CogPosition'];
const kCounts = /(^|\.)nb(Points|Labels)$/;

// Numbers of values, which the values tell themselves.
export const isCount = ({ name }: Column): boolean => kCounts.test(name);

function placeOf(column: Column): number {
    const leading = kLeading.indexOf(column.name);
    if (leading >= 0) return leading;
    if (column.name === 'line') return 4000;
    if (isCount(column)) return 3000;
    return 1000 + 1000 * Number(kTrailing.includes(column.name));
}

export const inOrder = (columns: readonly Column[]): Column[] =>
    [...columns].sort((a, b) => placeOf(a) - placeOf(b));
