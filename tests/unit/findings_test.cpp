// What an import says about lines that it drops, changes or cannot read to their end: to an
// observer, after the line.
#include "import/observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "import/elements/element_line.h"
#include "import/tables/groups.h"
#include "import/loads/load_cases.h"
#include "import/tables/materials.h"
#include "import/tables/releases.h"
#include "import/tables/section_geometries.h"
#include "support/memory_source.h"

namespace tamur {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Found {
    Finding finding;
    std::string line;

    friend bool operator==(const Found&, const Found&) = default;
    friend void PrintTo(const Found& found, std::ostream* out)
    {
        *out << static_cast<int>(found.finding) << " at \"" << found.line << '"';
    }
};

class Collector final : public ImportObserver {
 public:
    void OnText(std::string_view) override {}
    void OnSection(SectionHeader, std::uint64_t) override {}
    void OnLine(std::string_view text, bool) override { line_ = text; }
    void OnFinding(Finding finding) override { found.push_back({finding, line_}); }
    void OnRefusal(Refusal) override {}

    std::vector<Found> found;

 private:
    std::string line_;
};

std::vector<Found> FindingsIn(const std::string& content)
{
    test::MemorySource source(content);
    Collector collector;
    ModelFile file(source, &collector);
    Model model;
    EXPECT_TRUE(ReadGroups(model, file) && ReadMaterials(model, file) &&
                ReadSectionGeometries(model, file) && ReadReleases(model, file) &&
                ReadLoadCaseTables(model, file));
    if (file.FindSectionHeader(SectionHeader::kElements)) {
        for (Line line; file.ReadDataLine(line);) ParseElementLine(model, file, line);
    }
    return collector.found;
}

std::vector<Found> FindingsInSection(const std::string& header,
                                     const std::vector<std::string>& lines)
{
    std::string content = header + "\n";
    for (const std::string& line : lines) content += line + "\n";
    return FindingsIn(content);
}

TEST(Findings, NoneForLinesThatSayAll)
{
    EXPECT_THAT(FindingsInSection("#Groupes", {"2 3 2 Poutres Oui"}), IsEmpty());
    EXPECT_THAT(FindingsInSection("#Materiaux", {"C25 3e10 0.2 25000 1e-5 0.05"}), IsEmpty());
    EXPECT_THAT(FindingsInSection("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 0 F"}), IsEmpty());
    EXPECT_THAT(FindingsInSection("#Attaches", {"ART 7 Rotule A B"}), IsEmpty());
    EXPECT_THAT(FindingsInSection("#Elements", {"1 7 0 1 0 1 2 3 0 0 0 4"}), IsEmpty());
}

TEST(Findings, ColumnsOfTheLeadingTablesThatCannotBeRead)
{
    const Finding unreadable = Finding::kUnreadableColumn;
    EXPECT_THAT(FindingsInSection("#Groupes", {"2 3 2 Poutres Oui", "2 3 x Poutres Oui"}),
                ElementsAre(Found{unreadable, "2 3 x Poutres Oui"}));
    EXPECT_THAT(FindingsInSection("#Materiaux", {"C25 3e10 0.2", "A 1 2 3 4 5"}),
                ElementsAre(Found{unreadable, "C25 3e10 0.2"}));
    EXPECT_THAT(FindingsInSection("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 eleven 0 F"}),
                ElementsAre(Found{unreadable, "S 1 2 3 4 5 6 7 8 9 10 eleven 0 F"}));
    EXPECT_THAT(FindingsInSection("#Attaches", {"ART seven Rotule A B", "E 0 T G D"}),
                ElementsAre(Found{unreadable, "ART seven Rotule A B"}));
}

TEST(Findings, CountsThatCannotBeMeant)
{
    EXPECT_THAT(FindingsInSection("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 -1 F"}),
                ElementsAre(Found{Finding::kListCountIgnored, "S 1 2 3 4 5 6 7 8 9 10 11 -1 F"}));
    EXPECT_THAT(
        FindingsInSection("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 50000 F"}),
        ElementsAre(Found{Finding::kListCountIgnored, "S 1 2 3 4 5 6 7 8 9 10 11 50000 F"}));
    EXPECT_THAT(FindingsInSection("#Elements", {"1 7 0 99 0 1 2 3", "1 7 0 1 50000 1 2 3"}),
                ElementsAre(Found{Finding::kCountBeyondLine, "1 7 0 99 0 1 2 3"},
                            Found{Finding::kCountBeyondLine, "1 7 0 1 50000 1 2 3"}));
}

TEST(Findings, ShortModalLinesAfterTheFirst)
{
    const std::string whole = "3 3 1 90 91 92 1 1 1 2 2 3 3 4 4 5 5 6 6 7 7 8 8 1 w 41 O w 0.05";
    EXPECT_THAT(FindingsIn("#Cas\n3 M 3 M 0\n#TAB_PARAM_CAS\n" + whole + "\n3 3 1 90 x\n"),
                ElementsAre(Found{Finding::kUnreadableColumn, "3 3 1 90 x"}));
}

