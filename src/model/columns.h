// Columns that are kept apart from their record.
#pragma once

namespace tamur {

// Most columns of a line are at its end, and a line may end before them. Where they are many they
// are kept in an arena, apart from the record, and lines without them share this: so no short line
// takes much memory.
template <class Columns>
inline constexpr Columns kNoColumns = {};

}  // namespace tamur
