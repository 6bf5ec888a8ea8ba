#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

ComPtr<ITAMURStructureReader> ImportedGroups(const std::vector<std::string>& lines)
{
    return Imported(ModelText().Section("#Groupes", lines));
}

// The one group that a line gives.
Record<TMRGroupe> GroupOf(const std::string& line)
{
    return Groupes(*ImportedGroups({line})).At(0);
}

std::string TitleOf(const std::string& word)
{
    return Utf8(GroupOf("2 1 1 " + word)->Titre);
}

TEST(Groups, FileWithoutTheSectionHasNone)
{
    EXPECT_EQ(Groupes(*Imported(ModelText())).Size(), 0);
    EXPECT_EQ(Groupes(*ImportedGroups({})).Size(), 0);
}

TEST(Groups, ColumnsFillTheFields)
{
    const auto group = GroupOf("2 3 2 Poutres_principales Oui");
    EXPECT_EQ(group->Elem, 2);
    EXPECT_EQ(group->Num, 3);
    EXPECT_EQ(group->TypEl, 2);
    EXPECT_EQ(Utf8(group->TypeElementName), "Poutre");
    EXPECT_EQ(Utf8(group->Titre), "Poutres principales");
    EXPECT_EQ(group->Affiche, 1);
}

TEST(Groups, UnknownTypeHasNoName)
{
    const auto group = GroupOf("2 4 9 - Non");
    EXPECT_EQ(group->TypEl, 9);
    EXPECT_EQ(Utf8(group->TypeElementName), "");
    EXPECT_EQ(Utf8(group->Titre), "-");
    EXPECT_EQ(group->Affiche, 0);
}

TEST(Groups, MissingColumnsHaveStartValues)
{
    const auto withoutTitle = GroupOf("2 5 1");
    EXPECT_EQ(withoutTitle->Num, 5);
    EXPECT_EQ(Utf8(withoutTitle->TypeElementName), "Barre");
    EXPECT_EQ(Utf8(withoutTitle->Titre), "-");
    EXPECT_EQ(withoutTitle->Affiche, 0);

    const auto empty = GroupOf(" ");
    EXPECT_EQ(empty->Elem, 0);
    EXPECT_EQ(empty->Num, 0);
    EXPECT_EQ(empty->TypEl, 0);
    EXPECT_EQ(Utf8(empty->TypeElementName), "");
    EXPECT_EQ(Utf8(empty->Titre), "-");
    EXPECT_EQ(empty->Affiche, 0);
}

TEST(Groups, KeepTheOrderOfTheFileWhateverTheirNumbers)
{
    const auto reader =
        ImportedGroups({"2 9 1 C", "", "2 1 1 A", "3 9 1 D", "2 9 1 C2", "2 -1 1 B"});
    EXPECT_EQ(GroupTitles(*reader), (Names{"C", "A", "D", "C2", "B"}));
    EXPECT_EQ(Groupes(*reader).At(4)->Num, -1);
}

TEST(Groups, UnderscoreStandsForABlankInTitles)
{
    EXPECT_EQ(TitleOf("a_b__c"), "a b  c");
    EXPECT_EQ(TitleOf("_a_"), " a ");
    EXPECT_EQ(TitleOf("_"), " ");
}

// Only a title that is empty or a lone dash is shown as a dash.
TEST(Groups, DashStandsForNoTitle)
{
    EXPECT_EQ(TitleOf("-"), "-");
    EXPECT_EQ(TitleOf(""), "-");
    EXPECT_EQ(TitleOf("_-"), " -");
    EXPECT_EQ(TitleOf("--"), "--");
}

TEST(Groups, TitlesAreInTheAnsiCodePage)
{
    EXPECT_EQ(TitleOf("\xC9tage_n\xB0"
                      "1_\x80\x82"),
              "Étage n°1 €‚");
}

