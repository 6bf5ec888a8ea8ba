// Memory that runs out while a model is imported: the import says so, nothing is left over, and
// the next reader works.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "linked/memory_watch.h"
#include "linked/quiet_boxes.h"
#include "failures/seed_files.h"

namespace tamur::test {
namespace {

constexpr Failing kImportWays[] = {Failing::kOnce, Failing::kFromThereOn};

std::vector<LONG> NodesOf(ITAMURStructureReader& reader)
{
    std::vector<LONG> identifiers;
    for (const auto& node : Nodes(reader)) identifiers.push_back(node->identifier);
    return identifiers;
}

// An import adds its nodes to those that are there.
bool EndsWith(const std::vector<LONG>& nodes, const std::vector<LONG>& added)
{
    return nodes.size() >= added.size() && std::equal(added.rbegin(), added.rend(), nodes.rbegin());
}

struct Attempt {
    Outcome outcome;
    Outcome next;   // of an import into the same reader that nothing disturbs
    bool hasNodes;  // of the file, after that one
    bool hasFailed;
    std::int64_t blocksLeft;
};

// What the reader holds afterwards is read in full, too.
Attempt ImportFailing(const std::filesystem::path& path, std::uint64_t allocation, Failing how,
                      const std::vector<LONG>& nodes)
{
    const String name(Wide(path.string()).c_str());
    Attempt attempt = {};
    MemoryWatch memory;
    {
        const auto reader = NewReader();
        memory.FailAt(allocation, how);
        attempt.outcome.result = reader->Import(name.Get());
        memory.FailNoMore();
        attempt.hasFailed = memory.HasFailed();
        attempt.outcome.digest = ReadEverything(*reader);
        attempt.next.result = reader->Import(name.Get());
        attempt.next.digest = ReadEverything(*reader);
        attempt.hasNodes = EndsWith(NodesOf(*reader), nodes);
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
    const std::uint64_t nothing = ReadEverything(*NewReader());
    const auto fresh = NewReader();
    (void)ImportFile(*fresh, file.Path());
    const std::vector<LONG> nodes = NodesOf(*fresh);
    int fromNothing = 0;
    for (const Failing how : kImportWays) {
        for (std::uint64_t i = 1; i <= count; ++i) {
            const Attempt attempt = ImportFailing(file.Path(), i, how, nodes);
            EXPECT_TRUE(attempt.hasFailed) << i;
            EXPECT_EQ(attempt.blocksLeft, 0) << i;
            EXPECT_EQ(attempt.outcome.result, E_OUTOFMEMORY) << i;
            EXPECT_EQ(attempt.next.result, expected.result) << i;
            EXPECT_TRUE(attempt.hasNodes) << i;
            if (attempt.outcome.digest != nothing) continue;
            EXPECT_TRUE(attempt.next == expected) << i;
            ++fromNothing;
        }
    }
    EXPECT_GT(fromNothing, 2);  // the first allocations of any import
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

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

// Each with one list that needs memory of its own: more than an arena begins with.
std::vector<Seed> ModelsOfOneLongList()
{
    const std::string constants = " 1 2 3 4 5 6 7 8 9 10 11 ";
    const std::string modes = " 90 91 92 1" + Repeated(" 1 0.5", 8) + " 1 mot 41 O mot";
    const auto parameters = [](const std::string& line) {
        return ModelText()
            .Section("#Cas", {"1 G 1 G 0", "5 C 2 C 0", "6 M 3 M 0", "7 S 4 S 0", "8 E 9 E 0"})
            .Section("#TAB_PARAM_CAS", {line})
            .Text();
    };
    const auto elements = [](const std::vector<std::string>& lines) {
        return ModelText().Elements(lines).Text();
    };
    const std::string corners = Repeated(" 1.5 2.5 3.5", 3000);

    std::string cases = ModelText().Raw("#Cas\n").Text();
    std::string combination = "#TAB_PARAM_CAS\n9999 2";
    for (int i = 1; i <= 4000; ++i) {
        cases += std::to_string(i) + " G 1 G 0\n";
        combination += " " + std::to_string(i) + " 1.5";
    }
    std::vector<std::string> refused;
    for (int i = 0; i < 300; ++i) refused.push_back("8 1 0 0 0 0 0 0 77 0 0 -1 1 1");

    return {
        {"dampings", parameters("6 3 5000" + modes + Repeated(" 0.05", 5000))},
        {"few of many dampings", parameters("6 3 49999" + modes + Repeated(" 0.05", 5000))},
        {"spectrum",
         parameters("7 4 O N N mot 0 0.8 0.9 O 1 2 0" + Repeated(" 0.1 2.5", 5000) + " inf inf")},
        {"envelope", parameters("8 9 1 2 3 4 5 6 7 8 9 O 9000" + Repeated(" 12", 9000))},
        {"combination", cases + "9999 C 2 C 0\n" + combination + " 32767 0\n"},
        {"outline",
         ModelText()
             .Section("#Geometries", {"A" + constants + "3000 S" + Repeated(" 1.5 2.5", 3000) +
                                      Repeated(" 3.5", 3000)})
             .Text()},
        {"labels of a node", elements({"1 7 0 1 4000 1 2 3" + Repeated(" Label", 4000)})},
        {"labels of a bar", elements({"2 7 0 2 4000 0 0 0 0 0 3" + Repeated(" Label", 4000)})},
        {"polygon", elements({"3 7 0 3000 0" + corners + " 0 0 0 1"})},
        {"wall", elements({"20 7 0 3000 0" + corners + " 0 0 0 1 O N 1 2 3"})},
        {"messages", elements(refused)},
    };
}

// A count that its list does not have would show as a crash when the reader is read afterwards.
TEST(FailingMemory, ListsThatTakeMemoryOfTheirOwnAreWholeOrNotThere)
{
    const QuietBoxes boxes;
    for (const Seed& model : ModelsOfOneLongList()) {
        SCOPED_TRACE(model.name);
        EXPECT_GE(FailEveryAllocation(model.text), 5u);
    }
}

TEST(FailingMemory, AMissingFileThatCannotBeToldAboutIsOutOfMemory)
{
    const QuietBoxes boxes;
    const std::filesystem::path missing = std::filesystem::temp_directory_path() / "tamur-none";
    ASSERT_EQ(ImportUndisturbed(missing).result, E_FAIL);
    const std::uint64_t count = CountAllocations(missing);
    ASSERT_GT(count, 0u);
    for (const Failing how : kImportWays) {
        for (std::uint64_t i = 1; i <= count; ++i) {
            const Attempt attempt = ImportFailing(missing, i, how, {});
            EXPECT_EQ(attempt.outcome.result, E_OUTOFMEMORY) << i;
            EXPECT_EQ(attempt.blocksLeft, 0) << i;
        }
    }
}

}  // namespace
}  // namespace tamur::test
