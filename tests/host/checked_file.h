// What is found in a file.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "host/check.h"
#include "support/model_text.h"

namespace tamur::test {

inline std::string Utf8Path(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

// A file, what was imported of it, and what was found: in the file, or in its model too.
struct CheckedFile {
    enum class Scope { kFile, kModelToo };

    explicit CheckedFile(const std::filesystem::path& path, Scope scope = Scope::kFile)
        : imported(scope == Scope::kFile ? host::ImportFile(Utf8Path(path), findings)
                                         : host::CheckFile(Utf8Path(path), findings).imported)
    {
    }

    // "TMR202 12:3+4 bar 9: ...", in the order of the file.
    [[nodiscard]] std::vector<std::string> Lines() const
    {
        std::vector<std::string> lines;
        for (const host::Finding& finding : findings.InFileOrder()) {
            lines.push_back(host::IdOf(finding.code) + ' ' + std::to_string(finding.place.line) +
                            ':' + std::to_string(finding.place.column) + '+' +
                            std::to_string(finding.place.length) + ' ' +
                            host::TextOf(finding, host::Language::kEnglish));
        }
        return lines;
    }

    [[nodiscard]] std::set<std::string> Codes() const
    {
        std::set<std::string> codes;
        for (const host::Finding& finding : findings.InFileOrder()) {
            codes.insert(host::IdOf(finding.code));
        }
        return codes;
    }

    host::Findings findings;
    host::ImportedFile imported;
};

inline CheckedFile CheckText(const std::string& text)
{
    const TemporaryFile file(text);
    return CheckedFile(file.Path());
}

inline std::filesystem::path SampleFile(const std::string& name)
{
    return std::filesystem::path(TAMUR_SOURCES) / "samples" / (name + ".txt");
}

}  // namespace tamur::test