TEST(Groups, DisplaySwitchIsToldByItsFirstCharacter)
{
    const auto isDisplayed = [](const std::string& word) {
        return GroupOf("2 1 1 T " + word)->Affiche;
    };
    for (const char* on : {"O", "o", "V", "v", "Oui", "oui", "OUI", "Vrai", "vrai", "o_n"}) {
        EXPECT_EQ(isDisplayed(on), 1) << on;
    }
    for (const char* off : {"", "N", "n", "Non", "F", "Faux", "0", "1", "x", "-", "_o", "Y"}) {
        EXPECT_EQ(isDisplayed(off), 0) << off;
    }
}

// A title of more than 255 characters is cut; the rest is taken for the display switch.
TEST(Groups, LongTitleIsCut)
{
    const std::string longest(255, 'T');
    const auto reader = ImportedGroups(
        {"2 1 1 " + longest + " Oui", "2 1 1 " + longest + "T Oui", "2 1 1 " + longest + "V Non"});
    EXPECT_EQ(GroupTitles(*reader), (Names{longest, longest, longest}));
    EXPECT_EQ(Groupes(*reader).At(0)->Affiche, 1);
    EXPECT_EQ(Groupes(*reader).At(1)->Affiche, 0);
    EXPECT_EQ(Groupes(*reader).At(2)->Affiche, 1);
}

TEST(Groups, LongSwitchIsOnlyItsFirstCharacter)
{
    EXPECT_EQ(GroupOf("2 1 1 T " + std::string(1000, 'o'))->Affiche, 1);
}

TEST(Groups, KindAndTypeKeepTheirLowEightBits)
{
    const auto group = GroupOf("258 70000 259 T Oui");
    EXPECT_EQ(group->Elem, 2);
    EXPECT_EQ(group->Num, 70000);
    EXPECT_EQ(group->TypEl, 3);
    EXPECT_EQ(Utf8(group->TypeElementName), "PoutreV") << "named by what the fields hold";

    const auto negative = GroupOf("-254 -70000 -1 T Oui");
    EXPECT_EQ(negative->Elem, 2);
    EXPECT_EQ(negative->Num, -70000);
    EXPECT_EQ(negative->TypEl, 255);
    EXPECT_EQ(Utf8(negative->TypeElementName), "");
}

TEST(Groups, TypeIsNamedByKindAndCode)
{
    const struct {
        int kind;
        int code;
        const char* name;
    } kCases[] = {
        {1, 1, "Appui ponctuel rigide"},
        {1, 2, "Appui ponctuel élastique"},
        {1, 3, "Appui ponctuel butée"},
        {1, 0, "Appui ponctuel vide"},
        {1, 4, "Appui ponctuel vide"},
        {1, -1, "Appui ponctuel vide"},
        {2, 1, "Barre"},
        {2, 2, "Poutre"},
        {2, 3, "PoutreV"},
        {2, 4, "PoutreC"},
        {2, 5, "Tirant"},
        {2, 0, ""},
        {2, 6, ""},
        {3, 1, "Membrane"},
        {3, 2, "Plaque"},
        {3, 3, "Coque"},
        {3, 4, "Plaque E"},
        {3, 5, "Coque E"},
        {3, 6, "Déf Plane"},
        {3, 7, "Axisym"},
        {3, 0, "Coque"},
        {3, 8, "Coque"},
        {4, 1, "Appui surfacique rigide"},
        {4, 2, "Appui surfacique élastique"},
        {4, 3, "Appui surfacique butée"},
        {4, 9, "Appui surfacique vide"},
        {5, 1, "Appui linéaire rigide"},
        {5, 2, "Appui linéaire élastique"},
        {5, 3, "Appui linéaire butée"},
        {5, 0, "Appui linéaire vide"},
        {0, 1, ""},
        {6, 1, ""},
        {10, 1, ""},  // the kinds are the groups' own, not those of the elements
        {255, 1, ""},
    };
    for (const auto& each : kCases) {
        const std::string line =
            std::to_string(each.kind) + " 1 " + std::to_string(each.code) + " T Oui";
        EXPECT_EQ(Utf8(GroupOf(line)->TypeElementName), each.name) << line;
    }
}

}  // namespace
}  // namespace tamur::test
