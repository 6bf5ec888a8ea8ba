// The page of a view: what of a model is in it.
#include <gmock/gmock.h>

#include "checked_file.h"
#include "host/view/packed_model.h"
#include "host/view/page.h"
#include "models/one_of_each.h"

namespace tamur::host::view {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string Packed(const test::ModelText& model)
{
    const test::TemporaryFile file(model.Text());
    Findings findings;
    Structure structure;
    const Checked checked = CheckFile(test::Utf8Path(file.Path()), findings, &structure);
    return PackModel({"model.txt", checked.imported, structure, findings});
}

// The rows that the header says a table has.
std::string RowsOf(const char* table, LONG rows)
{
    return std::string(R"({"name":")") + table + R"(","rows":)" + std::to_string(rows) + ",";
}

TEST(PackedModel, HasEveryTableOfTheContract)
{
    const test::ModelText model = test::OneOfEachModel(7);
    const std::string packed = Packed(model);
    ForEachTable(*test::Imported(model), [&](const auto& table) {
        EXPECT_THAT(packed, HasSubstr(RowsOf(table.Name(), table.Size())));
    });
}

TEST(PackedModel, HasOurTablesToo)
{
    const std::string packed = Packed(test::ModelText());
    for (const char* const table : {"StructureGlobalData", "Modes", "Findings", "File"}) {
        EXPECT_THAT(packed, HasSubstr(RowsOf(table, 1)));
    }
    for (const char* const table : {"Filaires", "Messages", "FindingsNotHeld"}) {
        EXPECT_THAT(packed, HasSubstr(RowsOf(table, 0)));
    }
}

TEST(PackedModel, HasEachTextOnce)
{
    std::vector<std::string> lines;
    for (int i = 1; i < 100; ++i) {
        lines.push_back(test::ElementLine(1, i).Points({"0 0 0"}).Labels({"TheSameLabel"}));
    }
    const std::string packed = Packed(test::ModelText().Elements(lines));
    const std::size_t first = packed.find("TheSameLabel");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(packed.find("TheSameLabel", first + 1), std::string::npos);
}

TEST(PackedModel, IsInProportionToTheFileWhateverItAnnounces)
{
    std::vector<std::string> sections, lines;
    for (int i = 1; i < 50; ++i) {
        sections.push_back("S 1 1 1 1 1 1 1 1 1 1 1 49999 S 1 2");
        lines.push_back("1 " + std::to_string(i) + " 0 1 49999 0 0 0 L");
    }
    const std::string packed =
        Packed(test::ModelText().Section("#Geometries", sections).Elements(lines));
    EXPECT_LT(packed.size(), 40000u);
}

TEST(Page, HoldsTheModelAsTextThatIsNoHtml)
{
    const test::TemporaryFile file(
        test::ModelText()
            .Elements({test::ElementLine(1).Points({"0 0 0"}).Labels({"</script><img>"})})
            .Text());
    Findings findings;
    const PageOfAFile page = PageOfFile(test::Utf8Path(file.Path()), "<b>.txt", findings);
    EXPECT_FALSE(page.trouble);
    EXPECT_THAT(page.html, StartsWith(std::string(PageBeginning())));
    EXPECT_THAT(page.html, EndsWith("</html>\n"));
    EXPECT_THAT(page.html, Not(HasSubstr("<img>")));
    EXPECT_THAT(page.html, Not(HasSubstr("<b>.txt")));
    EXPECT_THAT(page.html, Not(HasSubstr("@TAMUR-MODEL@")));
}

TEST(Page, IsTheTemplateAroundTheModel)
{
    const std::string small = PageAround("model"), large = PageAround(std::string(100000, 'm'));
    EXPECT_LT(small.size(), 800000u);  // so much of each page is no model
    EXPECT_LT(large.size(), small.size() + 1000);
}

TEST(Page, IsNotMadeOfARefusedFile)
{
    const test::TemporaryFile file("#Version\n9.9\n");
    Findings findings;
    const PageOfAFile page = PageOfFile(test::Utf8Path(file.Path()), "old.txt", findings);
    EXPECT_TRUE(page.trouble);
    EXPECT_EQ(page.html, "");
}

}  // namespace
}  // namespace tamur::host::view
