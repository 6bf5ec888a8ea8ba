// Names are in the ANSI code page here.
#include <gmock/gmock.h>

#include <filesystem>

#include "checked_file.h"

namespace tamur::test {
namespace {

// The import would take the file with the name that comes out.
TEST(FileNames, OutsideTheCodePageAreRefusedThoughASimilarOneIsThere)
{
    const TemporaryFile file(ModelText().Text(), "-portique O.txt");
    EXPECT_FALSE(CheckedFile(file.Path()).imported.refusal);
    std::wstring name = file.Path().wstring();
    name.replace(name.rfind(L'O'), 1, L"\u03A9");
    EXPECT_THAT(CheckedFile(std::filesystem::path(name)).Codes(), testing::ElementsAre("TMR020"));
}

}  // namespace
}  // namespace tamur::test
