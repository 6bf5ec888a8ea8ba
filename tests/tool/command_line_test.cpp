#include <gmock/gmock.h>

#include <sys/wait.h>

#include <array>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

// One line that tells which program and which file.
void ExpectRefused(const ToolRun& run, const std::string& file, const std::string& reason)
{
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "tamur: " + file + ": " + reason + "\n");
}

void ExpectUsageError(const ToolRun& run, const std::string& part)
{
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, AllOf(StartsWith("tamur: "), HasSubstr(part)));
    EXPECT_EQ(run.errors.find('\n'), run.errors.size() - 1) << run.errors;
}

// For a regular expression.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text) escaped += std::string(std::ispunct(c) ? "\\" : "") + c;
    return escaped;
}

TEST(CommandLine, MissingFileIsRefusedWithOneLine)
{
    ExpectRefused(RunTool({"info", "/no/such/model.txt"}), "/no/such/model.txt",
                  "the file cannot be opened: No such file or directory");
    ExpectRefused(RunTool({"dump", "/no/such/model.txt"}), "/no/such/model.txt",
                  "the file cannot be opened: No such file or directory");
}

TEST(CommandLine, RefusalsSpeakTheLanguageOfTheCommandOrTheUser)
{
    const std::string missing = "/no/such/model.txt";
    const std::string why =
        "tamur: " + missing +
        ": le fichier ne peut pas être ouvert : ce fichier ou un dossier de son "
        "chemin n'existe pas\n";
    const TemporaryFile output("mine", ".html");
    const std::string out = output.Path();
    const std::string exists = "tamur: " + out + ": cela existe déjà ; --force le remplace\n";
    const std::string hall = Sample("hall");
    for (const auto& [arguments, errors] :
         std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"info", missing}, why},
             {{"dump", missing}, why},
             {{"view", missing, "-o", out}, why},
             {{"check", "-q", missing}, why},
             {{"diff", missing, hall}, why},
             {{"export", missing, "--to", "glb", "-o", out}, why},
             {{"view", hall, "-o", out}, exists},
             {{"export", hall, "--to", "glb", "-o", out}, exists},
             {{"export", hall, "--to", "glb", "--case", "77", "--force", "-o", out},
              "tamur: il n'y a pas de cas 77\n"}}) {
        EXPECT_EQ(RunTool(arguments, "LC_ALL=fr_FR.UTF-8").errors, errors) << arguments[0];
        if (arguments[0] == "dump" || arguments[0] == "view") continue;
        std::vector<std::string> told = arguments;
        told.insert(told.end(), {"--lang", "fr"});
        EXPECT_EQ(RunTool(told, "LC_ALL=C").errors, errors) << arguments[0];
    }
    EXPECT_THAT(RunTool({"check", "--lang", "fr", missing}).output,
                HasSubstr(" : ce fichier ou un dossier de son chemin n'existe pas [TMR001]\n"));
}

TEST(CommandLine, EmptyNameIsShown)
{
    ExpectRefused(RunTool({"info", ""}), "\"\"",
                  "the file cannot be opened: No such file or directory");
}

TEST(CommandLine, FolderIsRefused)
{
    ExpectRefused(RunTool({"info", "/tmp"}), "/tmp",
                  "this is a folder, a device or a pipe, not a file");
}

TEST(CommandLine, OldVersionIsNamed)
{
    const TemporaryFile file(ModelText("9.9").Text());
    ExpectRefused(RunTool({"info", file.Path()}), file.Path(),
                  "version 9.9 is too old: 10.1 or later is needed");
}

TEST(CommandLine, FileWithoutVersionIsNoModel)
{
    const TemporaryFile file("Lorem ipsum\n");
    ExpectRefused(RunTool({"info", file.Path()}), file.Path(),
                  "the file has no line #Version: it is no model file, or not a whole one");
}

TEST(CommandLine, MissingSettingsAreNamed)
{
    const TemporaryFile file("#Version\r\n12.1\r\n#Espace\r\n2\r\n#Tolerance\r\n0.001\r\n");
    ExpectRefused(RunTool({"info", file.Path()}), file.Path(),
                  "the section #Rigide is missing: without it nothing is imported");
}

TEST(CommandLine, WrongUsageIsToldApartFromBadFiles)
{
    ExpectUsageError(RunTool({}), "subcommand");
    ExpectUsageError(RunTool({"info"}), "FILE");
    ExpectUsageError(RunTool({"dump"}), "FILE");
    ExpectUsageError(RunTool({"info", Sample("portique"), "--pretty"}), "--pretty");
    ExpectUsageError(RunTool({"dump", Sample("portique"), Sample("hall")}), "hall.txt");
    ExpectUsageError(RunTool({"show", Sample("portique")}), "subcommand");
}

