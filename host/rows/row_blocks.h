// What rows lead into: the reals, integers and texts of one table.
#pragma once

#include <tamur/records.h>
#include <tamur/rows.h>

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "host/rows/text_block.h"

namespace tamur::host {

// The values of a list, as it is written into a block. Of zeros at its end no more than so many are
// stored: a line of a few bytes may announce 49 999.
inline constexpr std::size_t kStoredZeros = 16;

class RowBlocks {
 public:
    // Places of texts; -1 for null.
    [[nodiscard]] std::int32_t AddText(BSTR text)
    {
        return text == nullptr ? -1 : texts_.Add(ViewOf(text));
    }
    [[nodiscard]] std::int32_t AddText(WideStringView text) { return texts_.Add(text); }
    [[nodiscard]] std::int32_t AddText(std::string_view utf8) { return texts_.Add(utf8); }

    // A number below 0 is 0.
    [[nodiscard]] TamurList AddList(const double* values, int count);
    [[nodiscard]] TamurList AddList(const int* values, int count);
    [[nodiscard]] TamurList AddPoints(const TMR3DPlanarElement& polygon);
    [[nodiscard]] TamurList AddLabels(const TMRElementLabels& labels);

    // A list of texts: Begin, AddToList for each, End with the number that was announced.
    [[nodiscard]] std::uint64_t BeginList() const { return integers_.size(); }
    void AddToList(std::int32_t text) { integers_.push_back(text); }
    [[nodiscard]] TamurList EndList(std::uint64_t start, int announced) const;

    [[nodiscard]] const std::vector<double>& Reals() const { return reals_; }
    [[nodiscard]] const std::vector<std::int32_t>& Integers() const { return integers_; }
    [[nodiscard]] const TextBlock& Texts() const { return texts_; }

 private:
    std::vector<double> reals_;
    std::vector<std::int32_t> integers_;
    TextBlock texts_;
};

}  // namespace tamur::host
