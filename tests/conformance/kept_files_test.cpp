// The samples, and what a fuzzer ever stumbled over: fuzz/finds holds one model file for each, or
// two that one reader imports, parted by 0x1D.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/message_boxes.h"
#include "support/model_text.h"
#include "support/read_everything.h"

namespace tamur::test {
namespace {

std::string ContentOf(const std::filesystem::path& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

std::uint64_t DigestOf(const std::string& content)
{
    const std::size_t parting = content.find('\x1D');
    const auto reader = NewReader();
    (void)ImportText(*reader, content.substr(0, parting));
    std::uint64_t digest = ReadEverything(*reader);
    if (parting != content.npos) {
        (void)ImportText(*reader, content.substr(parting + 1));
        digest += ReadEverything(*reader);
    }
    return digest;
}

// Returns how many there were.
int ExpectAlikeTwice(const std::filesystem::path& folder)
{
    int count = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (file.path().extension() != ".txt") continue;
        const std::string content = ContentOf(file.path());
        EXPECT_EQ(DigestOf(content), DigestOf(content)) << file.path();
        ++count;
    }
    return count;
}

TEST(KeptFiles, AreReadInFullAndAlikeTwice)
{
    const CaughtMessageBoxes boxes;
    ExpectAlikeTwice(TAMUR_SOURCES "/fuzz/finds");
    EXPECT_GE(ExpectAlikeTwice(TAMUR_SOURCES "/samples"), 3);
}

}  // namespace
}  // namespace tamur::test
