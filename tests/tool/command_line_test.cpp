#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

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

TEST(CommandLine, MissingFileIsRefusedWithOneLine)
{
    ExpectRefused(RunTool({"info", "/no/such/model.txt"}), "/no/such/model.txt",
                  "the file cannot be opened: No such file or directory");
    ExpectRefused(RunTool({"dump", "/no/such/model.txt"}), "/no/such/model.txt",
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
    ExpectUsageError(RunTool({"info", Sample("portique"), Sample("hall")}), "hall.txt");
    ExpectUsageError(RunTool({"show", Sample("portique")}), "subcommand");
}

TEST(CommandLine, WordThatIsNoCommandIsNamed)
{
    ExpectUsageError(RunTool({"exprot", "a.txt"}), "exprot is no subcommand");
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

TEST(CommandLine, HelpDocumentsCommandsAndExitCodes)
{
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"--help"}, {"info", "--help"}, {"dump", "--help"}}) {
        const ToolRun run = RunTool(arguments);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.errors, "");
        EXPECT_THAT(run.output, HasSubstr("Exit codes: 0 fine; 1 "));
    }
    EXPECT_THAT(RunTool({"--help"}).output, AllOf(HasSubstr("info"), HasSubstr("dump")));
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
