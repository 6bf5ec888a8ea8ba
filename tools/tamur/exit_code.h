// What the tool's exit codes mean.
#pragma once

namespace tamur::tool::exit_code {

inline constexpr int kFine = 0;
inline constexpr int kRefused = 1;    // `info`, `dump`, `export`: the file was not imported
inline constexpr int kFound = 1;      // `check`: something is wrong
inline constexpr int kDifferent = 1;  // `diff`
inline constexpr int kTrouble = 2;  // wrong usage, no component, unreadable file, unwritable output

}  // namespace tamur::tool::exit_code
