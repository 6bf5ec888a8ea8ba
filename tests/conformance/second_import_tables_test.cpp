// Several imports into one reader: sections and groups start again, materials and releases are
// added to, and the default records come only where a table never held a record.
#include <gtest/gtest.h>

#include <optional>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

// One import of a sequence: the section under test with those lines, or not at all.
struct Step {
    std::optional<std::vector<std::string>> lines;
    Names expected;  // what the table holds afterwards
};

const std::optional<std::vector<std::string>> kNoSection;

void ExpectSequence(std::string_view header, Names (*names)(ITAMURStructureReader&),
                    const std::vector<Step>& steps)
{
    const auto reader = NewReader();
    int number = 0;
    for (const Step& step : steps) {
        ModelText model;
        if (step.lines) model.Section(header, *step.lines);
        ASSERT_EQ(ImportText(*reader, model), S_OK);
        EXPECT_EQ(names(*reader), step.expected) << "after import " << ++number;
    }
}

void ExpectSections(const std::vector<Step>& steps)
{
    ExpectSequence("#Geometries", SectionNames, steps);
}
void ExpectGroups(const std::vector<Step>& steps)
{
    ExpectSequence("#Groupes", GroupTitles, steps);
}
void ExpectMaterials(const std::vector<Step>& steps)
{
    ExpectSequence("#Materiaux", MaterialNames, steps);
}
void ExpectReleases(const std::vector<Step>& steps)
{
    ExpectSequence("#Attaches", ReleaseNames, steps);
}

TEST(SecondImport, SectionsStartAgain)
{
    ExpectSections({{{{"A 1", "B 1", "C 1"}}, {"A", "B", "C"}},
                    {{{"D 1"}}, {"D"}},
                    {{{"E 1", "F 1", "G 1", "H 1"}}, {"E", "F", "G", "H"}}});
}

// The default section is for a table that has no array. An earlier import leaves its array
// after even when it counts no record any more.
TEST(SecondImport, WithoutSectionsGetsNoDefaultOnceTheTableWasUsed)
{
    ExpectSections({{{{"A 1", "B 1"}}, {"A", "B"}}, {kNoSection, {}}, {kNoSection, {}}});
    ExpectSections({{{{"A 1"}}, {"A"}}, {{{}}, {}}, {{{"B 1"}}, {"B"}}});
    ExpectSections({{{{"A 1"}}, {"A"}}, {{{""}}, {}}, {kNoSection, {}}});
}

TEST(SecondImport, DefaultSectionItselfUsesTheTable)
{
    ExpectSections({{kNoSection, {"R20*30"}}, {kNoSection, {}}, {{{"A 1"}}, {"A"}}});
    ExpectSections({{{{}}, {"R20*30"}}, {{{}}, {}}, {kNoSection, {}}});
    ExpectSections({{kNoSection, {"R20*30"}}, {{{"A 1", "B 1"}}, {"A", "B"}}, {kNoSection, {}}});
}

TEST(SecondImport, GroupsStartAgain)
{
    ExpectGroups({{{{"2 1 1 A", "2 2 1 B", "2 3 1 C"}}, {"A", "B", "C"}},
                  {{{"2 1 1 D"}}, {"D"}},
                  {{{"2 1 1 E", "2 2 1 F"}}, {"E", "F"}}});
    ExpectGroups({{{{"2 1 1 A"}}, {"A"}}, {kNoSection, {}}, {{{"2 1 1 B"}}, {"B"}}});
    ExpectGroups({{{{"2 1 1 A"}}, {"A"}}, {{{}}, {}}, {kNoSection, {}}});
    ExpectGroups({{kNoSection, {}}, {{{"2 1 1 A"}}, {"A"}}, {kNoSection, {}}});
}

TEST(SecondImport, MaterialsAreAdded)
{
    ExpectMaterials({{{{"A 1", "B 1"}}, {"A", "B"}},
                     {{{"C 1"}}, {"A", "B", "C"}},
                     {{{"A 2", "D 1"}}, {"A", "B", "C", "A", "D"}}});
}

TEST(SecondImport, DefaultMaterialComesOnceAndStays)
{
    ExpectMaterials({{kNoSection, {"BETON"}}, {kNoSection, {"BETON"}}, {{{}}, {"BETON"}}});
    ExpectMaterials({{kNoSection, {"BETON"}}, {{{"A 1"}}, {"BETON", "A"}}, {{{}}, {"BETON", "A"}}});
    ExpectMaterials({{{{}}, {"BETON"}}, {{{"A 1"}}, {"BETON", "A"}}, {kNoSection, {"BETON", "A"}}});
    ExpectMaterials({{{{"A 1"}}, {"A"}}, {kNoSection, {"A"}}, {{{"B 1"}}, {"A", "B"}}});
}

TEST(SecondImport, ReleasesAreAdded)
{
    ExpectReleases({{{{"A 1", "B 2"}}, {"A", "B"}},
                    {{{"C 3"}}, {"A", "B", "C"}},
                    {{{"A 4"}}, {"A", "B", "C", "A"}}});
    ExpectReleases({{kNoSection, {}}, {{{"A 1"}}, {"A"}}, {kNoSection, {"A"}}});
    ExpectReleases({{{{"A 1"}}, {"A"}}, {{{}}, {"A"}}, {{{"B 1"}}, {"A", "B"}}});
}

