// Files as they are on disks: changed by somebody else while they are read, or larger than 32 bits
// can count.
#include <gtest/gtest.h>

#include <fstream>

#include "models/every_table.h"
#include "failures/failing_files.h"
#include "linked/quiet_boxes.h"
#include "failures/seed_files.h"

namespace tamur::test {
namespace {

constexpr std::size_t kPiece = 64;

Outcome OutcomeOf(const std::string& text)
{
    const TemporaryFile file(text);
    return ImportUndisturbed(file.Path());
}

// Imports it in pieces; `happens(path)` before the read with that number.
template <class Happens>
Outcome ImportDisturbed(const std::string& text, std::uint64_t read, Happens happens)
{
    const TemporaryFile file(text);
    FailingFiles files(kPiece);
    files.BeforeRead(read, [&] { happens(file.Path()); });
    const Outcome outcome = ImportUndisturbed(file.Path());
    EXPECT_GE(files.Calls(FileCall::kRead), read);
    EXPECT_EQ(files.FilesOpen(), 0);
    return outcome;
}

TEST(RealFiles, OneThatShrinksBeforeItIsReadThatFarEndsThere)
{
    const QuietBoxes boxes;
    const std::string text = EveryTable().Text();
    for (std::size_t size = kPiece; size < text.size(); size += kPiece * 3) {
        const auto shrink = [&](const auto& path) { std::filesystem::resize_file(path, size); };
        EXPECT_TRUE(ImportDisturbed(text, size / kPiece, shrink) == OutcomeOf(text.substr(0, size)))
            << size;
    }
}

TEST(RealFiles, OneThatShrinksLaterIsReadAsFarAsItGoes)
{
    const QuietBoxes boxes;
    const std::string text = EveryTable().Text();
    const std::uint64_t firstPass = text.size() / kPiece + 2;
    for (std::size_t size = 0; size < text.size(); size += kPiece * 3) {
        const auto shrink = [&](const auto& path) { std::filesystem::resize_file(path, size); };
        const Outcome outcome = ImportDisturbed(text, firstPass, shrink);
        EXPECT_TRUE(outcome.result == S_OK || outcome.result == E_FAIL) << size;
    }
}

void AppendTo(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary | std::ios::app) << text;
}

TEST(RealFiles, OneThatGrowsIsReadToWhereItEndedFirst)
{
    const QuietBoxes boxes;
    const std::string text = EveryTable().Text();
    const std::string more = "1 77 0 1 0 4 5 6 0 0 0 3\n";
    const auto grow = [&](const auto& path) { AppendTo(path, more); };
    const std::uint64_t firstPass = text.size() / kPiece + 2;
    EXPECT_TRUE(ImportDisturbed(text, 1, grow) == OutcomeOf(text + more));
    EXPECT_TRUE(ImportDisturbed(text, firstPass + 1, grow) == OutcomeOf(text));
    ASSERT_FALSE(OutcomeOf(text + more) == OutcomeOf(text));
}

// A line of NULs is an empty one, and there are very many of them before the elements.
TEST(RealFiles, OneOfMoreThanFourGigabytesIsReadToItsEnd)
{
    constexpr std::uint64_t kFourGigabytes = std::uint64_t{4} << 30;
    const TemporaryFile file(ModelText().Text());
    std::filesystem::resize_file(file.Path(), kFourGigabytes + 100);  // a hole, not written
    AppendTo(file.Path(), "\n#Elements\n1 8 0 1 0 4 5 6 0 0 0\n#Materiaux\nC25 1 2 3 4 5\n");
    const auto reader = NewReader();
    ASSERT_EQ(ImportFile(*reader, file.Path()), S_OK);
    const auto nodes = Nodes(*reader);
    ASSERT_EQ(nodes.Size(), 1);
    EXPECT_EQ(nodes.At(0)->identifier, 8);
    EXPECT_EQ(Materials(*reader).Size(), 1);
}

}  // namespace
}  // namespace tamur::test
