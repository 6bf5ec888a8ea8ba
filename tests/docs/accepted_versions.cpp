// A block that says which versions are accepted, against the table of docs/model-file.md.
#include <string>

BLOCK

int main()
{
    for (const char* accepted : {"10.1", "10.10", "12.2A", "14.1E", "11", "9"}) {
        if (!IsAccepted(accepted)) return 1;
    }
    for (const char* refused : {"10", "10.0", "9.9", "100.1", ""}) {
        if (IsAccepted(refused)) return 1;
    }
}
