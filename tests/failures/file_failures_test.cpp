// Files that fail while they are read: to the import they look as if they ended there.
#include <gtest/gtest.h>

#include "models/every_table.h"
#include "failures/failing_files.h"
#include "linked/quiet_boxes.h"
#include "failures/seed_files.h"

namespace tamur::test {
namespace {

constexpr Failing kFileWays[] = {Failing::kOnce, Failing::kFromThereOn};

// Imports while `files` may fail; the reader goes before the files are counted.
Outcome ImportThrough(FailingFiles& files, const std::filesystem::path& path)
{
    const Outcome outcome = ImportUndisturbed(path);
    EXPECT_EQ(files.FilesOpen(), 0);
    return outcome;
}

Outcome ImportOfText(const std::string& text)
{
    const TemporaryFile file(text);
    return ImportUndisturbed(file.Path());
}

// Few enough to cut at every byte, with every section and every kind of line among them.
std::vector<std::string> ModelsToCut()
{
    std::vector<std::string> models = {EveryTable().Text()};
    const auto seeds = SomeSeeds();
    for (std::size_t i = 0; i < seeds.size(); i += 8) models.push_back(seeds[i].text);
    return models;
}

TEST(FailingFiles, ReadsOfOneByteGiveTheSameModel)
{
    const QuietBoxes boxes;
    for (const Seed& seed : SomeSeeds()) {
        SCOPED_TRACE(seed.name);
        const TemporaryFile file(seed.text);
        const Outcome expected = ImportUndisturbed(file.Path());
        FailingFiles files(1);
        EXPECT_TRUE(ImportThrough(files, file.Path()) == expected);
        EXPECT_GT(files.Calls(FileCall::kRead), 100u);
    }
}

TEST(FailingFiles, AnErrorAtAnyByteIsTheEndOfTheFile)
{
    const QuietBoxes boxes;
    int errors = 0;
    for (const std::string& text : ModelsToCut()) {
        const TemporaryFile file(text);
        for (std::size_t offset = 0; offset < text.size(); offset += kEvery) {
            const Outcome expected = ImportOfText(text.substr(0, offset));
            FailingFiles files;
            files.FailReadsFrom(offset);
            ASSERT_TRUE(ImportThrough(files, file.Path()) == expected) << offset;
            ++errors;
        }
    }
    RecordProperty("errors", std::to_string(errors));
}

// The first reads pass over the file once. One that fails there ends the file for good, also when
// later ones would not fail.
TEST(FailingFiles, AReadThatFailsWhileHeadersAreSoughtEndsTheFileForGood)
{
    const QuietBoxes boxes;
    constexpr std::size_t kPiece = 7;
    for (const std::string& text : ModelsToCut()) {
        const TemporaryFile file(text);
        for (std::uint64_t read = 1; (read - 1) * kPiece < text.size(); read += kEvery) {
            const Outcome expected = ImportOfText(text.substr(0, (read - 1) * kPiece));
            FailingFiles files(kPiece);
            files.FailAt(FileCall::kRead, read, Failing::kOnce);
            ASSERT_TRUE(ImportThrough(files, file.Path()) == expected) << read;
        }
    }
}

TEST(FailingFiles, EveryReadMayFail)
{
    const QuietBoxes boxes;
    constexpr std::size_t kPiece = 50;
    std::uint64_t failed = 0;
    for (const Seed& seed : SomeSeeds()) {
        SCOPED_TRACE(seed.name);
        const TemporaryFile file(seed.text);
        const Outcome expected = ImportUndisturbed(file.Path());
        for (const Failing how : kFileWays) {
            for (std::uint64_t read = 1;; read += kEvery) {
                FailingFiles files(kPiece);
                files.FailAt(FileCall::kRead, read, how);
                const Outcome outcome = ImportThrough(files, file.Path());
                EXPECT_TRUE(outcome.result == S_OK || outcome.result == E_FAIL);
                if (files.Calls(FileCall::kRead) < read) break;
                ++failed;
            }
        }
        EXPECT_TRUE(ImportUndisturbed(file.Path()) == expected);
    }
    RecordProperty("reads", std::to_string(failed));
    EXPECT_GT(failed, 5000u / kEvery / kEvery);
}

TEST(FailingFiles, AFileThatCannotBeOpenedIsMissing)
{
    const QuietBoxes boxes;
    const TemporaryFile file(EveryTable().Text());
    const Outcome missing = ImportUndisturbed(file.Path().string() + "-none");
    for (const FileCall call : {FileCall::kOpen, FileCall::kAskForKind}) {
        for (const Failing how : kFileWays) {
            FailingFiles files;
            files.FailAt(call, 1, how);
            EXPECT_TRUE(ImportThrough(files, file.Path()) == missing);
            EXPECT_EQ(files.Calls(FileCall::kRead), 0u);
        }
    }
}

TEST(FailingFiles, ACloseThatFailsChangesNothing)
{
    const QuietBoxes boxes;
    for (const Seed& seed : SomeSeeds()) {
        SCOPED_TRACE(seed.name);
        const TemporaryFile file(seed.text);
        const Outcome expected = ImportUndisturbed(file.Path());
        FailingFiles files;
        files.FailAt(FileCall::kClose, 1, Failing::kFromThereOn);
        EXPECT_TRUE(ImportThrough(files, file.Path()) == expected);
        EXPECT_EQ(files.Calls(FileCall::kClose), 1u);
    }
}

}  // namespace
}  // namespace tamur::test
