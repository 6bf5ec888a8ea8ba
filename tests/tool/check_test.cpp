// `tamur check` as its users run it: texts, formats, exit codes.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// A supported cantilever with as many lines of an unknown kind after it.
ModelText Cantilever(int unknownLines = 0)
{
    std::vector<std::string> lines = {"2 1 0 2 0  0 0 0  3 0 0  0 0 0  1 2 0 0 1 1 1 1 1 1 5",
                                      "4 2 0 1 0  0 0 0  0 0 0  1 1 0 0 1e12 1e12 1e12 1e12 1e12 "
                                      "1e12 0 0 0 0 0 0 0"};
    for (int i = 0; i < unknownLines; ++i) lines.push_back("19 7 0 0 0 0 0 0");
    return ModelText()
        .Section("#Materiaux", {"S235 2.1e11 0.3 78500 1.2e-5 0.02"})
        .Section("#Geometries", {"R 0.06 0.05 0.05 0.0005 0.0005 0.0002 0.002 0.003 0.002 0.003 "
                                 "0.002 0 C 0.1"})
        .Section("#Attaches", {"ENC 0 Encastrement - -"})
        .Section("#Groupes", {"2 1 2 Poutre Oui", "1 1 1 Appui Oui"})
        .Elements(lines);
}

ToolRun CheckText(const ModelText& model, std::vector<std::string> options = {})
{
    const TemporaryFile file(model.Text());
    options.insert(options.begin(), {"check", "--lang", "en", file.Path().string()});
    return RunTool(options);
}

json CheckJson(const ModelText& model, std::vector<std::string> options = {})
{
    options.insert(options.end(), {"--format", "json"});
    return json::parse(CheckText(model, options).output);
}

std::ptrdiff_t LinesOf(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}

// Whatever the gender of the column is.
TEST(Check, FrenchTextsAgreeWithTheirColumns)
{
    const std::string fixture = TAMUR_FIXTURES "/TMR207-tolerance.txt";
    EXPECT_THAT(RunTool({"check", "--lang", "fr", fixture}).output,
                HasSubstr(" erreur : tolérance : lu comme 0 ; « 0,001 » a une virgule "));
}

TEST(Check, SaysWhenThereIsNothing)
{
    const ToolRun run = CheckText(Cantilever());
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(run.output, EndsWith(": nothing found\n"));
    EXPECT_EQ(LinesOf(run.output), 1) << run.output;
}

TEST(Check, WritesFindingsAsCompilersDo)
{
    const ToolRun run = CheckText(Cantilever(1));
    EXPECT_EQ(run.exitCode, 1);
    const std::regex finding(
        "^[^\n]*:21: warning: [^\n]* 19[^\n]* \\[TMR201\\]\n[^\n]*: 1 warning\n$");
    EXPECT_TRUE(std::regex_search(run.output, finding)) << run.output;
}

TEST(Check, CollapsesRepeatsUnlessAllAreAskedFor)
{
    const ToolRun first = CheckText(Cantilever(12));
    EXPECT_EQ(LinesOf(first.output), 5 + 1 + 1) << first.output;
    EXPECT_THAT(first.output, HasSubstr(": and 7 more of TMR201"));
    EXPECT_THAT(first.output, EndsWith(": 12 warnings\n"));
    EXPECT_EQ(LinesOf(CheckText(Cantilever(12), {"--all"}).output), 12 + 1);
}

TEST(Check, CountsOnlyTheCodesAskedFor)
{
    EXPECT_EQ(CheckText(Cantilever(1), {"--ignore", "TMR201"}).exitCode, 0);
    EXPECT_EQ(CheckText(Cantilever(1), {"--select", "TMR4,TMR5"}).exitCode, 0);
    EXPECT_EQ(CheckText(Cantilever(1), {"--select", "TMR2"}).exitCode, 1);
    EXPECT_EQ(CheckText(Cantilever(1), {"--select", "201"}).exitCode, 1);
    EXPECT_EQ(CheckText(Cantilever(1), {"--select", "tmr4"}).exitCode, 0);
    EXPECT_EQ(CheckText(Cantilever(1), {"--select", "TMR999"}).exitCode, 2);
}

TEST(Check, ExitCodeIsThatOfTheWorstFile)
{
    const TemporaryFile good(Cantilever().Text()), bad(Cantilever(1).Text());
    const std::string a = good.Path().string(), b = bad.Path().string();
    EXPECT_EQ(RunTool({"check", a, a}).exitCode, 0);
    EXPECT_EQ(RunTool({"check", a, b}).exitCode, 1);
    EXPECT_EQ(RunTool({"check", b, a}).exitCode, 1);
    EXPECT_EQ(RunTool({"check", b, "/no/such/file", a}).exitCode, 2);
}

