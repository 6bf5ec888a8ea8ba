// A file that cannot be read to its end is said to be so, whatever was imported of it.
#include <gmock/gmock.h>

#include "failures/failing_files.h"
#include "failures/seed_files.h"
#include "host/file/imported_file.h"
#include "models/every_table.h"

namespace tamur::test {
namespace {

using host::Code;

std::string NameOf(const TemporaryFile& file)
{
    const std::u8string name = file.Path().u8string();
    return std::string(name.begin(), name.end());
}

TEST(CheckedFailures, AnErrorAtAnyByteIsSaid)
{
    const std::string text = EveryTable().Text();
    const TemporaryFile file(text);
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        FailingFiles files;
        files.FailReadsFrom(offset);
        host::Findings findings;
        const host::ImportedFile imported = host::ImportFile(NameOf(file), findings);
        ASSERT_EQ(findings.CountOf(Code::kReadError), 1) << offset;
        EXPECT_TRUE(!imported.refusal || imported.refusal->code == Code::kReadError) << offset;
        EXPECT_TRUE(imported.balance.AddsUp()) << offset;
    }
}

// The sections are read after the text was looked at.
TEST(CheckedFailures, AnErrorInAnyReadIsSaid)
{
    const std::string text = EveryTable().Text();
    const TemporaryFile file(text);
    constexpr std::size_t kPiece = 64;
    std::uint64_t reads = 0;
    {
        FailingFiles files(kPiece);
        host::Findings findings;
        (void)host::ImportFile(NameOf(file), findings);
        reads = files.Calls(FileCall::kRead);
        ASSERT_EQ(findings.CountOf(Code::kReadError), 0);
    }
    ASSERT_GT(reads, 2 * text.size() / kPiece);
    std::size_t said = 0;
    for (std::uint64_t number = 1; number <= reads; ++number) {
        FailingFiles files(kPiece);
        files.FailAt(FileCall::kRead, number, Failing::kFromThereOn);
        host::Findings findings;
        const host::ImportedFile imported = host::ImportFile(NameOf(file), findings);
        said += findings.CountOf(Code::kReadError);
        EXPECT_TRUE(imported.balance.AddsUp()) << number;
    }
    // The last read of the text only finds its end, and some reads are of text that is not needed.
    EXPECT_GT(said, reads / 2);
}

}  // namespace
}  // namespace tamur::test
