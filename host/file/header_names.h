// What was meant by a line that is nearly a header.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "import/file/section_header.h"

namespace tamur::host {

// The header that a line beginning with "#" (after blanks or a byte order mark, perhaps) is most
// like, if it is like one: the same but for case, blanks, accents in another code page, or a letter
// or two. Give it a line that is none itself.
[[nodiscard]] std::optional<SectionHeader> HeaderMeantBy(std::string_view line);

// As people write it, in UTF-8: "#Matériaux".
[[nodiscard]] std::string DisplayOf(SectionHeader header);

// "#Materiaux"; the plain spelling of the accented ones too.
[[nodiscard]] std::string_view PlainTextOf(SectionHeader header);

// The two spellings of one section are one.
[[nodiscard]] SectionHeader PlainOf(SectionHeader header);

}  // namespace tamur::host
