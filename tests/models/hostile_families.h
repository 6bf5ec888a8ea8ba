// Files made to be slow to read.
#pragma once

#include <string>
#include <vector>

namespace tamur::bench {

struct HostileFamily {
    const char* name;
    // Builds the sections of a file of that size; the settings are before them.
    void (*write)(std::string& text, int size);
    int size;  // takes some tens of milliseconds
    // At most this times the time for twice the size; more where what is looked up lies anywhere,
    // and so in a slower memory when there is more of it.
    double twiceTheSize = 2.2;
};

[[nodiscard]] const std::vector<HostileFamily>& HostileFamilies();

// The shortest line that gives a record, for each kind of them, and the sections that make it do
// so.
struct MinimalLine {
    const char* sections;
    const char* line;
};

[[nodiscard]] const std::vector<MinimalLine>& MinimalLines();

}  // namespace tamur::bench
