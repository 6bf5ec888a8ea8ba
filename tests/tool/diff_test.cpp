#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "models/one_of_each.h"
#include "models/seeds.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

ToolRun Diff(const std::string& before, const std::string& after,
             std::vector<std::string> options = {"--lang", "en"})
{
    const TemporaryFile a(before), b(after);
    options.insert(options.begin(), {"diff", a.Path(), b.Path()});
    return RunTool(options);
}
ToolRun Diff(const ModelText& before, const ModelText& after,
             const std::vector<std::string>& options = {"--lang", "en"})
{
    return Diff(before.Text(), after.Text(), options);
}

json JsonDiff(const ModelText& before, const ModelText& after)
{
    const ToolRun run = Diff(before, after, {"--format", "json"});
    EXPECT_EQ(run.exitCode, 1) << run.errors;
    return json::parse(run.output);
}

std::string ContentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

TEST(Diff, OfAFileWithItselfIsEmpty)
{
    for (const char* name : {"batiment", "hall", "portique"}) {
        const ToolRun run = RunTool({"diff", Sample(name), Sample(name)});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.output + run.errors, "");
        const ToolRun asJson = RunTool({"diff", "--format", "json", Sample(name), Sample(name)});
        EXPECT_EQ(asJson.exitCode, 0);
        const json document = json::parse(asJson.output);
        EXPECT_EQ(document["same"], true);
        EXPECT_EQ(document["changes"], json::array());
    }
}

TEST(Diff, TroubleIsToldApartFromDifferences)
{
    const std::string file = Sample("hall");
    const ToolRun missing = RunTool({"diff", file, "/no/such/model.txt"});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.output, "");
    EXPECT_EQ(missing.errors,
              "tamur: /no/such/model.txt: the file cannot be opened: No such file or directory\n");
    const std::vector<std::vector<std::string>> usages = {
        {"diff"},
        {"diff", file},
        {"diff", file, file, file},
        {"diff", file, file, "--format", "xml"},
        {"diff", file, file, "--lang", "de"},
        {"diff", file, file, "--tolerance", "-1"},
        {"diff", file, file, "--tolerance", "nan"},
        {"--component", "/no/such.so", "diff", file, file},
    };
    for (const auto& usage : usages) {
        const ToolRun run = RunTool(usage);
        EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(usage);
        EXPECT_EQ(run.output, "");
        EXPECT_THAT(run.errors, AllOf(StartsWith("tamur: "), EndsWith("\n")));
    }
}

// Of docs/diff.md: the first block after a text, and its lines.
std::string Block(const std::string& document, const std::string& after)
{
    const std::size_t start =
        document.find('\n', document.find("```", document.find(after) + after.size())) + 1;
    return document.substr(start, document.find("```", start) - start);
}

std::vector<std::string> LinesOfBlock(const std::string& document, const std::string& after)
{
    std::istringstream block(Block(document, after));
    std::vector<std::string> lines;
    for (std::string line; std::getline(block, line);) lines.push_back(line);
    return lines;
}

TEST(Diff, SaysWhatItsPageSays)
{
    const std::string page = ContentOf(TAMUR_DOCS "/diff.md");
    const auto before = LinesOfBlock(page, "`samples/portique.txt`\n");
    const auto after = LinesOfBlock(page, "in the next export:\n");
    ASSERT_EQ(before.size(), 6u);
    ASSERT_EQ(before.size(), after.size());
    std::string next = ContentOf(Sample("portique"));
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::size_t place = next.find(before[i] + "\n");
        ASSERT_NE(place, std::string::npos) << before[i];
        next.replace(place, before[i].size(), after[i]);
    }
    const TemporaryFile file(next);
    EXPECT_EQ(RunTool({"diff", "--lang", "en", Sample("portique"), file.Path()}).output,
              Block(page, "next.txt` says:"));
    const json document =
        json::parse(RunTool({"diff", "--format", "json", Sample("portique"), file.Path()}).output);
    EXPECT_THAT(document["changes"],
                testing::Contains(json::parse(Block(page, "with the published names:"))));
}

TEST(Diff, SpeaksFrench)
{
    const ModelText before = ModelText().Elements(
        {ElementLine(1, 1).Points({"0 0 0"}), ElementLine(1, 2).Points({"1 0 0"})});
    const ModelText after = ModelText().Elements({ElementLine(1, 1).Points({"0 0 0.5"}),
                                                  ElementLine(1, 5).Points({"1 0 0"}),
                                                  ElementLine(21, 1).Points({"0 0 0", "1 0 0"})});
    EXPECT_EQ(Diff(before, after, {"--lang", "fr"}).output,
              "= nœud : 1 avec un autre numéro : 2 -> 5\n"
              "~ nœud 1 : déplacement (0, 0, 0) -> (0, 0, 0.5), de 0.5\n"
              "+ câble 1\n"
              "\n"
              "nœud : 1 avec déplacement, 1 avec un autre numéro\n"
              "câble : 1 en plus\n");
}

