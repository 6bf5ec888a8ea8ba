#include "report.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <utility>

namespace tamur::bench {
namespace {

bool Keeps(const Row& row, const std::optional<double>& limit)
{
    if (!limit.has_value()) return true;
    return row.better == Better::kLower ? row.measured <= *limit : row.measured >= *limit;
}

const char* VerdictOn(const Row& row)
{
    if (!row.must.has_value() && !row.aim.has_value()) return "";
    if (!Keeps(row, row.must)) return "MISSED";
    return Keeps(row, row.aim) ? "aim" : "must";
}

std::string Format(const std::optional<double>& value)
{
    if (!value.has_value()) return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.3g", *value);
    return text;
}

std::string JsonNumber(const std::optional<double>& value)
{
    if (!value.has_value()) return "null";
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", *value);
    return text;
}

// Texts here are plain; only quotes and backslashes need care.
std::string JsonText(const std::string& text)
{
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + '"';
}

void PrintRow(const Row& row)
{
    std::printf("%-62s %9.4g %-9s %7s %7s  %-6s  +-%.1f %%\n", row.what.c_str(), row.measured,
                row.unit.c_str(), Format(row.must).c_str(), Format(row.aim).c_str(), VerdictOn(row),
                row.spread * 50);
}

}  // namespace

void Report::Add(Row row)
{
    // The run takes minutes: tell what is known.
    std::fprintf(stderr, "  %s: %.4g %s\n", row.what.c_str(), row.measured, row.unit.c_str());
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
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "w"),
                                                               &std::fclose);
    if (file == nullptr) throw std::runtime_error("cannot write " + path);
    std::fprintf(file.get(), "{\n");
    for (const auto& [name, value] : facts_) {
        std::fprintf(file.get(), "  %s: %s,\n", JsonText(name).c_str(), JsonText(value).c_str());
    }
    std::fprintf(file.get(), "  \"rows\": [");
    const char* separator = "";
    for (const Row& row : rows_) {
        std::fprintf(file.get(),
                     "%s\n    {\"what\": %s, \"measured\": %s, \"unit\": %s, \"must\": %s, "
                     "\"aim\": %s, \"better\": \"%s\", \"spread\": %s, \"verdict\": \"%s\"}",
                     separator, JsonText(row.what).c_str(), JsonNumber(row.measured).c_str(),
                     JsonText(row.unit).c_str(), JsonNumber(row.must).c_str(),
                     JsonNumber(row.aim).c_str(), row.better == Better::kLower ? "lower" : "higher",
                     JsonNumber(row.spread).c_str(), VerdictOn(row));
        separator = ",";
    }
    std::fprintf(file.get(), "\n  ]\n}\n");
}

bool Report::IsGood() const
{
    for (const Row& row : rows_) {
        if (!Keeps(row, row.must)) return false;
    }
    return true;
}

}  // namespace tamur::bench