TEST(Check, ExitCodeCanTakeNotesInAndLeaveAllOut)
{
    const ModelText noted = Cantilever().Section("#Inconnue", {});
    EXPECT_EQ(CheckText(noted).exitCode, 0);
    EXPECT_EQ(CheckText(noted, {"--strict"}).exitCode, 1);
    EXPECT_EQ(CheckText(Cantilever(1), {"--exit-zero"}).exitCode, 0);
    EXPECT_EQ(RunTool({"check", "--exit-zero", "/no/such/file"}).exitCode, 2);
}

TEST(Check, RefusedFilesAreFindingsToo)
{
    const ToolRun run = CheckText(ModelText("9.9"));
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.output, AllOf(HasSubstr(" error: "), HasSubstr("9.9"), HasSubstr("[TMR004]"),
                                  EndsWith("; not imported\n")));
    const json file = CheckJson(ModelText("9.9")).at("files").at(0);
    EXPECT_EQ(file.at("imported"), false);
    EXPECT_EQ(file.at("findings").at(0).at("code"), "TMR004");
}

// What the README shows.
TEST(Check, FindsEachMistakeOfTheFaultySample)
{
    const ToolRun run = RunTool({"check", "--format", "json", "--all", Sample("erreurs")});
    EXPECT_EQ(run.exitCode, 1);
    std::set<std::string> codes;
    const json document = json::parse(run.output);
    for (const json& finding : document.at("files").at(0).at("findings")) {
        codes.insert(finding.at("code").get<std::string>());
    }
    EXPECT_THAT(codes,
                testing::UnorderedElementsAre(
                    "TMR102", "TMR103", "TMR106", "TMR107", "TMR201", "TMR202", "TMR207", "TMR209",
                    "TMR217", "TMR218", "TMR220", "TMR221", "TMR222", "TMR226", "TMR301", "TMR304",
                    "TMR306", "TMR315", "TMR402", "TMR403", "TMR408", "TMR413", "TMR416", "TMR420",
                    "TMR501", "TMR503", "TMR504", "TMR604", "TMR614", "TMR631"));
}

TEST(Check, SaysWhyAFileIsRefusedWhateverWasSelected)
{
    const ToolRun run = CheckText(ModelText("9.9"), {"--select", "TMR5"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.errors, HasSubstr("version 9.9"));
}

TEST(Check, TroubleWithOneFileLosesNothingOfTheOthers)
{
    const TemporaryFile file(Cantilever(1).Text());
    const ToolRun run =
        RunTool({"check", "--format", "json", file.Path().string(), "-"}, "TMPDIR=/no/such/folder");
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.errors, HasSubstr("temporary"));
    EXPECT_EQ(json::parse(run.output).at("files").size(), 1);
}

TEST(Check, WrongWordsAreAnsweredWithTheRightOnes)
{
    const ToolRun run = RunTool({"check", "--format", "xml", Sample("hall")});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.errors, HasSubstr("--format: xml is none of: text, json, sarif"));
}

TEST(Check, SpeaksFrench)
{
    const TemporaryFile file(Cantilever(2).Text());
    const ToolRun run = RunTool({"check", "--lang", "fr", file.Path().string()});
    EXPECT_THAT(run.output, AllOf(HasSubstr(" avertissement : "), HasSubstr("genre d'élément 19"),
                                  EndsWith(": 2 avertissements\n")));
}

TEST(Check, SpeaksTheLanguageOfTheLocale)
{
    const TemporaryFile file(Cantilever().Text());
    const std::string path = file.Path().string();
    EXPECT_THAT(RunTool({"check", path}, "LC_ALL=fr_FR.UTF-8").output,
                EndsWith(": rien à signaler\n"));
    EXPECT_THAT(RunTool({"check", path}, "LC_ALL=C").output, EndsWith(": nothing found\n"));
}

TEST(Check, ColoursAreForTerminals)
{
    EXPECT_THAT(CheckText(Cantilever(1)).output, Not(HasSubstr("\x1B")));
    EXPECT_THAT(CheckText(Cantilever(1), {"--color", "always"}).output, HasSubstr("\x1B[1;33m"));
}

