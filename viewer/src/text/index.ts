import type { Kind } from '../kinds';
import { en, type Texts } from './en';
import { fr } from './fr';

export type { Texts };
export type Language = 'en' | 'fr';

export const textsIn = (language: Language): Texts => (language === 'fr' ? fr : en);

// The first of the browser's that is spoken here.
export function languageOf(languages: readonly string[]): Language {
    for (const language of languages) {
        if (language.startsWith('fr')) return 'fr';
        if (language.startsWith('en')) return 'en';
    }
    return 'en';
}

type KindTexts = Record<string, [one: string, many: string]>;
export const kindNoun = (texts: Texts, kind: Kind): string =>
    (texts as unknown as KindTexts)[kind.table]?.[0] ?? kind.table;
export const kindName = (texts: Texts, kind: Kind): string =>
    (texts as unknown as KindTexts)[kind.table]?.[1] ?? kind.table;
