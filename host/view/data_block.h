// Columns of numbers in few bytes, laid out so that deflate finds what repeats. What is written
// here is read by viewer/src/data/columns.ts; both are tested on tests/host/vectors/columns.txt.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tamur::host::view {

// Bytes, and what they are: each Add... returns a description, in JSON, for who reads them.
class DataBlock {
 public:
    // One value for all, or as differences or as they are with as many bytes as the largest needs:
    // all first bytes, then all second ones.
    [[nodiscard]] std::string AddInts(std::span<const std::int32_t> values);

    // As integers over a power of ten where that is exact, as places in a list of few values, or
    // all first bytes, then all second ones. Every bit is kept, also of what is no number.
    [[nodiscard]] std::string AddReals(std::span<const double> values);

    [[nodiscard]] std::string AddBytes(std::string_view bytes);

    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
    void AddPlanes(const std::string& values, std::size_t width);
    [[nodiscard]] bool AddDecimals(std::span<const double> values, std::string& description);
    [[nodiscard]] bool AddFew(std::span<const double> values, std::string& description);

    std::string bytes_;
};

}  // namespace tamur::host::view
