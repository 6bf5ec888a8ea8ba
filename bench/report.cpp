#include "report.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace tamur::bench {
namespace {

bool Misses(const Row& row, double goal)
{
    const double measured = Median(row.samples);
    return row.better == Better::kLower ? measured > goal : measured < goal;
}

const char* VerdictOn(const Row& row)
{
    if (Misses(row, row.must)) return "MISSED";
    if (Misses(row, row.aim)) return "must";
    return std::isnan(row.must) && std::isnan(row.aim) ? "" : "aim";
}

std::string Goal(double goal)
{
    char text[32] = "-";
    if (!std::isnan(goal)) std::snprintf(text, sizeof text, "%.3g", goal);
    return text;
}

void PrintRow(const Row& row)
{
    std::printf("%-62s %9.4g %-9s %7s %7s  %-6s  +-%.1f %%\n", row.what.c_str(),
                Median(row.samples), row.unit.c_str(), Goal(row.must).c_str(),
                Goal(row.aim).c_str(), VerdictOn(row), Spread(row.samples) * 50);
}

// What is no number becomes null.
nlohmann::ordered_json Json(const Row& row)
{
    return {{"what", row.what},
            {"measured", Median(row.samples)},
            {"unit", row.unit},
            {"must", row.must},
            {"aim", row.aim},
            {"better", row.better == Better::kLower ? "lower" : "higher"},
            {"spread", Spread(row.samples)},
            {"verdict", VerdictOn(row)}};
}

}  // namespace

void Report::Add(Row row)
{
    // The run takes minutes: tell what is known.
    std::fprintf(stderr, "  %s: %.4g %s\n", row.what.c_str(), Median(row.samples),
                 row.unit.c_str());
    rows_.push_back(std::move(row));
}

void Report::AddFact(std::string name, std::string value)
{
    facts_.emplace_back(std::move(name), std::move(value));
}

void Report::Print() const
{
    for (const auto& [name, value] : facts_) std::printf("%s: %s\n", name.c_str(), value.c_str());
    std::printf("\n%-62s %9s %-9s %7s %7s\n", "what", "measured", "", "must", "aim");
    for (const Row& row : rows_) PrintRow(row);
}

void Report::WriteJson(const std::string& path) const
{
    nlohmann::ordered_json json;
    for (const auto& [name, value] : facts_) json[name] = value;
    for (const Row& row : rows_) json["rows"].push_back(Json(row));
    std::ofstream file(path);
    if (!(file << json.dump(2) << std::endl)) throw std::runtime_error("cannot write " + path);
}

bool Report::IsGood() const
{
    return std::none_of(rows_.begin(), rows_.end(),
                        [](const Row& row) { return Misses(row, row.must); });
}

}  // namespace tamur::bench
