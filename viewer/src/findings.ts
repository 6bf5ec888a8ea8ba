// Findings, and what they are about.
import { kindOfTable } from './kinds';
import type { Item, Model } from './model';
import type { Language } from './text';

export type Severity = 0 | 1 | 2; // note, warning, error

export interface Finding {
    code: string;
    severity: Severity;
    line: number;
    column: number;
    item: Item | undefined;
    english: string;
    french: string;
}

export const textOf = (finding: Finding, language: Language): string =>
    language === 'fr' ? finding.french : finding.english;

export class Findings {
    readonly all: Finding[] = [];
    readonly notListed: { code: string; severity: Severity; count: number }[] = [];
    private readonly worst = new Map<number, Severity>(); // by item

    constructor(model: Model) {
        const table = model.data.table('Findings');
        const column = (name: string) => table.column(name);
        for (let row = 0; row < table.rows; ++row) {
            const ofTable = kindOfTable(column('table').text(row) ?? '');
            const rank = column('rank').number(row);
            const item = ofTable && rank >= 0 ? model.item(ofTable, rank) : undefined;
            const severity = column('severity').number(row) as Severity;
            this.all.push({
                code: column('code').text(row) ?? '',
                severity,
                line: column('line').number(row),
                column: column('column').number(row),
                item,
                english: column('english').text(row) ?? '',
                french: column('french').text(row) ?? '',
            });
            if (item) {
                const before = this.worst.get(item.number);
                if (before === undefined || before < severity)
                    this.worst.set(item.number, severity);
            }
        }
        const rest = model.data.table('FindingsNotHeld');
        for (let row = 0; row < rest.rows; ++row) {
            this.notListed.push({
                code: rest.column('code').text(row) ?? '',
                severity: rest.column('severity').number(row) as Severity,
                count: rest.column('count').number(row),
            });
        }
    }

    count(severity: Severity): number {
        const listed = this.all.filter((finding) => finding.severity === severity).length;
        return this.notListed.reduce(
            (sum, rest) => sum + (rest.severity === severity ? rest.count : 0),
            listed,
        );
    }
    worstOf(item: number): Severity | undefined {
        return this.worst.get(item);
    }
    get items(): Iterable<[item: number, severity: Severity]> {
        return this.worst;
    }
    of(item: number): Finding[] {
        return this.all.filter((finding) => finding.item?.number === item);
    }
}
