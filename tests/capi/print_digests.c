/* Prints a digest of every table of model files, or why a file was refused: the same on every
 * system. usage: print_digests FILE...
 */
#include <stdio.h>
#include <tamur/tamur.h>

/* FNV-1a, a byte at a time. */
static uint64_t Mix(uint64_t hash, const void* bytes, uint64_t size)
{
    const unsigned char* byte = (const unsigned char*)bytes;
    for (uint64_t i = 0; i < size; ++i) hash = (hash ^ byte[i]) * 1099511628211u;
    return hash;
}

static uint64_t DigestOf(const TamurTable* table)
{
    uint64_t hash = 14695981039346656037u;
    hash = Mix(hash, table->rows, table->count * table->row_size);
    hash = Mix(hash, table->reals, table->real_count * sizeof *table->reals);
    hash = Mix(hash, table->integers, table->integer_count * sizeof *table->integers);
    hash = Mix(hash, table->texts, table->text_bytes);
    return Mix(hash, table->text_starts, (table->text_count + 1) * sizeof *table->text_starts);
}

static void PrintFile(const char* path)
{
    TamurError error;
    TamurModel* model = NULL;
    if (TamurOpen(path, 1, &model, &error) != TAMUR_OK) {
        printf("%s %s\n", error.code, error.text);
        return;
    }
    for (int32_t number = TAMUR_MATERIALS; number <= TAMUR_FINDING_COUNTS; ++number) {
        const TamurTable* table = NULL;
        if (TamurGetTable(model, number, &table, &error) != TAMUR_OK) {
            printf(" %d: %s", (int)number, error.text);
            continue;
        }
        if (table->count != 0) {
            printf(" %d: %llu %016llx", (int)number, (unsigned long long)table->count,
                   (unsigned long long)DigestOf(table));
        }
        TamurReleaseTable(table);
    }
    puts("");
    TamurClose(model);
}

int main(int argc, char** argv)
{
    fputs(TamurLayout(), stdout);
    for (int i = 1; i < argc; ++i) PrintFile(argv[i]);
    return ferror(stdout);
}
