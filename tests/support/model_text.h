// Model files written by tests.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/component_under_test.h"

namespace tamur::test {

// The text of a model file, put together from sections. Starts with what every importable file
// needs; sections are added in the order of the calls.
//
//     ModelText().Section("#Materiaux", {"C25 3.0e10"}).Elements({"1 7 0 1 0 0 0 0 0 0 0 0"})
class ModelText {
 public:
    // "#Version", "#Espace", "#Tolerance" and "#Rigide".
    explicit ModelText(std::string_view version = "12.1");

    // Nothing at all.
    static ModelText Empty();

    ModelText& Section(std::string_view header, const std::vector<std::string>& lines);
    ModelText& Elements(const std::vector<std::string>& lines)
    {
        return Section("#Elements", lines);
    }
    // Text as it is, without a line end.
    ModelText& Raw(std::string_view text);

    // The text with "\n" line ends.
    [[nodiscard]] const std::string& Text() const { return text_; }

 private:
    struct Nothing {};
    explicit ModelText(Nothing) {}

    std::string text_;
};

// A file with those bytes, removed at the end.
class TemporaryFile {
 public:
    explicit TemporaryFile(std::string_view content, std::string_view extension = ".txt");
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    std::filesystem::path path_;
};

// Import of the file at that path, and of a file with that content.
HRESULT ImportFile(ITAMURStructureReader& reader, const std::filesystem::path& path);
HRESULT ImportText(ITAMURStructureReader& reader, std::string_view content);
inline HRESULT ImportText(ITAMURStructureReader& reader, const ModelText& model)
{
    return ImportText(reader, model.Text());
}

// A reader that has imported the model; the test fails when it could not.
ComPtr<ITAMURStructureReader> Imported(std::string_view content);
inline ComPtr<ITAMURStructureReader> Imported(const ModelText& model)
{
    return Imported(model.Text());
}

}  // namespace tamur::test
