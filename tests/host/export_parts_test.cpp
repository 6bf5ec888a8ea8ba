#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "host/export/output.h"
#include "host/export/saf/names.h"
#include "host/export/steps.h"
#include "host/export/tables/units.h"
#include "host/export/tables/xlsx.h"
#include "host/export/xlsx/sheet_text.h"
#include "host/export/xlsx/zip_sizes.h"
#include "support/model_text.h"

namespace tamur::host {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFile;
using testing::ElementsAre;
using testing::IsEmpty;

// The texts that a sheet lacks: what is taken from them, and said.
TEST(SheetText, HoldsWhatASheetCanHold)
{
    const auto textOf = [](std::string_view text) { return SheetTextOf(text, 100).text; };
    EXPECT_EQ(textOf("=1+1"), "=1+1");
    EXPECT_EQ(textOf("\u00E9 ]]> <b>"), "\u00E9 ]]> <b>");
    EXPECT_EQ(textOf("_x0041_"), "_x005F_x0041_");
    EXPECT_EQ(textOf("_x004_"), "_x004_");
    EXPECT_EQ(textOf(std::string_view("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(textOf("\x1B[31m"), "\uFFFD[31m");
    EXPECT_TRUE(SheetTextOf("\x1B", 100).isReplaced);
    EXPECT_FALSE(SheetTextOf("\t", 100).isReplaced);
}

TEST(SheetText, IsCutAtUtf16Units)
{
    EXPECT_EQ(SheetTextOf("abcd", 4).text, "abcd");
    EXPECT_FALSE(SheetTextOf("abcd", 4).isCut);
    EXPECT_EQ(SheetTextOf("abcde", 4).text, "abcd");
    EXPECT_TRUE(SheetTextOf("abcde", 4).isCut);
    EXPECT_EQ(SheetTextOf("a\U0001F600b", 2).text, "a");  // which is two of them
}

TEST(XlsxTables, GoOnInFurtherSheets)
{
    const TemporaryFile file("", ".xlsx");
    Losses losses;
    XlsxTables tables(file.Path(), losses, 3);
    const TableColumn columns[] = {{"n", ""}};
    tables.Begin("Nodes", columns);
    for (std::int64_t i = 0; i < 5; ++i) {
        const Cell cells[] = {i};
        tables.Row(cells);
    }
    tables.End();
    // A heading and two rows each.
    EXPECT_TRUE(ZipSizes(file.Path()).contains("xl/worksheets/sheet3.xml"));
    EXPECT_FALSE(ZipSizes(file.Path()).contains("xl/worksheets/sheet4.xml"));
    ASSERT_EQ(losses.InOrder().size(), 1u);
    EXPECT_EQ(losses.InOrder()[0].count, 2u);
}

TEST(ZipSizes, AreOfArchivesOnly)
{
    EXPECT_THAT(ZipSizes("/no/such.zip"), IsEmpty());
    EXPECT_THAT(ZipSizes(TemporaryFile("no archive, but long enough for one").Path()), IsEmpty());
    EXPECT_THAT(ZipSizes(TemporaryFile("").Path()), IsEmpty());
}

TEST(SafNames, AreGivenOnceAndKeepOutOfLists)
{
    saf::Names names;
    EXPECT_EQ(names.Take("Poteau 1", "B1"), "Poteau 1");
    EXPECT_EQ(names.Take("Poteau 1", "B2"), "B2");
    EXPECT_EQ(names.Take("a;b,c:d|e", "B3"), "a_b_c_d_e");
    EXPECT_EQ(names.Take("", "B2"), "B2-2");
    EXPECT_EQ(names.Take("  ", "B2"), "B2-3");
    EXPECT_EQ(names.Take("B2-4", "B9"), "B2-4");
    EXPECT_EQ(names.Take("", "B2"), "B2-5");
    EXPECT_EQ(names.Take(std::string(100, 'x'), "B4"), std::string(60, 'x'));
}

TEST(SafIds, StayWithTheirRecords)
{
    saf::Ids ids, again;
    const std::string first = ids.Take(Kind::kBar, 255);
    EXPECT_EQ(first, "7a6d7572-000b-8000-8000-0000000000ff");
    EXPECT_EQ(ids.Take(Kind::kBar, 255), "");
    EXPECT_NE(ids.Take(Kind::kSurface, 255), first);
    EXPECT_NE(ids.Take(Kind::kBar, 255, 1), "");
    EXPECT_EQ(again.Take(Kind::kBar, 255), first);
}

TEST(Losses, AreOrderedByTypeAndCounted)
{
    static constexpr LossText kNot = {LossType::kNot, {"not", ""}};
    static constexpr LossText kPartly = {LossType::kPartly, {"partly", ""}};
    Losses losses;
    losses.Add(Kind::kBar, kPartly);
    losses.Add(Kind::kMass, kNot, 2);
    losses.Add(Kind::kMass, kNot);
    losses.Add(Kind::kCable, kNot, 0);
    const std::vector<Loss> found = losses.InOrder();
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].text, &kNot);
    EXPECT_EQ(found[0].count, 3u);
    EXPECT_EQ(found[1].kind, Kind::kBar);
}

TEST(Steps, StopTheWriter)
{
    Steps steps;
    EXPECT_EQ(steps.Percent(), 100);
    steps.Expect(4);
    steps.Do();
    EXPECT_EQ(steps.Percent(), 25);
    steps.Stop();
    EXPECT_THROW(steps.Do(), ExportStopped);
}

class OutputFolder : public testing::Test {
 protected:
    OutputFolder() : path_(TemporaryFile("").Path()) { fs::create_directory(path_); }
    ~OutputFolder() override { fs::remove_all(path_); }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    fs::path path_;
};

void WriteTo(const fs::path& file)
{
    std::ofstream(file) << "new";
}

TEST_F(OutputFolder, HasAllFilesOrNone)
{
    {
        Output output(false);
        WriteTo(output.AddFile(path_ / "a.vtm"));
        WriteTo(output.AddFile(path_ / "b.vtu"));
    }
    EXPECT_THAT(Names(), IsEmpty());
    Output output(false);
    WriteTo(output.AddFile(path_ / "a.vtm"));
    WriteTo(output.AddFile(path_ / "b.vtu"));
    output.Commit();
    EXPECT_THAT(Names(), ElementsAre("a.vtm", "b.vtu"));
}

TEST_F(OutputFolder, IsNotReplacedByWhatCameToBeThere)
{
    Output output(false);
    WriteTo(output.AddFile(path_ / "a"));
    std::ofstream(path_ / "a") << "mine, as it happens";
    EXPECT_THROW(output.Commit(), OutputError);
    EXPECT_EQ(fs::file_size(path_ / "a"), 19u);
}

TEST_F(OutputFolder, NeedsANameInAFolder)
{
    Output output(true);
    EXPECT_THROW((void)output.AddFile(path_ / "no" / "a"), OutputError);
    EXPECT_THROW((void)output.AddFile(path_), OutputError);
    EXPECT_THROW((void)output.AddFile(path_ / "."), OutputError);
    EXPECT_THROW((void)output.AddFile(""), OutputError);
}

// A field of three records, and what must not be given a unit by chance.
TEST(Units, AreThoseOfTheFieldInItsTable)
{
    EXPECT_EQ(UnitOf("Filaires", "startPoint.x"), "m");
    EXPECT_EQ(UnitOf("Sections", "Ix"), "m4");
    EXPECT_EQ(UnitOf("Masses", "Ix"), "");
    EXPECT_EQ(UnitOf("ChargesPonctuelles", "Fx"), "N");
    EXPECT_EQ(UnitOf("ChargesLineaires", "Fx"), "");
    EXPECT_EQ(UnitOf("AppuisLineaires", "Raideurs[4]"), "N.m/rad/m");
    EXPECT_EQ(UnitOf("Cas", "Num"), "");
}

}  // namespace
}  // namespace tamur::host