TEST(CommandLine, WordThatIsNoCommandIsNamed)
{
    ExpectUsageError(RunTool({"exprot", "a.txt"}), "exprot is no subcommand");
}

TEST(CommandLine, UsageErrorsNameTheHelpOfTheCommand)
{
    const std::string file = Sample("hall");
    ExpectUsageError(RunTool({"info", "--color", "never", file}),
                     "tamur: --color: there is no such option (see tamur info --help)\n");
    ExpectUsageError(RunTool({"check", "--foo", "--bar", file}),
                     ": --foo: there is no such option");
    ExpectUsageError(RunTool({"check", "--foo=1", file}), ": --foo=1: there is no such option");
    ExpectUsageError(RunTool({"dump", "--foo"}), "--foo: there is no such option (see tamur dump ");
    ExpectUsageError(RunTool({"--foo"}),
                     "tamur: --foo: there is no such option (see tamur --help)");
    ExpectUsageError(RunTool({"dump", file, "b", "c"}), "tamur: b: one argument too many (see ");
    ExpectUsageError(RunTool({"check", "--lang", "de", file}), "(see tamur check --help)\n");
}

TEST(CommandLine, OutputIsAFileOfItsOwn)
{
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"export", Sample("hall"), "--to", "csv", "-o", "-"},
                                               {"view", "-o-", Sample("hall")}}) {
        ExpectUsageError(RunTool(arguments),
                         "--output: it is not written to standard output: name a file");
        EXPECT_FALSE(std::filesystem::exists("-"));
    }
}

TEST(CommandLine, StandardInputCanBeGivenOnce)
{
    const std::string input = "cat '" + Sample("hall") + "' |";
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"diff", "-", "-"}, {"info", "-", Sample("hall"), "-"}, {"check", "-", "-"}}) {
        ExpectUsageError(RunTool(arguments, input), "tamur: - can be given once: ");
    }
}

TEST(CommandLine, ComponentThatCannotBeLoadedIsNamed)
{
    ExpectUsageError(RunTool({"--component", "/no/such/component.so", "info", Sample("hall")}),
                     "/no/such/component.so");
}

TEST(CommandLine, AnotherComponentCanBeChosen)
{
    const TemporaryFile copy("", ".so");
    std::filesystem::copy_file(TAMUR_COMPONENT, copy.Path(),
                               std::filesystem::copy_options::overwrite_existing);
    const ToolRun run = RunTool({"--component", copy.Path(), "dump", Sample("hall")});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_EQ(run.output, RunTool({"dump", Sample("hall")}).output);
    ExpectRefused(RunTool({"--component", copy.Path(), "info", "/no/such/model.txt"}),
                  "/no/such/model.txt", "the file cannot be opened: No such file or directory");
}

TEST(CommandLine, OutputThatCannotBeWrittenIsAnError)
{
    const std::string command =
        std::string("'" TAMUR_TOOL "' dump '") + Sample("hall") + "' >/dev/full 2>/dev/null";
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2);
}

TEST(CommandLine, HelpHasExamplesAndExitCodes)
{
    const std::vector<std::string> commands = {"info", "check", "dump", "diff", "export", "view"};
    const ToolRun whole = RunTool({"--help"});
    EXPECT_THAT(whole.output, AllOf(HasSubstr("Examples:\n"), HasSubstr("Exit codes: 0 ")));
    for (const std::string& command : commands) {
        EXPECT_THAT(whole.output, HasSubstr("\n  " + command + " "));
        EXPECT_THAT(whole.output, HasSubstr("\n  tamur " + command + " "));
        const ToolRun run = RunTool({command, "--help"});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.errors, "");
        EXPECT_THAT(run.output,
                    AllOf(HasSubstr("Examples:\n"), HasSubstr("\n  tamur " + command + " "),
                          HasSubstr("Exit codes: 0 ")));
    }
}

// "A ..." would say that what follows is another value, which is taken for a file.
TEST(CommandLine, HelpSaysHowSeveralValuesAreGiven)
{
    for (const auto& [command, option, entry] :
         std::vector<std::array<std::string, 3>>{{"check", "--select", "CODE[,CODE...]"},
                                                 {"check", "--ignore", "CODE[,CODE...]"},
                                                 {"dump", "--select", "TABLE[,TABLE...]"},
                                                 {"export", "--case", "N"},
                                                 {"export", "--group", "GROUP"}}) {
        EXPECT_THAT(RunTool({command, "--help"}).output,
                    testing::ContainsRegex("\n  " + option + " " + Escaped(entry) +
                                           " [^\n]*(\n      [^\n]*)*; may be repeated\n"));
    }
    const std::string three = Sample("erreurs");
    const auto codes = [&](const std::vector<std::string>& options) {
        std::vector<std::string> arguments = {"check", "--all", three};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return RunTool(arguments).output;
    };
    EXPECT_EQ(codes({"--select", "TMR1,TMR2"}), codes({"--select", "TMR1", "--select", "TMR2"}));
    EXPECT_NE(codes({"--select", "TMR1,TMR2"}), codes({"--select", "TMR1"}));
}

