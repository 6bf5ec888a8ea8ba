#include <gmock/gmock.h>

#include <cmath>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using nlohmann::json;

json DumpOf(const ModelText& model)
{
    const TemporaryFile file(model.Text());
    return Dump(file.Path());
}

TEST(Dump, HasEveryTableInTheOrderOfTheInterface)
{
    const TemporaryFile file(ModelText().Text());
    const auto dump = nlohmann::ordered_json::parse(RunTool({"dump", file.Path()}).output);
    std::vector<std::string> names;
    for (const auto& member : dump.items()) names.push_back(member.key());
    std::vector<std::string> structure, loads;
    ForEachTableType([&](auto table) {
        constexpr bool kIsOfLoads =
            std::is_same_v<typename decltype(table)::Accessor, ITMRChargeAccessor>;
        (kIsOfLoads ? loads : structure).emplace_back(table.kName);
    });
    std::vector<std::string> expected = structure;
    expected.emplace_back("StructureGlobalData");
    expected.insert(expected.end(), loads.begin(), loads.end());
    expected.insert(expected.end(), {"NbCombinaisonsSkipped", "Modes", "Messages"});
    EXPECT_EQ(names, expected);
}

TEST(Dump, GivesRecordsWithTheirPublishedNames)
{
    const json dump = Dump(Sample("portique"));
    EXPECT_EQ(dump["Materials"],
              json::parse(R"([{"MaterialName": "S235", "E": 2.1e11, "nu": 0.3, "d": 78500.0,
                               "alpha": 1.2e-5, "amortissement": 0.02}])"));
    EXPECT_EQ(dump["Nodes"][2],
              json::parse(R"({"identifier": 3, "ElemLabels": {"nbLabels": 1, "tabLabels": ["C"]},
                              "blocage": 0, "Geometrie": {"x": 10.0, "y": 0.0, "z": 7.5}})"));
    EXPECT_EQ(dump["StructureGlobalData"],
              json::parse(R"({"tol3D": 0.001, "espaceDeTravail": 1, "rigideEnFlexion": 0})"));
    EXPECT_EQ(dump["Combinaisons"][2],
              json::parse(R"({"iNumCas": 103, "iNbCmb": 3, "pNumCas": [1, 2, 5],
                              "pCoeff": [1.35, 0.75, 1.5]})"));
}

TEST(Dump, DoublesAreExact)
{
    const json dump = DumpOf(ModelText().Elements(
        {"1 1 0 1 0 0.1 -1.7976931348623157e308 123456.7890123456789 0 0 0 0"}));
    const json& point = dump["Nodes"][0]["Geometrie"];
    EXPECT_EQ(point["x"].get<double>(), 0.1);
    EXPECT_EQ(point["y"].get<double>(), -1.7976931348623157e308);
    EXPECT_EQ(point["z"].get<double>(), 123456.7890123456789);
}

TEST(Dump, WhatIsNoFiniteNumberIsAWord)
{
    const json dump = DumpOf(ModelText().Section("#Materiaux", {"M inf -inf nan 1e999 -0"}));
    const json& material = dump["Materials"][0];
    EXPECT_EQ(material["E"], "inf");
    EXPECT_EQ(material["nu"], "-inf");
    EXPECT_EQ(material["d"], "nan");
    EXPECT_EQ(material["alpha"], "inf");
    EXPECT_TRUE(std::signbit(material["amortissement"].get<double>()));
}

TEST(Dump, TextsAreUtf8AndNullIsNotEmpty)
{
    const json dump = DumpOf(ModelText()
                                 .Section("#Cas", {"1 Temp\xE9rature_\x80_\"5\\ 1 G 0"})
                                 .Elements({"2 1 0 2 1 0 0 0 1 0 0 A\x01 0 0 0 1 9 0 0 0 0 1 1"}));
    EXPECT_EQ(dump["Cas"][0]["Titre"], "Température_€_\"5\\");
    const json& bar = dump["Filaires"][0];
    EXPECT_EQ(bar["ElemLabels"]["tabLabels"], json::parse(R"(["A\u0001"])"));
    EXPECT_EQ(bar["ElementType"], "");
    EXPECT_EQ(bar["ErrorMessage"], nullptr);
}

TEST(Dump, CharactersAreNumbers)
{
    const json dump =
        DumpOf(ModelText()
                   .Section("#Geometries", {"R1*1 1 1 1 1 1 1 1 1 1 1 1 2 S 0 1 2 3 4 5"})
                   .Section("#Groupes", {"2 1 2 G Oui"})
                   .Section("#Attaches", {"A 300 T G D"}));
    EXPECT_EQ(dump["Sections"][0]["epureSec"]["Code"], 'S');
    EXPECT_EQ(dump["Sections"][0]["epureSec"]["pTabPoints"],
              json::parse("[0.0, 1.0, 4.0, 2.0, 3.0, 5.0]"));
    EXPECT_EQ(dump["Groupes"][0]["Affiche"], 1);
    EXPECT_EQ(dump["Attaches"][0]["Rotules"], 44);
}

TEST(Dump, MessagesComeInOrder)
{
    const json dump =
        DumpOf(ModelText()
                   .Section("#Cas", {"1 G 1 G 0"})
                   .Elements({"8 1 0 0 0 0 0 0 1 0 0 -1 0 0", "13 2 0 0 0 0 0 0 1 20 0 0 0 0"}));
    EXPECT_EQ(dump["Messages"], json({"ATTENTION: Import Effet thermique cas numéro 1 impossible",
                                      "ATTENTION: Import Poids propre cas numéro 1 impossible"}));
    EXPECT_EQ(dump["Cas"], json::array());
}

TEST(Dump, CompactHasOneRecordALine)
{
    const TemporaryFile file(
        ModelText().Elements({"1 1 0 1 0 0 0 0 0 0 0 0", "1 2 0 1 0 1 0 0 0 0 0 0"}).Text());
    const std::string output = RunTool({"dump", file.Path()}).output;
    EXPECT_THAT(output, testing::HasSubstr("\n\"Nodes\":[\n{\"identifier\":1,"));
    EXPECT_THAT(output, testing::HasSubstr("},\n{\"identifier\":2,"));
}

TEST(Dump, PrettyIsTheSameLaidOutOtherwise)
{
    for (const char* sample : {"portique", "batiment", "hall"}) {
        const std::string compact = RunTool({"dump", Sample(sample)}).output;
        const std::string pretty = RunTool({"dump", "--pretty", Sample(sample)}).output;
        using nlohmann::ordered_json;
        EXPECT_EQ(pretty, ordered_json::parse(compact).dump(2) + "\n");
    }
}

TEST(Dump, IsTheSameEveryTime)
{
    for (const char* sample : {"portique", "batiment", "hall"}) {
        EXPECT_EQ(RunTool({"dump", Sample(sample)}).output,
                  RunTool({"dump", Sample(sample)}).output);
    }
}

}  // namespace
}  // namespace tamur::test
