// What is wrong, or may be, with a model file and the model in it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/kinds.h"
#include "host/language.h"

namespace tamur::host {

enum class Severity : std::uint8_t { kNote, kWarning, kError };

// "TMR" and the number of the code, three digits, is what users see. Numbers are never reused.
enum class Code : std::uint16_t {
#define FINDING(number, name, severity, english, french) k##name = number,
#include "host/findings/file_codes.def"
#include "host/findings/model_codes.def"
#undef FINDING
};

struct CodeInfo {
    Code code;
    std::string_view name;  // "UnknownHeader"
    Severity severity;
    // By language. "{1}" is the first value of the finding, "{2}" the second, "{0}" its column.
    std::string_view texts[kLanguageCount];
};

// Every code, in ascending order.
[[nodiscard]] const std::vector<CodeInfo>& AllCodes();
[[nodiscard]] const CodeInfo& InfoOf(Code code);
[[nodiscard]] std::string IdOf(Code code);  // "TMR101"

// Where in the file. Both count from 1; 0 is for a finding without a place. A column counts
// characters of the file, which are bytes; `length` of them are meant, 0 for the whole line.
struct Place {
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    std::uint32_t length = 0;
};

struct Finding {
    Code code;
    Place place = {};
    Kind kind = Kind::kNone;  // of the record that it is about, and its identifier or number;
    std::int64_t identifier = kNoIdentifier;
    std::vector<std::string> values = {};  // UTF-8, any characters
    Name column = {};                      // of the line, when it is about one

    static constexpr std::int64_t kNoIdentifier = -1;
};

// "bar 103: material 7 does not exist: the first is used instead": one line of UTF-8 without
// control characters, whatever the values hold.
[[nodiscard]] std::string TextOf(const Finding& finding, Language language);

// "note", "warning", "error" in that language.
[[nodiscard]] std::string_view NameOf(Severity severity, Language language);

}  // namespace tamur::host
