// The component's texts, by number.
#pragma once

#include "platform/platform.h"

namespace tamur {

namespace prompt {
inline constexpr unsigned kSelfWeightRefused = 13502;  // one %d: the case number
inline constexpr unsigned kThermalRefused = 13503;     // one %d: the case number
inline constexpr unsigned kCannotOpen = 13504;         // one %s: the path
inline constexpr unsigned kCaption = 13505;
}  // namespace prompt

inline constexpr const OLECHAR* kPromptSection = OLESTR("TAMURREADER");

class KdPrompts {
 public:
    // Gives the text of that number in that section; 1 when there is one, else 0 and an empty
    // text. `reserved` is 0.
    static int GetPrompt(WideString& text, unsigned number, const OLECHAR* section,
                         unsigned reserved);
};

// The prompt with its one "%s" or "%d" replaced.
[[nodiscard]] WideString FormatPrompt(unsigned number, WideStringView argument);
[[nodiscard]] WideString FormatPrompt(unsigned number, std::int32_t argument);

}  // namespace tamur
