// How a check tells what it found: as text for people, as JSON and SARIF for programs.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "host/check.h"

namespace tamur::tool {

// What was found in one file.
struct FileReport {
    std::string file;  // as the user wrote it; UTF-8
    const host::Findings& findings;
    const host::Checked& checked;
    bool showsBalance = false;
    bool showsSums = false;

    [[nodiscard]] bool WasImported() const { return !checked.imported.refusal; }
};

class Report {
 public:
    Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    virtual ~Report() = default;

    virtual void Add(const FileReport& report) = 0;
    virtual void Finish() {}
};

enum class Format { kText, kJson, kSarif };

struct Style {
    host::Language language = host::Language::kEnglish;
    bool hasColours = false;
};

// Writes to `out`, which must outlive it.
[[nodiscard]] std::unique_ptr<Report> MakeReport(Format format, Style style, std::ostream& out);

[[nodiscard]] std::unique_ptr<Report> MakeTextReport(Style style, std::ostream& out);
[[nodiscard]] std::unique_ptr<Report> MakeJsonReport(Style style, std::ostream& out);
[[nodiscard]] std::unique_ptr<Report> MakeSarifReport(Style style, std::ostream& out);

}  // namespace tamur::tool
