#include "support/model_text.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <random>

namespace tamur::test {

ModelText::ModelText(std::string_view version)
{
    Section("#Version", {std::string(version)});
    Section("#Espace", {"2"});
    Section("#Tolerance", {"0.001"});
    Section("#Rigide", {"1"});
}

ModelText ModelText::Empty()
{
    return ModelText(Nothing());
}

ModelText& ModelText::Section(std::string_view header, const std::vector<std::string>& lines)
{
    Raw(header).Raw("\n");
    for (const std::string& line : lines) Raw(line).Raw("\n");
    return *this;
}

ModelText& ModelText::Raw(std::string_view text)
{
    text_ += text;
    return *this;
}

TemporaryFile::TemporaryFile(std::string_view content, std::string_view extension)
{
    static std::atomic<unsigned> counter = 0;
    static const unsigned process = std::random_device()();
    path_ = std::filesystem::temp_directory_path() /
            ("tamur-" + std::to_string(process) + "-" + std::to_string(++counter) +
             std::string(extension));
    std::ofstream file(path_, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

TemporaryFile::~TemporaryFile()
{
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

HRESULT ImportFile(ITAMURStructureReader& reader, const std::filesystem::path& path)
{
    const String name(path.string<OLECHAR>().c_str());
    return reader.Import(name.Get());
}

HRESULT ImportText(ITAMURStructureReader& reader, std::string_view content)
{
    const TemporaryFile file(content);
    return ImportFile(reader, file.Path());
}

ComPtr<ITAMURStructureReader> Imported(std::string_view content)
{
    ComPtr<ITAMURStructureReader> reader = NewReader();
    EXPECT_EQ(ImportText(*reader, content), S_OK);
    return reader;
}

}  // namespace tamur::test