// In a folder with the files that they speak of; what opens a browser or reads a pipe of another
// program is left out.
TEST(CommandLine, ExamplesOfTheHelpTextsWork)
{
    namespace fs = std::filesystem;
    const fs::path folder = TemporaryFile("").Path().string() + ".examples";
    fs::create_directories(folder / "export");
    fs::create_directories(folder / "pages");
    for (const char* name : {"hall.txt", "monday.txt", "export/hall.txt"}) {
        fs::copy_file(Sample("hall"), folder / name);
    }
    fs::copy_file(Sample("portique"), folder / "friday.txt");
    fs::create_symlink(TAMUR_TOOL, folder / "tamur");
    int run = 0;
    for (const std::string command : {"", "info", "check", "dump", "diff", "export", "view"}) {
        const auto help = command.empty() ? RunTool({"--help"}) : RunTool({command, "--help"});
        std::istringstream lines(help.output);
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("  tamur ")) continue;
            if (line.find("--open") != std::string::npos) continue;
            std::string shell = line.substr(2, line.find("   ", 2) - 2);
            shell = shell.substr(0, shell.find(" | "));
            const std::string whole = "cd '" + folder.string() + "' && PATH=.:$PATH; (" + shell +
                                      ") >out.txt 2>errors.txt";
            fs::remove(folder / "hall.xlsx");  // two examples write it
            const int status = WEXITSTATUS(std::system(whole.c_str()));
            EXPECT_LE(status, 1) << shell;
            EXPECT_EQ(fs::file_size(folder / "errors.txt"), 0u) << shell;
            ++run;
        }
    }
    EXPECT_GE(run, 18);
    fs::remove_all(folder);
}

// Each command, with everything else as it is.
TEST(CommandLine, QuietSaysNothingButWhatGoesWrong)
{
    const TemporaryFile output("", ".html");
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"check", "--quiet", Sample("hall")},
             {"check", "-q", "--format", "json", Sample("hall")},
             {"diff", "--quiet", Sample("hall"), Sample("hall")},
             {"view", "--quiet", "--force", Sample("hall"), "-o", output.Path()},
             {"export", "-q", "--force", Sample("hall"), "--to", "glb", "-o", output.Path()}}) {
        const ToolRun run = RunTool(arguments);
        EXPECT_EQ(run.exitCode, 0) << arguments[0];
        EXPECT_EQ(run.output + run.errors, "") << arguments[0];
    }
    EXPECT_EQ(RunTool({"check", "--quiet", Sample("erreurs")}).exitCode, 1);
    EXPECT_EQ(
        RunTool({"diff", "-q", "--format", "json", Sample("hall"), Sample("portique")}).exitCode,
        1);
    const ToolRun trouble = RunTool({"check", "--quiet", "/tmp"});
    EXPECT_EQ(trouble.exitCode, 2);
    EXPECT_EQ(trouble.errors, "tamur: /tmp: this is a folder, a device or a pipe, not a file\n");
}

TEST(CommandLine, LanguageIsOneOfTwoEverywhere)
{
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"info", Sample("hall")},
                                               {"check", Sample("hall")},
                                               {"diff", Sample("hall"), Sample("hall")},
                                               {"export", Sample("hall"), "--to", "csv"}}) {
        std::vector<std::string> german = arguments;
        german.insert(german.end(), {"--lang", "de"});
        ExpectUsageError(RunTool(german), "--lang: de is none of: en, fr");
    }
}

TEST(CommandLine, EveryCommandReadsStandardInputAndPipes)
{
    const TemporaryFile output("", ".glb");
    const std::string same = "cat '" + Sample("hall") + "' |";
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"info", "-"},
             {"check", "-"},
             {"dump", "-"},
             {"diff", "-", Sample("hall")},
             {"diff", Sample("hall"), "/dev/stdin"},
             {"export", "-", "--force", "-o", output.Path()},
             {"view", "/dev/stdin", "--force", "-o", output.Path()}}) {
        const ToolRun run = RunTool(arguments, same);
        EXPECT_EQ(run.exitCode, 0) << arguments[0] << ": " << run.errors;
    }
    EXPECT_EQ(nlohmann::json::parse(RunTool({"dump", "-"}, same).output)["File"], "stdin");
}

TEST(CommandLine, FileNamesMayHaveAccents)
{
    const TemporaryFile file(ModelText().Text(), "-modèle à étages.txt");
    const ToolRun run = RunTool({"info", file.Path()});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(run.output, HasSubstr("-modèle à étages.txt\n"));
}

}  // namespace
}  // namespace tamur::test
