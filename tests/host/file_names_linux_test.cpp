// Names are UTF-8 here.
#include <gmock/gmock.h>

#include <filesystem>

#include "checked_file.h"

namespace tamur::test {
namespace {

namespace fs = std::filesystem;

// The import would take the file with the name that comes out.
TEST(FileNames, ThatAreNoUtf8AreRefusedThoughASimilarOneIsThere)
{
    const TemporaryFile file(ModelText().Text(), "-?.txt");
    std::string name = Utf8Path(file.Path());
    EXPECT_FALSE(CheckedFile(file.Path()).imported.refusal);
    name.replace(name.rfind('?'), 1, "\xE9");
    EXPECT_THAT(CheckedFile(fs::path(name)).Codes(), testing::ElementsAre("TMR020"));
}

}  // namespace
}  // namespace tamur::test