TEST(Findings, ListsShorterThanTheirCount)
{
    const Finding unreadable = Finding::kUnreadableColumn;
    EXPECT_THAT(FindingsInSection("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 99 F"}),
                ElementsAre(Found{unreadable, "S 1 2 3 4 5 6 7 8 9 10 11 99 F"}));
    EXPECT_THAT(FindingsInSection("#Elements", {"1 7 0 1 99 1 2 3"}),
                ElementsAre(Found{unreadable, "1 7 0 1 99 1 2 3"}));
}

TEST(Findings, LoadCasesAndTheirParameters)
{
    const std::string cases = "#Cas\n1 G 1 G 0\n3 M 3 M 0\n5 C 2 C 0\n6 V 6 V 0\n";
    const std::vector<std::pair<std::string, Finding>> lines = {
        {"5 7 1", Finding::kParameterKindUnknown},
        {"9 2 1 1 32767 0", Finding::kCombinationOfNoCase},
        {"5 2 1 1", Finding::kCombinationUnended},
        {"5 2 8 1 32767 0", Finding::kCombinationSkipped},
        {"3 3 1 90 91 92", Finding::kUnreadableColumn},
        {"3 3 -1 90 91 92", Finding::kListCountIgnored},
        {"4 4 O N N", Finding::kUnreadableColumn},
        {"9 9 1 1 2 3 4 5 6 7 8 O -2", Finding::kListCountIgnored},
        {"9 9 1 1 2 3 4 5 6 7 8 O 2 1", Finding::kUnreadableColumn},
    };
    for (const auto& [line, finding] : lines) {
        EXPECT_THAT(
            FindingsIn(cases + "#TAB_PARAM_CAS\n" + line + "\n"),
            ElementsAre(Found{Finding::kCaseTypeUnknown, "6 V 6 V 0"}, Found{finding, line}));
    }
    EXPECT_THAT(FindingsIn(cases + "#TAB_PARAM_CAS\n9 9 1 1 2 3 4 5 6 7 8 O 1 1\n"
                                   "3 3 0 90 91 92\n5 2 1 1 32767 0\n"),
                ElementsAre(Found{Finding::kCaseTypeUnknown, "6 V 6 V 0"}));
}

TEST(Findings, ElementsThatAreDropped)
{
    EXPECT_THAT(
        FindingsInSection("#Elements", {"14 1", "1 7 0 0 0", "2 7 0 1 0 0 0 0",
                                        "2 7 0 2 0 1 2 3 1 2 3 0 0 0", "1 7 0 1 0 1 2 3 0 0 0 x"}),
        ElementsAre(Found{Finding::kUnknownKind, "14 1"},
                    Found{Finding::kTooFewPoints, "1 7 0 0 0"},
                    Found{Finding::kTooFewPoints, "2 7 0 1 0 0 0 0"},
                    Found{Finding::kZeroLengthBar, "2 7 0 2 0 1 2 3 1 2 3 0 0 0"},
                    Found{Finding::kUnreadableColumn, "1 7 0 1 0 1 2 3 0 0 0 x"}));
}

TEST(Findings, NumbersThatNameNoRecord)
{
    const std::string tables =
        "#Materiaux\nC25 3e10 0.2 25000 1e-5 0.05\n"
        "#Geometries\nS 1 2 3 4 5 6 7 8 9 10 11 0 F\n"
        "#Attaches\nART 7 Rotule A B\n#Elements\n";
    const std::string head = "2 7 0 2 0 0 0 0 1 0 0 0 0 0 1 2 0 0 1 ";
    EXPECT_THAT(FindingsIn(tables + head + "1 1 1 1 1 5\n"), IsEmpty());
    for (const auto& [columns, finding] : std::vector<std::pair<std::string, Finding>>{
             {"0 1 1 1 1 5", Finding::kMaterialReplaced},
             {"2 1 1 1 1 5", Finding::kMaterialReplaced},
             {"1 2 1 1 1 5", Finding::kSectionReplaced},
             {"1 1 2 1 1 5", Finding::kSectionReplaced},
             {"1 1 1 0 1 5", Finding::kReleaseReplaced},
             {"1 1 1 1 2 5", Finding::kReleaseReplaced},
         }) {
        EXPECT_THAT(FindingsIn(tables + head + columns + "\n"),
                    ElementsAre(Found{finding, head + columns}));
    }
}

// The bar itself carries the remark.
TEST(Findings, NoneForTheSectionNumberZero)
{
    EXPECT_THAT(FindingsIn("#Materiaux\nC25 3e10 0.2 25000 1e-5 0.05\n"
                           "#Geometries\nS 1 2 3 4 5 6 7 8 9 10 11 0 F\n"
                           "#Attaches\nART 7 Rotule A B\n"
                           "#Elements\n2 7 0 2 0 0 0 0 1 0 0 0 0 0 1 2 0 0 1 1 0 0 1 1 5\n"),
                IsEmpty());
}

TEST(Findings, LoadsThatTheirCaseRefuses)
{
    const std::string selfWeight = "8 1 0 0 0 0 0 0 9 0 0 -1 2 3";
    const std::string thermal = "13 1 0 0 0 0 0 0 9 20 0 0 2 3";
    EXPECT_THAT(FindingsInSection("#Elements", {selfWeight, thermal}),
                ElementsAre(Found{Finding::kSelfWeightRefused, selfWeight},
                            Found{Finding::kThermalRefused, thermal}));
}

}  // namespace
}  // namespace tamur
