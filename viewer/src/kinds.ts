// The tables of the contract, and how the page treats their records.

export type Shape = 'point' | 'line' | 'polygon';

export interface Kind {
    table: string;
    key: string; // in addresses
    identifier?: string; // the column that people call a record by
    shape?: Shape;
    corners?: string[]; // columns of points
    groupKind?: number; // the first column of its groups
    isLoad?: boolean;
    isShown?: boolean; // at first
}

const ofLine = ['Geometrie.start', 'Geometrie.end'];

// Elements first, as they are listed for people.
export const kKinds: Kind[] = [
    {
        table: 'Filaires',
        key: 'bar',
        identifier: 'identifier',
        shape: 'line',
        corners: ['startPoint', 'endPoint'],
        groupKind: 2,
        isShown: true,
    },
    {
        table: 'Surfaciques',
        key: 'surface',
        identifier: 'identifier',
        shape: 'polygon',
        corners: ['Surface.tabPoints'],
        groupKind: 3,
        isShown: true,
    },
    {
        table: 'Ouvertures',
        key: 'opening',
        identifier: 'identifier',
        shape: 'polygon',
        corners: ['Surface.tabPoints'],
        isShown: true,
    },
    {
        table: 'Parois',
        key: 'wall',
        identifier: 'identifier',
        shape: 'polygon',
        corners: ['Surface.tabPoints'],
    },
    {
        table: 'Nodes',
        key: 'node',
        identifier: 'identifier',
        shape: 'point',
        corners: ['Geometrie'],
    },
    {
        table: 'AppuisPonctuels',
        key: 'support',
        identifier: 'identifier',
        shape: 'point',
        corners: ['Geometrie'],
        groupKind: 1,
        isShown: true,
    },
    {
        table: 'AppuisLineaires',
        key: 'line-support',
        identifier: 'identifier',
        shape: 'line',
        corners: ofLine,
        groupKind: 5,
        isShown: true,
    },
    {
        table: 'AppuisSurfaciques',
        key: 'surface-support',
        identifier: 'identifier',
        shape: 'polygon',
        corners: ['Geometrie.tabPoints'],
        groupKind: 4,
        isShown: true,
    },
    {
        table: 'Masses',
        key: 'mass',
        identifier: 'identifier',
        shape: 'point',
        corners: ['Geometrie'],
        isShown: true,
    },
    {
        table: 'Cables',
        key: 'cable',
        identifier: 'identifier',
        shape: 'line',
        corners: ofLine,
        isShown: true,
    },
    {
        table: 'Deplacements',
        key: 'displacement',
        identifier: 'identifier',
        shape: 'point',
        corners: ['Geometrie'],
        isShown: true,
    },
    {
        table: 'LinesInterieur',
        key: 'inner-line',
        identifier: 'lIdentifier',
        shape: 'line',
        corners: ofLine,
    },
    { table: 'Lines', key: 'line', identifier: 'identifier', shape: 'line', corners: ofLine },
    {
        table: 'SurfacicSections',
        key: 'cut',
        identifier: 'identifier',
        shape: 'line',
        corners: ofLine,
    },
    {
        table: 'ChargesPonctuelles',
        key: 'point-load',
        identifier: 'identifier',
        shape: 'point',
        corners: ['Geometrie'],
        isLoad: true,
        isShown: true,
    },
    {
        table: 'ChargesLineaires',
        key: 'line-load',
        identifier: 'identifier',
        shape: 'line',
        corners: ofLine,
        isLoad: true,
        isShown: true,
    },
    {
        table: 'ChargesSurfaciques',
        key: 'surface-load',
        identifier: 'identifier',
        shape: 'polygon',
        corners: ['Geometrie.tabPoints'],
        isLoad: true,
        isShown: true,
    },
    { table: 'ChargesPoidsPropre', key: 'self-weight', identifier: 'identifier', isLoad: true },
    { table: 'ChargesThermiques', key: 'thermal-load', identifier: 'identifier', isLoad: true },
    { table: 'Cas', key: 'load-case', identifier: 'Num' },
    { table: 'Combinaisons', key: 'combination', identifier: 'iNumCas' },
    { table: 'Enveloppes', key: 'envelope', identifier: 'iNumCas' },
    { table: 'ChargesSismiques', key: 'seismic-case', identifier: 'iNumCas' },
    { table: 'Materials', key: 'material' },
    { table: 'Sections', key: 'section' },
    { table: 'Attaches', key: 'release' },
    { table: 'Groupes', key: 'group' },
];

const byTable = new Map(kKinds.map((kind) => [kind.table, kind]));
const byKey = new Map(kKinds.map((kind) => [kind.key, kind]));

export const kindOfTable = (table: string): Kind | undefined => byTable.get(table);
export const kindOfKey = (key: string): Kind | undefined => byKey.get(key);

export function kind(table: string): Kind {
    const found = byTable.get(table);
    if (!found) throw new Error(`no table ${table}`);
    return found;
}
