#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <regex>

#include "models/bar_models.h"
#include "models/every_table.h"
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
    std::vector<std::string> expected = {"File", "Version", "ServicePack"};
    expected.insert(expected.end(), structure.begin(), structure.end());
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
    EXPECT_EQ(dump["Nodes"][2], json::parse(R"({"identifier": 3, "ElemLabels": ["C"], "blocage": 0,
                              "Geometrie": [10.0, 0.0, 7.5]})"));
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
    EXPECT_EQ(point[0].get<double>(), 0.1);
    EXPECT_EQ(point[1].get<double>(), -1.7976931348623157e308);
    EXPECT_EQ(point[2].get<double>(), 123456.7890123456789);
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
    EXPECT_EQ(bar["ElemLabels"], json::parse(R"(["A\u0001"])"));
    EXPECT_EQ(bar["ElementType"], "");
    EXPECT_EQ(bar["ErrorMessage"], nullptr);
}

// Terminals obey them.
TEST(Dump, ControlCharactersAreEscaped)
{
    const TemporaryFile file(ModelText()
                                 .Section("#Cas", {"1 a\x7F"
                                                   "b\x81\x9D\x1B[31mc 1 G 0"})
                                 .Text());
    const std::string output = RunTool({"dump", "--select", "cases", file.Path()}).output;
    EXPECT_THAT(output, testing::HasSubstr(R"("a\u007fb\u0081\u009d\u001b[31mc")"));
    EXPECT_EQ(json::parse(output)["Cas"][0]["Titre"],
              "a\x7F"
              "b\u0081\u009D\x1B[31mc");
}

TEST(Dump, TheCodeOfAnOutlineIsACharacterAndFlagsAreNumbers)
{
    const json dump =
        DumpOf(ModelText()
                   .Section("#Geometries", {"R1*1 1 1 1 1 1 1 1 1 1 1 1 2 S 0 1 2 3 4 5"})
                   .Section("#Groupes", {"2 1 2 G Oui"})
                   .Section("#Attaches", {"A 300 T G D"}));
    EXPECT_EQ(dump["Sections"][0]["epureSec"]["Code"], "S");
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

// As the library for JSON lays it out, but for the digits of numbers.
TEST(Dump, PrettyIsTheSameLaidOutOtherwise)
{
    const TemporaryFile quoted(ModelText().Section("#Cas", {"1 {\"a\\\\\":[1,2]}\\ 1 G 0"}).Text());
    for (const std::string& file :
         {Sample("portique"), Sample("batiment"), Sample("hall"), quoted.Path().string()}) {
        const std::string compact = RunTool({"dump", file}).output;
        const std::string pretty = RunTool({"dump", "--pretty", file}).output;
        using nlohmann::ordered_json;
        EXPECT_EQ(ordered_json::parse(pretty), ordered_json::parse(compact));
        const std::regex digits("-?[0-9]+(\\.[0-9]+)?(e[-+][0-9]+)?");
        const auto laidOut = [&](const std::string& text) {
            return std::regex_replace(text, digits, "0");
        };
        EXPECT_EQ(laidOut(pretty), laidOut(ordered_json::parse(compact).dump(2) + "\n"));
    }
}

TEST(Dump, SaysWhichModelItIs)
{
    const json dump = Dump(Sample("batiment"));
    EXPECT_EQ(dump["File"], Sample("batiment"));
    EXPECT_EQ(dump["Version"], "14.1E");
    EXPECT_EQ(dump["ServicePack"], 2);
    EXPECT_EQ(Dump(Sample("hall"))["ServicePack"], nullptr);
}

TEST(Dump, HasOnlyTheTablesAskedFor)
{
    const auto members = [](const std::string& names) {
        const ToolRun run = RunTool({"dump", "--select", names, Sample("hall")});
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        std::vector<std::string> found;
        const auto dump = nlohmann::ordered_json::parse(run.output);
        for (const auto& member : dump.items()) found.push_back(member.key());
        EXPECT_EQ(std::vector<std::string>(found.begin(), found.begin() + 3),
                  (std::vector<std::string>{"File", "Version", "ServicePack"}));
        found.erase(found.begin(), found.begin() + 3);
        return found;
    };
    using Names = std::vector<std::string>;
    EXPECT_EQ(members("Nodes,Bars"), (Names{"Filaires", "Nodes"}));
    EXPECT_EQ(members("filaires"), (Names{"Filaires"}));
    EXPECT_EQ(members("modal,settings,messages,skipped_combinations,line_loads"),
              (Names{"StructureGlobalData", "ChargesLineaires", "NbCombinaisonsSkipped", "Modes",
                     "Messages"}));
    // What is not asked for changes nothing of the rest.
    const json all = Dump(Sample("hall"));
    const json bars = json::parse(RunTool({"dump", "--select", "bars", Sample("hall")}).output);
    EXPECT_EQ(bars["Filaires"], all["Filaires"]);
}

TEST(Dump, TableThatIsNoneIsAnsweredWithThoseThatAre)
{
    const ToolRun run = RunTool({"dump", "--select", "Nodes,beams", Sample("hall")});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors,
                testing::HasSubstr("--select: beams is none of: materials, sections, "));
}

TEST(Dump, NothingIsWrittenOfARefusedFile)
{
    const TemporaryFile old(ModelText("9.9").Text());
    for (const char* option : {"--pretty", "--select=nodes"}) {
        const ToolRun run = RunTool({"dump", option, old.Path()});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.output, "");
    }
}

