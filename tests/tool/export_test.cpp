#include <gmock/gmock.h>

#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// A folder of its own, removed at the end.
class ExportFolder {
 public:
    ExportFolder() : path_(TemporaryFile("").Path()) { fs::create_directory(path_); }
    ExportFolder(const ExportFolder&) = delete;
    ExportFolder& operator=(const ExportFolder&) = delete;
    ~ExportFolder() { fs::remove_all(path_); }

    [[nodiscard]] std::string operator/(const std::string& name) const
    {
        return (path_ / name).string();
    }
    // The names of what is in it.
    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

 private:
    fs::path path_;
};

std::string ContentOfFile(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

void ExpectTrouble(const ToolRun& run, const std::string& part)
{
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, AllOf(StartsWith("tamur: "), HasSubstr(part)));
    EXPECT_EQ(run.errors.find('\n'), run.errors.size() - 1) << run.errors;
}

TEST(Export, WrongUsageWritesNothing)
{
    const ExportFolder folder;
    const std::string file = Sample("portique"), out = folder / "a-csv";
    ExpectTrouble(RunTool({"export"}), "FILE");
    ExpectTrouble(RunTool({"export", file}), "--to");
    ExpectTrouble(RunTool({"export", file, "-o", folder / "model.doc"}), "--to");
    ExpectTrouble(RunTool({"export", file, "--to", "doc", "-o", out}), "doc is none of: csv");
    ExpectTrouble(RunTool({"export", file, "-o", out, "--case", "77"}), "there is no load case 77");
    ExpectTrouble(RunTool({"export", file, "-o", out, "--group", "x"}), "there is no group x");
    ExpectTrouble(RunTool({"export", file, "-o", folder / "no/a-csv"}), "there is no folder");
    ExpectTrouble(RunTool({"export", file, "--to", "csv", "-o", "/dev/null", "--force"}),
                  "/dev/null: it is there and no folder");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(Export, FileThatIsNotImportedWritesNothing)
{
    const ExportFolder folder;
    const ToolRun run = RunTool({"export", "/no/such/model.txt", "-o", folder / "a-csv"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
              "tamur: /no/such/model.txt: the file cannot be opened: No such file or directory\n");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(Export, ReplacesOnlyWhatItIsToldTo)
{
    const ExportFolder folder;
    const std::string out = folder / "a-csv";
    const std::vector<std::string> once = {"export", Sample("portique"), "-o", out};
    std::vector<std::string> again = once;
    again.push_back("--force");
    EXPECT_EQ(RunTool(once).exitCode, 0);
    const std::string written = ContentOfFile(out + "/Nodes.csv");
    ExpectTrouble(RunTool(once), "it is there already; --force replaces it");
    std::ofstream(out + "/Nodes.csv") << "mine";
    EXPECT_EQ(RunTool(again).exitCode, 0);
    EXPECT_EQ(ContentOfFile(out + "/Nodes.csv"), written);
    std::ofstream(out + "/notes.txt") << "mine";
    ExpectTrouble(RunTool(again), "the folder holds something else than .csv files");
    EXPECT_EQ(ContentOfFile(out + "/notes.txt"), "mine");
    EXPECT_THAT(folder.Names(), testing::ElementsAre("a-csv"));
}

}  // namespace
}  // namespace tamur::test
