#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

ComPtr<ITAMURStructureReader> ImportedMaterials(const std::vector<std::string>& lines)
{
    return Imported(ModelText().Section("#Materiaux", lines));
}

std::vector<double> Values(const Record<TMRMaterial>& material)
{
    return {material->E, material->nu, material->d, material->alpha, material->amortissement};
}

// The values that a line gives to its one material.
std::vector<double> ValuesOf(const std::string& line)
{
    return Values(Materials(*ImportedMaterials({line})).At(0));
}

using Reals = std::vector<double>;

void ExpectDefaultConcrete(ITAMURStructureReader& reader)
{
    ASSERT_EQ(MaterialNames(reader), (Names{"BETON"}));
    EXPECT_EQ(Values(Materials(reader).At(0)), (Reals{1.962e10, 0.1, 24525.0, 1e-5, 0.04}));
}

TEST(Materials, FileWithoutTheSectionGivesTheDefaultConcrete)
{
    ExpectDefaultConcrete(*Imported(ModelText()));
}

TEST(Materials, SectionWithoutALineGivesTheDefaultConcrete)
{
    ExpectDefaultConcrete(*ImportedMaterials({}));
    ExpectDefaultConcrete(*ImportedMaterials({"", ""}));
    ExpectDefaultConcrete(*Imported(ModelText().Section("#Materiaux", {}).Elements({"1"})));
}

TEST(Materials, ColumnsFillTheFieldsInOrder)
{
    const auto reader = ImportedMaterials({"S235 2.1e11 0.3 78500 1.2e-5 0.02"});
    EXPECT_EQ(MaterialNames(*reader), (Names{"S235"}));
    const auto material = Materials(*reader).At(0);
    EXPECT_EQ(material->E, 2.1e11);
    EXPECT_EQ(material->nu, 0.3);
    EXPECT_EQ(material->d, 78500.0);
    EXPECT_EQ(material->alpha, 1.2e-5);
    EXPECT_EQ(material->amortissement, 0.02);
}

TEST(Materials, MissingColumnsAreZero)
{
    EXPECT_EQ(ValuesOf("C25 3.0e10"), (Reals{3.0e10, 0, 0, 0, 0}));
    EXPECT_EQ(ValuesOf("C25"), (Reals{0, 0, 0, 0, 0}));
}

TEST(Materials, BadColumnZeroesAllThatFollow)
{
    EXPECT_EQ(ValuesOf("BETON abc 0.2 25000 1e-5 0.05"), (Reals{0, 0, 0, 0, 0}));
    EXPECT_EQ(ValuesOf("BETON 3e10 0.2 - 1e-5 0.05"), (Reals{3e10, 0.2, 0, 0, 0}));
    EXPECT_EQ(ValuesOf("BETON 3e10 0,2 25000 1e-5 0.05"), (Reals{3e10, 0, 0, 0, 0}));
}

TEST(Materials, NothingIsKeptFromTheLineBefore)
{
    const auto reader = ImportedMaterials({"A 1 2 3 4 5", "B x", "C 7"});
    EXPECT_EQ(Values(Materials(*reader).At(1)), (Reals{0, 0, 0, 0, 0}));
    EXPECT_EQ(Values(Materials(*reader).At(2)), (Reals{7, 0, 0, 0, 0}));
}

TEST(Materials, WhatFollowsTheSixthColumnIsIgnored)
{
    EXPECT_EQ(ValuesOf("A 1 2 3 4 5 6 fin"), (Reals{1, 2, 3, 4, 5}));
    EXPECT_EQ(ValuesOf("A 1 2 3 4 5fin"), (Reals{1, 2, 3, 4, 5}));
}

TEST(Materials, ColumnsMayStandApartByAnyBlanks)
{
    EXPECT_EQ(ValuesOf("  A\t1   2 \t 3\v4\f5"), (Reals{1, 2, 3, 4, 5}));
}

TEST(Materials, EmptyLinesBetweenAreSkipped)
{
    EXPECT_EQ(MaterialNames(*ImportedMaterials({"A 1", "", "", "B 2"})), (Names{"A", "B"}));
}

TEST(Materials, EqualNamesAreAllKeptInOrder)
{
    const auto reader = ImportedMaterials({"A 1", "B 2", "A 3"});
    ASSERT_EQ(MaterialNames(*reader), (Names{"A", "B", "A"}));
    EXPECT_EQ(Materials(*reader).At(0)->E, 1.0);
    EXPECT_EQ(Materials(*reader).At(2)->E, 3.0);
}

TEST(Materials, NamesAreInTheAnsiCodePage)
{
    EXPECT_EQ(MaterialNames(*ImportedMaterials({"B\xE9ton_\x80 1"})), (Names{"Béton_€"}));
}

// A name of more than 255 characters is cut; the rest is taken for the next column.
TEST(Materials, LongNameIsCut)
{
    const std::string longest(255, 'N');
    const auto reader = ImportedMaterials({longest + " 1", longest + "12 34", longest + "NN 1"});
    EXPECT_EQ(MaterialNames(*reader), (Names{longest, longest, longest}));
    EXPECT_EQ(Values(Materials(*reader).At(0)), (Reals{1, 0, 0, 0, 0}));
    EXPECT_EQ(Values(Materials(*reader).At(1)), (Reals{12, 34, 0, 0, 0}));
    EXPECT_EQ(Values(Materials(*reader).At(2)), (Reals{0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace tamur::test
