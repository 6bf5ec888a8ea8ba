#include "host/view/data_block.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <vector>

namespace tamur::host::view {
namespace {

// A list of that many values is looked through with two bytes.
constexpr std::size_t kMostFew = 65536;
// Places are worth their bytes when values repeat so often.
constexpr std::size_t kRepeated = 4;
constexpr std::array<double, 8> kPowersOfTen = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};

void AppendLittleEndian(std::string& out, std::uint64_t value, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::size_t WidthFor(std::int32_t value)
{
    if (value >= -0x80 && value < 0x80) return 1;
    return value >= -0x8000 && value < 0x8000 ? 2 : 4;
}

std::vector<std::int32_t> Differences(std::span<const std::int32_t> values)
{
    std::vector<std::int32_t> differences;
    differences.reserve(values.size());
    std::uint32_t before = 0;
    for (const std::int32_t value : values) {
        const auto now = static_cast<std::uint32_t>(value);
        differences.push_back(static_cast<std::int32_t>(now - before));  // around, like the reader
        before = now;
    }
    return differences;
}

// What deflate will make of them, by what it is best at: bytes that are the same as before.
std::size_t CostOf(std::span<const std::int32_t> values, std::size_t width)
{
    std::size_t changes = 0;
    for (std::size_t i = 1; i < values.size(); ++i) changes += values[i] != values[i - 1];
    return changes * width;
}

std::size_t WidthFor(std::span<const std::int32_t> values)
{
    std::size_t width = 1;
    for (const std::int32_t value : values) width = std::max(width, WidthFor(value));
    return width;
}

std::string NamedNumber(const char* name, std::size_t value)
{
    return std::string(",\"") + name + "\":" + std::to_string(value);
}

// Whether it is value / power to the last bit, and no more than 31 bits long.
bool IsDecimal(double value, double power, std::int32_t& integer)
{
    const double scaled = std::round(value * power);
    if (!(std::abs(scaled) <= std::numeric_limits<std::int32_t>::max())) return false;
    integer = static_cast<std::int32_t>(scaled);
    return std::bit_cast<std::uint64_t>(integer / power) == std::bit_cast<std::uint64_t>(value);
}

}  // namespace

std::string DataBlock::AddInts(std::span<const std::int32_t> values)
{
    const std::string count = NamedNumber("count", values.size());
    if (std::all_of(values.begin(), values.end(),
                    [&](std::int32_t value) { return value == values.front(); })) {
        const std::int32_t value = values.empty() ? 0 : values.front();
        return R"({"as":"constant","value":)" + std::to_string(value) + count + "}";
    }
    const std::vector<std::int32_t> differences = Differences(values);
    const bool areDifferences =
        CostOf(differences, WidthFor(differences)) < CostOf(values, WidthFor(values));
    const std::span<const std::int32_t> written = areDifferences ? differences : values;
    const std::size_t width = WidthFor(written);
    std::string bytes;
    bytes.reserve(written.size() * width);
    for (const std::int32_t value : written) {
        AppendLittleEndian(bytes, static_cast<std::uint32_t>(value), width);
    }
    const std::size_t at = bytes_.size();
    AddPlanes(bytes, width);
    return std::string(R"({"as":")") + (areDifferences ? "differences" : "plain") + '"' +
           NamedNumber("bytes", width) + NamedNumber("at", at) + count + "}";
}

std::string DataBlock::AddReals(std::span<const double> values)
{
    std::string description;
    if (AddDecimals(values, description) || AddFew(values, description)) return description;
    std::string bytes;
    bytes.reserve(values.size() * sizeof(double));
    for (const double value : values) {
        AppendLittleEndian(bytes, std::bit_cast<std::uint64_t>(value), sizeof value);
    }
    const std::size_t at = bytes_.size();
    AddPlanes(bytes, sizeof(double));
    return R"({"as":"real")" + NamedNumber("at", at) + NamedNumber("count", values.size()) + "}";
}

std::string DataBlock::AddBytes(std::string_view bytes)
{
    const std::size_t at = bytes_.size();
    bytes_ += bytes;
    return R"({"as":"bytes")" + NamedNumber("at", at) + NamedNumber("count", bytes.size()) + "}";
}

void DataBlock::AddPlanes(const std::string& values, std::size_t width)
{
    for (std::size_t plane = 0; plane < width; ++plane) {
        for (std::size_t i = plane; i < values.size(); i += width) bytes_ += values[i];
    }
}

bool DataBlock::AddDecimals(std::span<const double> values, std::string& description)
{
    std::vector<std::int32_t> integers(values.size());
    for (std::size_t digits = 0; digits < kPowersOfTen.size(); ++digits) {
        std::size_t i = 0;
        while (i < values.size() && IsDecimal(values[i], kPowersOfTen[digits], integers[i])) ++i;
        if (i < values.size()) continue;
        description = R"({"as":"decimal")" + NamedNumber("digits", digits) + R"(,"ints":)" +
                      AddInts(integers) + "}";
        return true;
    }
    return false;
}

bool DataBlock::AddFew(std::span<const double> values, std::string& description)
{
    std::unordered_map<std::uint64_t, std::int32_t> placeOf;
    std::vector<double> few;
    std::vector<std::int32_t> places;
    places.reserve(values.size());
    for (const double value : values) {
        const auto [found, isNew] = placeOf.try_emplace(std::bit_cast<std::uint64_t>(value),
                                                        static_cast<std::int32_t>(few.size()));
        if (isNew) few.push_back(value);
        if (few.size() > kMostFew || few.size() * kRepeated > values.size() + kRepeated) {
            return false;
        }
        places.push_back(found->second);
    }
    const std::size_t at = bytes_.size();
    for (const double value : few) {
        AppendLittleEndian(bytes_, std::bit_cast<std::uint64_t>(value), sizeof value);
    }
    description = R"({"as":"few")" + NamedNumber("at", at) + NamedNumber("values", few.size()) +
                  R"(,"places":)" + AddInts(places) + "}";
    return true;
}

}  // namespace tamur::host::view
