/* Model files for any language that can call C: the component, the check of it and the comparison
 * in one library, libtamur.so or tamur.dll, without COM.
 *
 *     TamurModel* model = NULL;
 *     TamurError error;
 *     if (TamurOpen("hall.txt", 0, &model, &error) != TAMUR_OK) return puts(error.text);
 *     const TamurTable* table = NULL;
 *     if (TamurGetTable(model, TAMUR_BARS, &table, &error) != TAMUR_OK) return puts(error.text);
 *     const TamurBar* bars = (const TamurBar*)table->rows;
 *     for (uint64_t i = 0; i < table->count; ++i) printf("%g\n", bars[i].length);
 *     TamurReleaseTable(table);
 *     TamurClose(model);
 *
 * A table is handed over whole: rows of one size, and three blocks that they lead into. In a row
 *  - a text is its place in the table's texts, -1 where there is none (see TamurTextAt);
 *  - a reference is a place in another table, -1 where there is none;
 *  - a TamurList is values of a block: reals, integers, or texts, whose places are integers.
 *
 * Texts are UTF-8. Quantities are as the file has them: the units in <tamur/rows.h> are what the
 * product writes.
 *
 * A model may be used by several threads at once, and a table lives until it is released, also when
 * its model is closed. No call ends the process, shows a box or lets an exception out.
 */
#ifndef TAMUR_TAMUR_H
#define TAMUR_TAMUR_H

#include <stddef.h>
#include <stdint.h>
#include <tamur/rows.h>

#if defined(TAMUR_BUILDS_LIBRARY) && defined(_WIN32)
#define TAMUR_API __declspec(dllexport)
#elif defined(TAMUR_BUILDS_LIBRARY)
#define TAMUR_API __attribute__((visibility("default")))
#else
#define TAMUR_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What every call answers that can fail. */
enum {
    TAMUR_OK = 0,
    TAMUR_REFUSED = 1,    /* the file was not imported; the cause is in the error */
    TAMUR_NO_MEMORY = 2,  /* also for what does not fit: try with more */
    TAMUR_WRONG_CALL = 3, /* an argument is null, or means nothing */
    TAMUR_FAILED = 4,     /* anything else: see the text */
    TAMUR_NOT_WRITTEN = 5 /* the output cannot be, or is there already: what was there stays */
};

/* Written when a call fails. The text is one line, English, ended by a NUL and cut where it does
 * not fit. The code is that of the finding that says why a file was refused ("TMR001"), else empty.
 */
typedef struct TamurError {
    char code[8];
    char text[1016];
} TamurError;

typedef struct TamurModel TamurModel; /* an imported model */

/* A table whole: its rows, and the blocks that they lead into. */
typedef struct TamurTable {
    const void* rows; /* of the type in <tamur/rows.h> */
    uint64_t count;
    uint64_t row_size; /* in bytes */
    const double* reals;
    uint64_t real_count;
    const int32_t* integers;
    uint64_t integer_count;
    const char* texts; /* each ended by a NUL */
    uint64_t text_bytes;
    const uint64_t* text_starts; /* text_count + 1 places in `texts` */
    uint64_t text_count;
} TamurTable;

/* "1.0.0". */
TAMUR_API const char* TamurVersion(void);

/* Where every column is, a line each: "bars.start 88 24", the table and the column, the place in
 * the row and the size in bytes; "bars 144" is the size of the whole row. For bindings that cannot
 * read the header, to be compared with what they believe.
 */
TAMUR_API const char* TamurLayout(void);

/* Imports a model file. With `check` other than 0 everything is looked for that is wrong with it
 * and with the model, as `tamur check` does: TAMUR_FINDINGS; a file that is refused is refused all
 * the same. `path` is UTF-8.
 */
TAMUR_API int32_t TamurOpen(const char* path, int32_t check, TamurModel** model, TamurError* error);
TAMUR_API void TamurClose(TamurModel* model); /* null does nothing */

/* The table of that number in <tamur/rows.h>, made anew with each call. Without a check, findings
 * are a wrong call.
 */
TAMUR_API int32_t TamurGetTable(TamurModel* model, int32_t number, const TamurTable** table,
                                TamurError* error);
TAMUR_API void TamurReleaseTable(const TamurTable* table); /* null does nothing */

/* What changed from one model to another, as `tamur diff --format=json` writes it, but for the
 * names of the files; docs/diff.md says what `tolerance` is. The text is given back to
 * TamurReleaseText.
 */
TAMUR_API int32_t TamurDiff(TamurModel* before, TamurModel* after, double tolerance, char** json,
                            TamurError* error);
TAMUR_API void TamurReleaseText(char* text); /* null does nothing */

/* What an export takes; all of it with zeros. */
typedef struct TamurExportOptions {
    const char* kind;     /* "csv", "xlsx", ...: docs/export.md; null: by the name of the output */
    const int32_t* cases; /* only the loads of these; of combinations, those of their cases */
    uint64_t case_count;
    const char* const* groups; /* only these and what is on them: titles, or "bars:3" */
    uint64_t group_count;
    int32_t replace; /* whether what is there may be replaced */
} TamurExportOptions;

/* Writes a model that was opened with a check, whole or not at all, as `tamur export` does. `name`
 * is what the output calls the model's file; `options` may be null. The summary, which is given
 * back to TamurReleaseText, says in English what the output lacks, has in part, and assumes; ""
 * when nothing. All texts are UTF-8.
 */
TAMUR_API int32_t TamurExport(TamurModel* model, const char* name, const char* output,
                              const TamurExportOptions* options, char** summary, TamurError* error);

/* A model that was opened with a check as one page for a browser, as `tamur view` writes it: HTML
 * in UTF-8, given back to TamurReleaseText.
 */
TAMUR_API int32_t TamurView(TamurModel* model, const char* name, char** page, TamurError* error);

/* The command-line tool, in this process and with its standard streams, so one call at a time. The
 * arguments are UTF-8, without the name of a program. Returns its exit code.
 */
TAMUR_API int32_t TamurRunTool(int32_t count, const char* const* arguments);

/* A text of a row by its place: null where there is none. */
static inline const char* TamurTextAt(const TamurTable* table, int32_t place)
{
    return place < 0 ? NULL : table->texts + table->text_starts[place];
}

#ifdef __cplusplus
}
#endif

#endif
