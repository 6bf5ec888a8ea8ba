#include "host/view/table_columns.h"

#include <algorithm>

namespace tamur::host::view {

std::int32_t Texts::Add(std::string text)
{
    std::replace(text.begin(), text.end(), '\0', '?');
    const auto [found, isNew] =
        places_.try_emplace(std::move(text), static_cast<std::int32_t>(texts_.size()));
    if (isNew) texts_.push_back(&found->first);
    return found->second;
}

std::string Texts::Joined() const
{
    std::string joined;
    for (const std::string* text : texts_) joined.append(*text) += '\0';
    return joined;
}

std::size_t Points::Hash::operator()(const Bits& bits) const
{
    std::uint64_t hash = 0;
    for (const std::uint64_t part : {bits.x, bits.y, bits.z}) {
        hash = (hash ^ part) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 29;
    }
    return static_cast<std::size_t>(hash);
}

std::int32_t Points::Add(const TMR3DPnt& point)
{
    const Bits bits = {std::bit_cast<std::uint64_t>(point.x), std::bit_cast<std::uint64_t>(point.y),
                       std::bit_cast<std::uint64_t>(point.z)};
    const auto [found, isNew] = places_.try_emplace(bits, static_cast<std::int32_t>(x_.size()));
    if (isNew) {
        x_.push_back(point.x);
        y_.push_back(point.y);
        z_.push_back(point.z);
    }
    return found->second;
}

std::string Points::Write(DataBlock& block) const
{
    std::string out = R"({"x":)" + block.AddReals(x_);
    out += R"(,"y":)" + block.AddReals(y_);
    return out + R"(,"z":)" + block.AddReals(z_) + "}";
}

void TableColumns::AddColumn(std::string name, ColumnType type, std::vector<std::int32_t> values,
                             std::string table)
{
    columns_.push_back({.name = std::move(name),
                        .type = type,
                        .table = std::move(table),
                        .ints = std::move(values)});
}

std::string TableColumns::Write(std::string_view name, DataBlock& block) const
{
    constexpr const char* kTypes[] = {"int", "real", "text", "point"};
    // Names are of the contract or ours: nothing in them needs an escape.
    std::string out = R"({"name":")";
    out.append(name).append(R"(","rows":)").append(std::to_string(rows_)).append(R"(,"columns":[)");
    for (const Column& column : columns_) {
        if (&column != &columns_.front()) out += ',';
        out.append(R"({"name":")").append(column.name).append(R"(","type":")");
        out.append(kTypes[static_cast<std::size_t>(column.type)]).append("\"");
        if (!column.table.empty()) out.append(R"(,"table":")").append(column.table).append("\"");
        if (column.isList) out.append(R"(,"counts":)").append(block.AddInts(column.counts));
        out.append(R"(,"values":)");
        out += column.type == ColumnType::kReal ? block.AddReals(column.reals)
                                                : block.AddInts(column.ints);
        out += '}';
    }
    return out + "]}";
}

}  // namespace tamur::host::view