// An import that fails at the settings has not come to the tables.
TEST(SecondImport, AfterAFailureFindsTablesThatWereNeverUsed)
{
    const auto reader = NewReader();
    ASSERT_EQ(ImportText(*reader, "#Version\n12.1\n#Geometries\nA 1\n#Materiaux\nA 1\n"), E_FAIL);
    EXPECT_EQ(SectionNames(*reader), Names{});
    EXPECT_EQ(MaterialNames(*reader), Names{});
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    EXPECT_EQ(SectionNames(*reader), (Names{"R20*30"}));
    EXPECT_EQ(MaterialNames(*reader), (Names{"BETON"}));
}

TEST(SecondImport, FailureLeavesSectionsAndGroupsCounted)
{
    const auto reader =
        Imported(ModelText().Section("#Geometries", {"A 1"}).Section("#Groupes", {"2 1 1 G"}));
    ASSERT_EQ(ImportText(*reader, "#Version\n12.1\n#Espace\n1\n"), E_FAIL);
    EXPECT_EQ(SectionNames(*reader), (Names{"A"}));
    EXPECT_EQ(GroupTitles(*reader), (Names{"G"}));
}

TEST(SecondImport, NewSectionOwesNothingToTheOldOneInItsPlace)
{
    const auto reader =
        Imported(ModelText().Section("#Geometries", {"A 1 2 3 4 5 6 7 8 9 10 11 2 S 1 2 3 4 5 6"}));
    ASSERT_EQ(ImportText(*reader, ModelText().Section("#Geometries", {"B 21"})), S_OK);
    const auto section = Sections(*reader).At(0);
    EXPECT_EQ(section->Sx, 21.0);
    EXPECT_EQ(section->Sy, 0.0);
    EXPECT_EQ(section->epureSec.Code, 'F');
    EXPECT_EQ(section->epureSec.nbPoints, 0);
}

// ------------------------------------------------------------------ bars of earlier imports

// A bar with the material, section and release of those numbers.
std::string Bar(int material, int section, int release)
{
    const std::string m = std::to_string(material), s = std::to_string(section),
                      r = std::to_string(release);
    return "2 1 0 2 0 0 0 0 5 0 0 0 0 0 1 2 0 0 0 " + m + " " + s + " " + s + " " + r + " " + r +
           " 5";
}

// The names in a bar.
Names PartsOf(ITAMURStructureReader& reader, LONG rank)
{
    const auto bar = Filaires(reader).At(rank);
    return {Utf8(bar->FilaireMaterial.MaterialName), Utf8(bar->StartSection.SectionLib),
            Utf8(bar->StartConnection.AttacheLib)};
}

ModelText Building(const std::string& suffix, const std::string& bar)
{
    return ModelText()
        .Section("#Materiaux", {"M" + suffix + " 1"})
        .Section("#Geometries", {"P" + suffix + " 1"})
        .Section("#Attaches", {"R" + suffix + " 1"})
        .Elements({bar});
}

TEST(SecondImport, NumbersCountThroughExtendedTablesAndRestartInTheOthers)
{
    const auto reader = Imported(Building("1", Bar(1, 1, 1)));
    ASSERT_EQ(ImportText(*reader, Building("2", Bar(2, 1, 2))), S_OK);
    ASSERT_EQ(ImportText(*reader, Building("3", Bar(1, 1, 3))), S_OK);
    ASSERT_EQ(Filaires(*reader).Size(), 3);
    EXPECT_EQ(PartsOf(*reader, 0), (Names{"M1", "P1", "R1"})) << "as it was when it was read";
    EXPECT_EQ(PartsOf(*reader, 1), (Names{"M2", "P2", "R2"}));
    EXPECT_EQ(PartsOf(*reader, 2), (Names{"M1", "P3", "R3"}));
}

// Only an import that made the default material itself uses it whatever the number says.
TEST(SecondImport, DefaultMaterialOfAnEarlierOneIsAnOrdinaryMaterial)
{
    const auto reader = Imported(ModelText());
    ASSERT_EQ(ImportText(*reader, Building("2", Bar(2, 1, 1))), S_OK);
    EXPECT_EQ(PartsOf(*reader, 0), (Names{"M2", "P2", "R2"}));
}

TEST(SecondImport, BarWithoutAnySectionHasAnEmptyOne)
{
    const auto reader = Imported(ModelText());
    ASSERT_EQ(ImportText(*reader, ModelText().Elements({Bar(1, 1, 1)})), S_OK);
    ASSERT_EQ(Filaires(*reader).Size(), 1);
    EXPECT_EQ(PartsOf(*reader, 0), (Names{"BETON", "", ""}));
    const auto bar = Filaires(*reader).At(0);
    EXPECT_EQ(bar->StartSection.Sx, 0.0);
    EXPECT_EQ(bar->StartSection.epureSec.Code, 0);
    EXPECT_EQ(bar->StartSection.epureSec.nbPoints, 0);
    EXPECT_EQ(bar->StartConnection.Rotules, ENCASTREMENT);
}

}  // namespace
}  // namespace tamur::test
