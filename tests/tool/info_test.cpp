#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// The lines of `tamur info`, with single blanks.
std::vector<std::string> Info(const std::string& file)
{
    const ToolRun run = RunTool({"info", "--lang", "en", file});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    std::vector<std::string> lines;
    std::istringstream output(run.output);
    for (std::string line; std::getline(output, line);) {
        std::istringstream words(line);
        std::string joined, word;
        while (words >> word) joined += (joined.empty() ? "" : " ") + word;
        lines.push_back(joined);
    }
    return lines;
}

TEST(Info, ShowsSettingsAndExtent)
{
    const auto lines = Info(Sample("portique"));
    for (const char* expected :
         {"version 12.1", "working space plane frame", "tolerance 0.001 m", "rigid in bending no",
          "extent in x 0 to 20 m", "extent in y 0 to 0 m", "extent in z 0 to 7.5 m"}) {
        EXPECT_THAT(lines, testing::Contains(expected));
    }
}

TEST(Info, FindsTheVersionAfterCarriageReturnsToo)
{
    EXPECT_THAT(Info(Sample("hall")), testing::Contains("version 12.2A"));
}

TEST(Info, CountsOnlyWhatIsThere)
{
    const auto lines = Info(Sample("portique"));
    EXPECT_THAT(lines, testing::Contains("bars and beams 7"));
    EXPECT_THAT(lines, testing::Contains("load cases 12"));
    EXPECT_THAT(lines, testing::Contains("combinations 7"));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("openings"))));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("skipped"))));
}

TEST(Info, LoadsDoNotCountForTheExtent)
{
    const TemporaryFile file(
        ModelText()
            .Elements({"1 1 0 1 0 -1.5 2 3 0 0 0 0", "5 2 0 1 0 90 90 90 0 0 0 1 1 0 0 -1 0 0 0"})
            .Text());
    const auto lines = Info(file.Path());
    EXPECT_THAT(lines, testing::Contains("extent in x -1.5 to -1.5 m"));
    EXPECT_THAT(lines, testing::Contains("extent in z 3 to 3 m"));
}

TEST(Info, ModelWithoutElementsHasNoExtent)
{
    const TemporaryFile file(ModelText().Text());
    EXPECT_THAT(Info(file.Path()), testing::Each(Not(HasSubstr("extent"))));
}

TEST(Info, ShowsMessagesAndSkippedCombinations)
{
    const TemporaryFile file(ModelText()
                                 .Section("#Cas", {"1 G 1 G 0", "10 C 2 C 0"})
                                 .Section("#TAB_PARAM_CAS", {"10 2 1 1.35 99 1.5 32767 0"})
                                 .Elements({"8 1 0 0 0 0 0 0 7 0 0 -1 0 0"})
                                 .Text());
    const auto lines = Info(file.Path());
    EXPECT_THAT(lines, testing::Contains("skipped combinations 1"));
    EXPECT_THAT(
        lines, testing::Contains("message ATTENTION: Import Poids propre cas numéro 7 impossible"));
}

TEST(Info, ShowsTheServicePack)
{
    EXPECT_THAT(Info(Sample("batiment")), testing::Contains("service pack 2"));
    EXPECT_THAT(Info(Sample("hall")), testing::Each(Not(HasSubstr("service"))));
}

TEST(Info, ShowsSumsWithUnitsAndWhatTheyRestOn)
{
    const auto lines = Info(Sample("hall"));
    for (const char* expected :
         {"loads by case (N, N·m)", "load case 1 Charges_permanentes (global): Fz -138293.17",
          "load case 2 Neige (projected): Fz -248927.7",
          "assumed: local and projected loads are added whole, each kind apart, in their own "
          "frames.",
          "masses (unit as in the file)", "mass along x 450 mass along y 450 mass along z 450",
          "inertia about x 80 inertia about y 80 inertia about z 120",
          "length of bars from end to end (m), by section", "IPE160: 90",
          "area of surfaces (m²), by thickness (m)", "0.2: 540",
          "assumed: openings do not overlap, and take their whole area away."}) {
        EXPECT_THAT(lines, testing::Contains(expected));
    }
}

// What is assumed of frames is said where there are such loads only.
TEST(Info, SaysOnlyWhatAFigureRestsOn)
{
    const TemporaryFile file(
        ModelText().Elements({"5 2 0 1 0 0 0 0 0 0 0 1 1 0 0 -1 0 0 0"}).Text());
    const auto lines = Info(file.Path());
    EXPECT_THAT(lines, testing::Contains("load case 1 (global): Fz -1"));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("frames"))));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("openings"))));
}

// 40 sections of which each has a bar as long as its number, and 30 cases.
std::string ManySectionsAndCases()
{
    std::vector<std::string> sections, elements;
    for (int i = 1; i <= 40; ++i) {
        const std::string number = std::to_string(i);
        sections.push_back("SEC" + number + " " + number + " 2 3 4 5 6 7 8 9 10 11 0 C 1");
        elements.push_back("2 " + number + " 0 2 0 0 0 0 " + number + " 0 0 0 0 0 1 2 0 0 1 1 " +
                           number + " " + number + " 1 1 5");
        if (i <= 30) {
            elements.push_back("5 " + number + " 0 1 0 0 0 0 0 0 0 " + number + " 1 0 0 -1 0 0 0");
        }
    }
    return ModelText().Section("#Geometries", sections).Elements(elements).Text();
}