TEST(Check, JsonHasEveryFieldOfAFinding)
{
    const json document = CheckJson(Cantilever(7));
    EXPECT_EQ(document.at("tool").at("name"), "tamur");
    const json& file = document.at("files").at(0);
    EXPECT_EQ(file.at("summary"), (json{{"errors", 0}, {"warnings", 7}, {"notes", 0}}));
    EXPECT_EQ(file.at("notListed"), (json{{"TMR201", 2}}));
    ASSERT_EQ(file.at("findings").size(), 5);
    json first = file.at("findings").at(0);
    EXPECT_THAT(first.at("text").get<std::string>(), HasSubstr("19"));
    first.erase("text");
    EXPECT_EQ(first, (json{{"code", "TMR201"},
                           {"name", "UnknownKind"},
                           {"severity", "warning"},
                           {"line", 21},
                           {"values", {"19"}}}));
}

TEST(Check, JsonAccountsForEveryLineWhenAsked)
{
    EXPECT_FALSE(CheckJson(Cantilever(2)).at("files").at(0).contains("balance"));
    const json balance = CheckJson(Cantilever(2), {"--balance"}).at("files").at(0).at("balance");
    EXPECT_EQ(balance.at("addsUp"), true);
    EXPECT_EQ(balance.at("lines"), 22);
    EXPECT_EQ(balance.at("kinds").at("bar"), (json{{"lines", 1}, {"records", 1}}));
    EXPECT_EQ(balance.at("kinds").at("other"),
              (json{{"lines", 2}, {"records", 0}, {"dropped", {{"TMR201", 2}}}}));
}

// Whatever is found, and wherever it is or is not.
TEST(Check, EveryFindingIsWrittenInEveryFormat)
{
    std::vector<std::string> files = {"--all", "/no/such/file"};
    for (const auto& entry : std::filesystem::directory_iterator(TAMUR_FIXTURES)) {
        files.push_back(entry.path().string());
    }
    const auto checkAll = [&files](const char* format) {
        std::vector<std::string> arguments = {"check", "--format", format};
        arguments.insert(arguments.end(), files.begin(), files.end());
        const ToolRun run = RunTool(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.errors, "");
        return json::parse(run.output);
    };
    std::size_t findings = 0;
    const json document = checkAll("json");
    EXPECT_EQ(document.at("files").size(), files.size() - 1);
    for (const json& file : document.at("files")) findings += file.at("findings").size();
    EXPECT_GE(findings, files.size() - 1);
    EXPECT_EQ(checkAll("sarif").at("runs").at(0).at("results").size(), findings);
}

TEST(Check, SarifNamesRuleLevelAndRegion)
{
    const ToolRun run = CheckText(Cantilever(1), {"--format", "sarif"});
    EXPECT_EQ(run.exitCode, 1);
    const json document = json::parse(run.output);
    EXPECT_EQ(document.at("version"), "2.1.0");
    const json& result = document.at("runs").at(0).at("results").at(0);
    EXPECT_EQ(result.at("ruleId"), "TMR201");
    EXPECT_EQ(result.at("level"), "warning");
    EXPECT_EQ(result.at("locations").at(0).at("physicalLocation").at("region"),
              (json{{"startLine", 21}, {"endLine", 21}}));
}

TEST(Check, ReadsStandardInputAndPipes)
{
    const TemporaryFile file(Cantilever(1).Text());
    const std::string path = file.Path().string();
    const ToolRun standardInput = RunTool({"check", "-"}, "cat '" + path + "' |");
    EXPECT_EQ(standardInput.exitCode, 1);
    EXPECT_THAT(standardInput.output, HasSubstr("stdin:21:"));
}

TEST(Check, TextsOfTheFileDoNothingOnATerminal)
{
    const std::string hostile =
        "\x1B[31m\x1B]0;owned\x07\x9B"
        "2J\x7F\b";
    ModelText model = Cantilever().Elements(
        {"19" + hostile + " 1 0 0 0", "1 " + hostile, "2 3 0 2 1 0 0 0 0 0 1 " + hostile});
    const std::string text = CheckText(model.Section("#" + hostile, {hostile})).output;
    for (const char c : text) {
        EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << text;
        EXPECT_NE(c, '\x7F');
    }
    EXPECT_EQ(text.find("\xC2\x9B"), std::string::npos) << text;
    for (const char* format : {"json", "sarif"}) {
        EXPECT_TRUE(json::accept(CheckText(model, {"--format", format}).output)) << format;
    }
}

TEST(Check, OutputThatCannotBeWrittenIsTrouble)
{
    const TemporaryFile file(Cantilever(1).Text());
    EXPECT_EQ(RunTool({"check", file.Path().string()}, "", "/dev/full").exitCode, 2);
}

}  // namespace
}  // namespace tamur::test