// A record as it was given to a host, made without the dump's code.
struct WholeRecord {
    json object = json::object();

    template <class Value>
    static json Of(Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            return value == nullptr ? json() : json(Utf8(value));
        } else if constexpr (std::is_same_v<Value, double>) {
            if (std::isnan(value)) return "nan";
            return std::isinf(value) ? json(value > 0 ? "inf" : "-inf") : json(value);
        } else if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            return {Of(value.x), Of(value.y), Of(value.z)};
        } else if constexpr (std::is_class_v<Value>) {
            WholeRecord whole;
            VisitFields(value, whole);
            // Where the number of a list says no more than the list.
            for (const char* list : {"tabLabels", "tabPoints", "tabCoef"}) {
                if (!whole.object.contains(list)) continue;
                EXPECT_EQ(whole.object.front(), whole.object[list].size());
                return whole.object[list];
            }
            if constexpr (std::is_same_v<Value, TMRSectionEpure>) {
                whole.object["Code"] = Utf8(WideString(1, static_cast<unsigned char>(value.Code)));
            }
            return whole.object;
        } else {
            return static_cast<long long>(value);
        }
    }
    template <class Value>
    void Field(const char* name, Value& value)
    {
        object[name] = Of(value);
    }
    template <class Value, std::size_t kCount>
    void Field(const char* name, Value (&values)[kCount])
    {
        Array(name, values, static_cast<int>(kCount));
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        object[name] = json::array();
        for (int i = 0; i < count; ++i) object[name].push_back(Of(values[i]));
    }
};

const std::map<std::string, std::string> kTableOf = {
    {"StartSection", "Sections"},     {"EndSection", "Sections"},
    {"StartConnection", "Attaches"},  {"EndConnection", "Attaches"},
    {"FilaireMaterial", "Materials"}, {"SurfaciqueMaterial", "Materials"}};

// Every record of every table against what a host is given. Returns how many references led to the
// record that the element holds.
int ExpectExact(const json& dump, ITAMURStructureReader& reader)
{
    int references = 0;
    tamur::ForEachTable(reader, [&](const auto& table) {
        const json& records = dump.at(table.Name());
        ASSERT_EQ(static_cast<LONG>(records.size()), table.Size()) << table.Name();
        std::size_t rank = 0;
        for (auto record : table) {
            json dumped = records[rank++];
            for (auto& [field, value] : dumped.items()) {
                if (kTableOf.count(field) == 0 || !value.is_number()) continue;
                value = dump.at(kTableOf.at(field)).at(value.template get<std::size_t>());
                ++references;
            }
            EXPECT_EQ(dumped, WholeRecord::Of(record.Get())) << table.Name() << ' ' << rank;
        }
    });
    return references;
}

int ExpectExact(const std::filesystem::path& file)
{
    const auto reader = NewReader();
    EXPECT_EQ(ImportFile(*reader, file), S_OK);
    return ExpectExact(Dump(file.string()), *reader);
}

