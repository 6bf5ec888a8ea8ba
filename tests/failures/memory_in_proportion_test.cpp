// No file makes an import take memory out of proportion to its size.
#include <gtest/gtest.h>

#include <algorithm>

#include "models/every_table.h"
#include "linked/memory_limit.h"
#include "linked/platform_memory.h"
#include "linked/quiet_boxes.h"
#include "model/sanitizer.h"
#include "models/hostile_families.h"

namespace tamur::test {
namespace {

// Imports it; the memory that this took at most, in bytes.
std::int64_t PeakOfImport(const std::string& text)
{
    const TemporaryFile file(text);
    const String name(Wide(file.Path().string()).c_str());
    (void)NewReader();  // the class object stays
    const MemoryWatch memory;
    (void)NewReader()->Import(name.Get());
    EXPECT_EQ(memory.BlocksAlive(), 0);
    return memory.PeakBytes();
}

TEST(MemoryInProportion, FilesMadeToBeSlowStayWithinTheLimit)
{
    constexpr std::size_t kSmall = 100000;
    const QuietBoxes boxes;
    double largest = 0;
    for (const bench::HostileFamily& family : bench::HostileFamilies()) {
        SCOPED_TRACE(family.name);
        for (const int size : {1, family.size / 100, family.size}) {
            std::string text = ModelText().Text();
            family.write(text, size);
            const std::int64_t peak = PeakOfImport(text);
            EXPECT_LE(peak, MemoryLimit(text.size())) << size;
            const double times = static_cast<double>(peak) / static_cast<double>(text.size());
            // Small files take the buffers of any import.
            if (text.size() > kSmall) largest = std::max(largest, times);
        }
    }
    RecordProperty("largest peak in times the file", std::to_string(largest));
}

// What only the sanitizer needs for each record: gaps, and a piece for each.
constexpr std::int64_t kSanitizerPerRecord =
    sanitizer::kIsOn ? std::int64_t{2 * sanitizer::kGap + 2 * sizeof(void*)} : 0;

// Of many sizes, because memory is taken in steps.
TEST(MemoryInProportion, LinesAsShortAsCanBeStayWithinTheLimit)
{
    constexpr std::int64_t kMostPieces = 3;  // a load, its columns, a message
    constexpr std::size_t kLargest = sanitizer::kIsOn ? 100000 : 1000000;
    const QuietBoxes boxes;
    double largest = 0;
    for (const bench::MinimalLine& minimal : bench::MinimalLines()) {
        SCOPED_TRACE(std::string(minimal.sections) + minimal.line);
        std::string text = ModelText().Text() + minimal.sections;
        std::int64_t lines = 0;
        for (std::size_t size = 1000; size <= kLargest; size += size / 2) {
            for (; text.size() < size; ++lines) text += minimal.line;
            const std::int64_t peak =
                PeakOfImport(text) - lines * kMostPieces * kSanitizerPerRecord;
            EXPECT_LE(peak, MemoryLimit(text.size())) << text.size();
            const double times = static_cast<double>(peak) / static_cast<double>(text.size());
            if (text.size() > 200000) largest = std::max(largest, times);
        }
    }
    RecordProperty("largest peak in times the file", std::to_string(largest));
}

TEST(MemoryInProportion, CountsWithoutAnythingAfterThemTakeNothing)
{
    const QuietBoxes boxes;
    const std::string huge[] = {"2147483647", "4294967295", "99999999999", "1000000", "49999"};
    const std::int64_t usual = PeakOfImport(EveryTable().Text());
    for (const std::string& count : huge) {
        const std::string lines[] = {
            "#Groupes\n2 " + count + " 2 P Oui\n",
            "#Elements\n1 1 0 " + count + " 0 0 0 0\n",
            "#Elements\n1 1 0 1 " + count + " 0 0 0 1 2 3\n",
            "#Elements\n3 1 0 " + count + " 0 0 0 0 1 1 1\n",
            "#Cas\n1 G 1 G 0\n4 S 4 S 0\n#TAB_PARAM_CAS\n3 3 " + count + " 1 1 1\n",
            "#Cas\n9 E 9 E 0\n#TAB_PARAM_CAS\n9 9 1 1 1 1 1 1 1 1 1 O " + count + " 1\n",
            "#Geometries\nR 1 2 3 4 5 6 7 8 9 10 11 " + count + " S 0 0\n"};
        for (const std::string& line : lines) {
            EXPECT_LE(PeakOfImport(ModelText().Raw(line).Text()), usual) << line;
        }
    }
}

// A host that only counts them, or reads few, does not pay for the texts of all.
TEST(MemoryInProportion, MessagesTakeNoTextUntilAskedFor)
{
    std::string text = ModelText().Text() + "#Elements\n";
    for (int i = 0; i < 100000; ++i) text += "8\n";
    const auto reader = Imported(text);
    const MemoryWatch memory;
    const auto messages = GetAccessor(*reader, &ITAMURStructureReader::GetMessageAccessor);
    EXPECT_LT(memory.PeakBytes(), 9 * static_cast<std::int64_t>(text.size()));
    BSTR first = nullptr;
    ASSERT_EQ(messages->GetMessageAtRank(99999, &first), S_OK);
    EXPECT_EQ(Utf8(first), "ATTENTION: Import Poids propre cas numéro 0 impossible");
    EXPECT_LT(memory.PeakBytes(), 9 * static_cast<std::int64_t>(text.size()));
}

// Each bar comes with both its outlines, which are freed with it: reading all bars takes the memory
// of one.
TEST(MemoryInProportion, BarsWithAHugeOutlineAreReadInTheMemoryOfOne)
{
    constexpr int kBars = 500;
    constexpr std::int64_t kPoints = 49000;
    constexpr auto kOutlines = static_cast<std::int64_t>(2 * kPoints * 2 * sizeof(double));
    std::string text = ModelText()
                           .Section("#Geometries", {"A 1 1 1 1 1 1 1 1 1 1 1 " +
                                                    std::to_string(kPoints) + " F 0 1 2 3"})
                           .Text() +
                       "#Elements\n";
    for (int i = 1; i <= kBars; ++i) {
        const std::string line = ElementLine(2, i)
                                     .Points({"0 0 0", "0 0 3"})
                                     .Labels({"B"})
                                     .Columns("1 1 0 0 1 1 1 1 1 1 0");
        text += line + "\n";
    }
    const auto reader = Imported(text);
    const auto withOutlines = [&reader] {
        int count = 0;
        for (const auto& bar : Records<TMRFilaire>(*reader)) {
            count += bar->StartSection.epureSec.nbPoints == kPoints &&
                     bar->EndSection.epureSec.nbPoints == kPoints;
        }
        return count;
    };
    EXPECT_EQ(withOutlines(), kBars);  // what the first reading makes stays
    const MemoryWatch memory;
    EXPECT_EQ(withOutlines(), kBars);
    // Where task memory is the system's, its bytes are not seen.
    if (kTaskMemoryIsMalloc) {
        EXPECT_GT(memory.PeakBytes(), kOutlines);
    }
    // The accessor is a copy of the table; its records are small.
    EXPECT_LT(memory.PeakBytes(), kOutlines * 5 / 4);
    EXPECT_EQ(memory.BlocksAlive(), 0);
}

// The limit is generous to small files; a model of a usual size takes little more than its file.
TEST(MemoryInProportion, AnOrdinaryModelTakesLessThanThreeTimesItsFile)
{
    constexpr int kNodes = 100000;
    // Only under the sanitizer: after the record and after the label, and the record's place.
    constexpr std::int64_t kGaps = kNodes * kSanitizerPerRecord;
    std::string text = ModelText().Text() + "#Elements\n";
    for (int i = 1; i <= kNodes; ++i) {
        const std::string number = std::to_string(i);
        text += "1 " + number + " 0 1 1 1.250 2.500 3.750 N" + number + " 0 0 0\n";
    }
    EXPECT_LT(PeakOfImport(text), 3 * static_cast<std::int64_t>(text.size()) + kGaps);
}

}  // namespace
}  // namespace tamur::test
