/* Steel by section, in C, through tables: no COM, and one call for all bars. The path is UTF-8.
 * usage: c_interface FILE
 */
#include <stdio.h>
#include <stdlib.h>
#include <tamur/tamur.h>

static const TamurTable* Table(TamurModel* model, int32_t number)
{
    TamurError error;
    const TamurTable* table = NULL;
    if (TamurGetTable(model, number, &table, &error) != TAMUR_OK) {
        fprintf(stderr, "%s\n", error.text);
        exit(1);
    }
    return table;
}

int main(int argc, char** argv)
{
    TamurError error;
    TamurModel* model = NULL;
    if (argc != 2) return 2;
    if (TamurOpen(argv[1], 0, &model, &error) != TAMUR_OK) {
        fprintf(stderr, "%s: %s [%s]\n", argv[1], error.text, error.code);
        return 1;
    }
    const TamurTable* bars = Table(model, TAMUR_BARS);
    const TamurTable* sections = Table(model, TAMUR_SECTIONS);
    const TamurTable* materials = Table(model, TAMUR_MATERIALS);
    TamurClose(model); /* tables live until they are released */

    const TamurBar* bar = (const TamurBar*)bars->rows;
    const TamurSection* section = (const TamurSection*)sections->rows;
    const TamurMaterial* material = (const TamurMaterial*)materials->rows;
    for (uint64_t s = 0; s < sections->count; ++s) {
        double length = 0, weight = 0;
        for (uint64_t b = 0; b < bars->count; ++b) {
            if (bar[b].start_section != (int32_t)s || bar[b].material < 0) continue;
            length += bar[b].length;
            weight += bar[b].length * section[s].area * material[bar[b].material].unit_weight;
        }
        const char* name = TamurTextAt(sections, section[s].name);
        printf("%s: %.2f m, %.0f N\n", name != NULL ? name : "", length, weight);
    }
    TamurReleaseTable(bars);
    TamurReleaseTable(sections);
    TamurReleaseTable(materials);
    return 0;
}
