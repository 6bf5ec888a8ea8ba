// Memory that runs out while a model is imported: the import says so, nothing is left behind, and
// the next reader works.
#include <gtest/gtest.h>

#include "failures/memory_watch.h"
#include "failures/quiet_boxes.h"
#include "failures/seed_files.h"

namespace tamur::test {
namespace {

constexpr Failing kWays[] = {Failing::kOnce, Failing::kFromThereOn};

struct Attempt {
    Outcome outcome;
    bool hasFailed;
    std::int64_t blocksLeft;
};

// What the reader holds afterwards is read in full, too, and then once more after an import into
// the same reader that nothing disturbs.
Attempt ImportFailing(const std::filesystem::path& path, std::uint64_t allocation, Failing how)
{
    const String name(Wide(path.string()).c_str());
    MemoryWatch memory;
    Attempt attempt = {};
    {
        const auto reader = NewReader();
        memory.FailAt(allocation, how);
        attempt.outcome.result = reader->Import(name.Get());
        memory.FailNoMore();
        attempt.hasFailed = memory.HasFailed();
        attempt.outcome.digest = ReadEverything(*reader);
        (void)reader->Import(name.Get());
        (void)ReadEverything(*reader);
    }
    attempt.blocksLeft = memory.BlocksAlive();
    return attempt;
}

std::uint64_t CountAllocations(const std::filesystem::path& path)
{
    const String name(Wide(path.string()).c_str());
    const auto reader = NewReader();
    const MemoryWatch memory;
    (void)reader->Import(name.Get());
    return memory.Allocations();
}

// Returns how many allocations there were.
std::uint64_t FailEveryAllocation(const std::string& text)
{
    const TemporaryFile file(text);
    const Outcome expected = ImportUndisturbed(file.Path());
    const std::uint64_t count = CountAllocations(file.Path());
    for (const Failing how : kWays) {
        for (std::uint64_t i = 1; i <= count; ++i) {
            const Attempt attempt = ImportFailing(file.Path(), i, how);
            EXPECT_TRUE(attempt.hasFailed) << i;
            EXPECT_EQ(attempt.blocksLeft, 0) << i;
            // Sorting does without the memory it would like to have.
            EXPECT_TRUE(attempt.outcome == expected || attempt.outcome.result == E_OUTOFMEMORY)
                << i << ": " << attempt.outcome.result;
        }
    }
    EXPECT_TRUE(ImportUndisturbed(file.Path()) == expected);
    return count;
}

TEST(FailingMemory, EveryAllocationOfAnImportMayFail)
{
    const QuietBoxes boxes;
    (void)NewReader();  // the class object stays
    std::uint64_t count = 0;
    for (const Seed& seed : SomeSeeds()) {
        SCOPED_TRACE(seed.name);
        count += FailEveryAllocation(seed.text);
    }
    RecordProperty("allocations", std::to_string(count));
    EXPECT_GT(count, 2000u / kEvery);  // otherwise nothing was watched
}

TEST(FailingMemory, ManyRecordsAreAllTakenBack)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 3000; ++i) {
        lines.push_back("1 " + std::to_string(i) + " 0 1 1 1 2 3 Label 0 0 0");
    }
    const QuietBoxes boxes;
    EXPECT_GT(FailEveryAllocation(ModelText().Elements(lines).Text()), 15u);
}

TEST(FailingMemory, AMissingFileThatCannotBeToldAboutIsOutOfMemory)
{
    const QuietBoxes boxes;
    const std::filesystem::path missing = std::filesystem::temp_directory_path() / "tamur-none";
    ASSERT_EQ(ImportUndisturbed(missing).result, E_FAIL);
    const std::uint64_t count = CountAllocations(missing);
    ASSERT_GT(count, 0u);
    for (const Failing how : kWays) {
        for (std::uint64_t i = 1; i <= count; ++i) {
            const Attempt attempt = ImportFailing(missing, i, how);
            EXPECT_EQ(attempt.outcome.result, E_OUTOFMEMORY) << i;
            EXPECT_EQ(attempt.blocksLeft, 0) << i;
        }
    }
}

}  // namespace
}  // namespace tamur::test