TEST(Diff, ComparesVersionAndSettings)
{
    const std::string before = ModelText("12.1").Text();
    std::string after = ModelText("12.2A").Text();
    const std::string tolerance = "#Tolerance\n";
    after.insert(after.find(tolerance) + tolerance.size(), "5");
    const ToolRun run = Diff(before, after);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.output, AllOf(StartsWith("~ version: \"12.1\" -> \"12.2A\"\n"
                                             "~ settings: tolerance ")));
    const json document = json::parse(Diff(before, after, {"--format", "json"}).output);
    EXPECT_EQ(document["before"]["version"], "12.1");
    EXPECT_EQ(document["after"]["version"], "12.2A");
    EXPECT_EQ(document["StructureGlobalData"][0]["field"], "tol3D");
}

ModelText ManyNodes(int count, int first)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        lines.push_back(ElementLine(1, first + i).Points({std::to_string(first + i) + " 0 0"}));
    }
    return ModelText().Elements(lines);
}

TEST(Diff, ShowsTheFirstOfManyOrAll)
{
    const ToolRun run = Diff(ModelText(), ManyNodes(25, 1));
    EXPECT_THAT(run.output, EndsWith("+ node 20\n"
                                     "  node: 5 more changes: --all shows them\n"
                                     "\n"
                                     "node: 25 added\n"));
    const ToolRun all = Diff(ModelText(), ManyNodes(25, 1), {"--lang", "en", "--all"});
    EXPECT_THAT(all.output, EndsWith("+ node 25\n\nnode: 25 added\n"));
    EXPECT_THAT(Diff(ModelText(), ManyNodes(20, 1)).output,
                EndsWith("+ node 20\n\nnode: 20 added\n"));
}

TEST(Diff, TextsOfTheFileDoNothingToTerminals)
{
    const auto node = [](const char* label) {
        return ModelText().Elements({ElementLine(1).Points({"0 0 0"}).Labels({label})});
    };
    const ModelText before = node("\x1B[31m\x7F\x81"), after = node("x\\\"y");
    EXPECT_THAT(Diff(before, after).output,
                HasSubstr("label 1 \"\\u001B[31m\\u007F\\u0081\" -> \"x\\\"y\""));
    const ToolRun run = Diff(before, after, {"--format", "json"});
    EXPECT_THAT(run.output, HasSubstr("\"\\u001b[31m\\u007f\\u0081\""));
    const json field = json::parse(run.output)["changes"][0]["fields"][0];
    EXPECT_EQ(field["before"], "\x1B[31m\x7F\xC2\x81");
    EXPECT_EQ(field["after"], "x\\\"y");
}

TEST(Diff, JsonHasExactValuesAndKeys)
{
    const auto model = [](const char* group, const char* e) {
        return ModelText()
            .Section("#Groupes", {group})
            .Section("#Materiaux", {std::string("M ") + e + " 0 0 0 0"});
    };
    const json document = JsonDiff(model("2 3 2 A Oui", "inf"), model("2 3 2 B Oui", "0.1"));
    EXPECT_EQ(document["changes"], json::parse(R"([
        {"table": "Materials", "change": "changed", "key": {"MaterialName": "M"},
         "fields": [{"field": "E", "before": "inf", "after": 0.1}]},
        {"table": "Groupes", "change": "changed", "key": {"Elem": 2, "Num": 3},
         "fields": [{"field": "Titre", "before": "A", "after": "B"}]}])"));
    EXPECT_EQ(document["summary"], json::parse(R"({"Materials": {"changed": 1},
                                                   "Groupes": {"changed": 1}})"));
}

// The words of `tamur check`.
TEST(Diff, EndsOfBarsAreToldAsTheCheckTellsThem)
{
    const auto model = [](const std::string& sections) {
        return ModelText()
            .Section("#Geometries",
                     {"A 1 2 3 4 5 6 7 8 9 10 11 0 C 1", "B 1 2 3 4 5 6 7 8 9 10 11 0 C 1"})
            .Elements({"2 1 0 2 0 0 0 0 1 0 0 0 0 0 1 2 0 0 1 1 " + sections + " 1 1 5"});
    };
    const ModelText before = model("1 2"), after = model("2 1");
    EXPECT_THAT(Diff(before, after, {"--lang", "fr"}).output,
                HasSubstr("~ filaire 1 : section à l'origine \"A\" -> \"B\", section à l'extrémité "
                          "\"B\" -> \"A\"\n"));
}

// As `tamur info` says them, and not as the contract or the file counts them.
TEST(Diff, SettingsAreToldInWords)
{
    EXPECT_THAT(RunTool({"diff", "--lang", "en", Sample("hall"), Sample("portique")}).output,
                HasSubstr("~ settings: working space space frame -> plane frame\n"));
    EXPECT_THAT(RunTool({"diff", "--lang", "fr", Sample("hall"), Sample("portique")}).output,
                HasSubstr("~ réglages : espace de travail spatial -> plan\n"));
    const auto group = [](const std::string& line) {
        return ModelText().Section("#Groupes", {line});
    };
    EXPECT_THAT(Diff(group("2 3 1 A Oui"), group("2 3 2 A Non")).output,
                AllOf(HasSubstr("~ group 3 (bar): number of the type 1 -> 2, type \""),
                      HasSubstr("\", displayed yes -> no\n")));
    EXPECT_THAT(Diff(group("2 3 1 A Oui"), group("2 3 2 A Non"), {"--lang", "fr"}).output,
                AllOf(HasSubstr(" : numéro du type 1 -> 2, type \""),
                      HasSubstr("\", affiché oui -> non\n")));
}

}  // namespace
}  // namespace tamur::test
