// The words in which differences are told.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "host/diff/model_diff.h"
#include "host/language.h"

namespace tamur::tool {

struct DiffWords {
    const char* of;  // between what is changed and how: French has a blank there
    const char* none;
    const char* values;
    const char* moved;
    const char* points;
    const char* distance;
    const char* turned;
    const char* renumbered;
    const char* renamed;
    const char* more;
    const char* moreShown;
    const char* version;
    const char* settings;
    const char* skippedCombinations;
    const char* disabledCombinations;
    const char* message;
    const char* counted[host::kWhatCount];  // as host::What
};

[[nodiscard]] const DiffWords& WordsIn(host::Language language);

// What an engineer says for a field, by its published name as in host::FieldChange:
// "ElemLabels.tabLabels[0]" is "label 1". Fields without a word of their own keep their names.
[[nodiscard]] std::string FieldWords(const std::string& field, host::Language language);

// What one says for a number that is in that field: a working space, yes or no. Empty: the number.
[[nodiscard]] std::string_view ValueWords(std::string_view field, long long number,
                                          host::Language language);

}  // namespace tamur::tool