TEST(Dump, HoldsEveryFieldOfEveryRecord)
{
    EXPECT_EQ(ExpectExact(Sample("portique")), 7 * 5);
    EXPECT_EQ(ExpectExact(Sample("batiment")), 63 * 5 + 19);
    EXPECT_EQ(ExpectExact(Sample("hall")), 55 * 5 + 3);
    EXPECT_GT(ExpectExact(TemporaryFile(EveryTable().Text()).Path()), 10);
}

// Sections that differ in one outline point, or in nothing; numbers that equal nothing or each
// other without being the same; a section in which nothing but the length of a text tells.
TEST(Dump, ReferencesLeadToExactlyWhatTheElementHolds)
{
    const std::string constants = " 1 2 3 4 5 6 7 8 9 10 11 ";
    std::vector<std::string> lines;
    for (int i = 1; i <= 7; ++i) {
        lines.push_back(Text(BarColumns{.startSection = i, .endSection = 8 - i}));
        lines.back() = "2 " + std::to_string(i) + " 0 2 0 0 0 0 3 4 0 0 0 0 " + lines.back();
    }
    const TemporaryFile file(
        ModelText()
            .Section("#Materiaux", {"C25 nan -0 0 1e999 5"})
            .Section("#Geometries",
                     {"A" + constants + "2 S 0 0 1 0 5 6", "A" + constants + "2 S 0 0 1 0 5 7",
                      "A" + constants + "2 X 0 0 1 0 5 6", "A" + constants + "2 S 0 0 1 0 5 6",
                      "A 1 -0 3 4 5 6 7 8 9 10 11 0 C 1", "A 1 0 3 4 5 6 7 8 9 10 11 0 C 1",
                      "A" + constants + "-3 \xE9"})
            .Section("#Attaches", {"ENC 0 E C D"})
            .Elements(lines)
            .Text());
    EXPECT_EQ(ExpectExact(file.Path()), 7 * 5);
    const json dump = Dump(file.Path());
    std::vector<int> ranks;
    for (const json& bar : dump["Filaires"]) ranks.push_back(bar["StartSection"]);
    // The fourth is as the first, and the first of them is told.
    EXPECT_EQ(ranks, (std::vector<int>{0, 1, 2, 0, 4, 5, 6}));
    EXPECT_EQ(dump["Sections"][6]["epureSec"]["Code"], "é");
}

TEST(Dump, WhatIsInNoTableIsWholeInTheElement)
{
    const TemporaryFile file(
        ModelText()
            .Elements({"2 1 0 2 0 0 0 0 3 4 0 0 0 0 " + Text(BarColumns{}),
                       "3 2 0 3 0 0 0 0 1 0 0 1 1 0 0 0 0 1 3 1 1 4 4 0.2 0 0"})
            .Text());
    // The import makes a section and a material, but no release.
    EXPECT_EQ(ExpectExact(file.Path()), 3 + 1);
    const json dump = Dump(file.Path());
    ASSERT_EQ(dump["Filaires"].size(), 1u);
    EXPECT_EQ(dump["Filaires"][0]["StartSection"], 0);
    EXPECT_TRUE(dump["Filaires"][0]["StartConnection"].contains("AttacheLib"));
}

// Each bar has both its sections with all their points: 2.4 MB. They are in the file once.
TEST(Dump, IsNotMuchLargerThanItsModel)
{
    std::vector<std::string> lines;
    for (int i = 1; i <= 500; ++i) {
        lines.push_back("2 " + std::to_string(i) + " 0 2 0 0 0 0 3 4 0 0 0 0 " +
                        Text(BarColumns{}));
    }
    const TemporaryFile file(
        ModelText()
            .Section("#Materiaux", {"C25 1 2 3 4 5"})
            .Section("#Geometries", {"A 1 2 3 4 5 6 7 8 9 10 11 40000 S 1 2 3"})
            .Section("#Attaches", {"ENC 0 E C D"})
            .Elements(lines)
            .Text());
    EXPECT_LT(RunTool({"dump", file.Path()}).output.size(), 1u << 20);
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