TEST(Info, ListsOfSumsAreCutAndTheRestIsCounted)
{
    const TemporaryFile file(ManySectionsAndCases());
    const auto lines = Info(file.Path());
    EXPECT_LT(lines.size(), 60u);
    EXPECT_THAT(lines, testing::Contains("load case 12 (global): Fz -1"));
    EXPECT_THAT(lines, testing::Contains("and 18 more"));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("load case 13"))));
    // The longest, and the sum of the 28 others.
    EXPECT_THAT(lines, testing::Contains("SEC40: 40"));
    EXPECT_THAT(lines, testing::Contains("SEC29: 29"));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("SEC28:"))));
    EXPECT_THAT(lines, testing::Contains("and 28 more: 406 m"));
    // Nothing is cut where everything is asked for.
    const std::string all = RunTool({"check", "--sums", "--lang", "en", file.Path()}).output;
    EXPECT_THAT(
        all, AllOf(HasSubstr("SEC1: 1\n"), HasSubstr("load case 30 "), Not(HasSubstr(" more:"))));
    const json sums =
        json::parse(RunTool({"info", "--json", file.Path()}).output)["files"][0]["sums"];
    EXPECT_EQ(sums["lengths"].size(), 40u);
    EXPECT_EQ(sums["cases"].size(), 30u);
}

TEST(Info, JsonSaysTheSame)
{
    const json document = json::parse(RunTool({"info", "--json", Sample("hall")}).output);
    EXPECT_EQ(document["tool"]["name"], "tamur");
    ASSERT_EQ(document["files"].size(), 1u);
    const json& file = document["files"][0];
    EXPECT_EQ(file["file"], Sample("hall"));
    EXPECT_EQ(file["version"], "12.2A");
    EXPECT_EQ(file["servicePack"], nullptr);
    EXPECT_EQ(file["settings"],
              (json{{"tolerance", 0.001}, {"workSpace", 3}, {"rigidInBending", false}}));
    EXPECT_EQ(file["extent"], (json{{"low", {0, -9, 0}}, {"high", {30, 9, 8}}}));
    EXPECT_EQ(file["findings"], (json{{"errors", 0}, {"warnings", 0}, {"notes", 1}}));
    EXPECT_EQ(file["messages"], json::array());
    const json dump = Dump(Sample("hall"));
    int counted = 0;
    for (const auto& [table, count] : file["counts"].items()) {
        EXPECT_EQ(dump.at(table).size(), count) << table;
        ++counted;
    }
    EXPECT_EQ(counted, 27);
    // As the check has them.
    const json check =
        json::parse(RunTool({"check", "--sums", "--format", "json", Sample("hall")}).output);
    EXPECT_EQ(file["sums"], check["files"][0]["sums"]);
}

TEST(Info, SpeaksFrench)
{
    const std::string french = RunTool({"info", "--lang", "fr", Sample("batiment")}).output;
    for (const char* expected :
         {"espace de travail           spatial\n", "tolérance                   0.005 m\n",
          "matériaux                   3\n", "appuis ponctuels            8\n", "nœuds  ",
          "constats                    4 notes (voir tamur check)\n", "charges par cas (N, N·m)\n",
          "  cas 4 Neige (projeté) :  Fz -62400\n", "supposé : "}) {
        EXPECT_THAT(french, HasSubstr(expected));
    }
    EXPECT_EQ(RunTool({"info", Sample("hall")}, "LC_ALL=fr_FR.UTF-8").output,
              RunTool({"info", "--lang", "fr", Sample("hall")}).output);
}

TEST(Info, TroubleWithOneFileLosesNothingOfTheOthers)
{
    const TemporaryFile old(ModelText("9.9").Text());
    const ToolRun text =
        RunTool({"info", Sample("hall"), old.Path(), "/no/such/file", Sample("portique")});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_THAT(text.output, AllOf(HasSubstr("hall.txt\n"), HasSubstr("portique.txt\n")));
    EXPECT_THAT(text.errors,
                AllOf(HasSubstr("version 9.9 is too old"), HasSubstr("/no/such/file")));
    const ToolRun run = RunTool({"info", "--json", old.Path(), Sample("portique")});
    EXPECT_EQ(run.exitCode, 1);
    const json files = json::parse(run.output)["files"];
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0], (json{{"file", old.Path().string()},
                              {"imported", false},
                              {"code", "TMR004"},
                              {"reason", "version 9.9 is too old: 10.1 or later is needed"}}));
    EXPECT_EQ(files[1]["imported"], true);
    const ToolRun alone = RunTool({"info", "--format", "json", old.Path()});
    EXPECT_EQ(json::parse(alone.output)["files"], json::array({files[0]}));
    EXPECT_EQ(alone.exitCode, 1);
    EXPECT_EQ(RunTool({"info", "--format", "text", Sample("hall")}).output,
              RunTool({"info", Sample("hall")}).output);
}

}  // namespace
}  // namespace tamur::test
