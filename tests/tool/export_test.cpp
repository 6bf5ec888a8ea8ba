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

// Bars of two groups that meet, with a load on each.
std::string TwoGroups()
{
    const auto bar = [](int identifier, const std::string& from, const std::string& to, int group) {
        return "2 " + std::to_string(identifier) + " 0 2 0  " + from + "  " + to + "  0 0 0  " +
               std::to_string(group) + " 2 0 0 1 1 1 1 1 1 5 0 0 0 0 0";
    };
    return ModelText()
        .Section("#Groupes", {"2 1 2 Poutres Oui", "2 2 2 Poteaux Oui"})
        .Section("#Cas", {"1 G 1 G 0", "2 Q 1 Q 0", "3 E 2 ELU 0"})
        .Section("#TAB_PARAM_CAS", {"3 2 2 1.5 32767 0"})
        .Elements({bar(11, "0 0 3", "4 0 3", 1), bar(12, "0 0 0", "0 0 3", 2),
                   "1 1 0 1 0  0 0 0  0 0 0  0", "1 2 0 1 0  4 0 3  0 0 0  0",
                   "5 21 0 1 0  4 0 3  0 0 0  1 1 0 0 -1 0 0 0",
                   "5 22 0 1 0  0 0 1  0 0 0  2 1 0 0 -1 0 0 0",
                   "4 31 0 1 0  0 0 0  0 0 0  1 1 0 0 1e9 1e9 1e9 0 0 0 0 0 0 0 0 0 0"})
        .Text();
}

// The second column of a table, which has the identifiers; nothing when there is no such table.
std::vector<std::string> Identifiers(const std::string& path)
{
    std::vector<std::string> found;
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        const std::size_t comma = line.find(',');
        found.push_back(line.substr(comma + 1, line.find(',', comma + 1) - comma - 1));
    }
    return found;
}

TEST(Export, TakesTheGroupsAndCasesThatItIsTold)
{
    const TemporaryFile model(TwoGroups());
    const auto exported = [&](const std::vector<std::string>& options) {
        const ExportFolder folder;
        std::vector<std::string> arguments = {"export", model.Path(), "-o", folder / "m-csv"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ToolRun run = RunTool(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        std::vector<std::vector<std::string>> found;
        for (const char* table : {"Filaires", "Nodes", "ChargesPonctuelles", "AppuisPonctuels"}) {
            found.push_back(Identifiers(folder / ("m-csv/" + std::string(table) + ".csv")));
        }
        return found;
    };
    using Found = std::vector<std::vector<std::string>>;
    const std::vector<std::string> none;
    EXPECT_EQ(exported({}), (Found{{"11", "12"}, {"1", "2"}, {"21", "22"}, {"31"}}));
    EXPECT_EQ(exported({"--group", "Poutres"}), (Found{{"11"}, {"2"}, {"21"}, none}));
    EXPECT_EQ(exported({"--group", "bars:2"}), (Found{{"12"}, {"1"}, {"22"}, none}));
    EXPECT_EQ(exported({"--group", "point-supports:1"}), (Found{none, {"1"}, none, {"31"}}));
    EXPECT_EQ(exported({"--group", "bars:2", "--group", "bars:1"}),
              (Found{{"11", "12"}, {"1", "2"}, {"21", "22"}, none}));
    EXPECT_EQ(exported({"--case", "1"}), (Found{{"11", "12"}, {"1", "2"}, {"21"}, {"31"}}));
    EXPECT_EQ(exported({"--case", "3"}), (Found{{"11", "12"}, {"1", "2"}, {"22"}, {"31"}}));
}

TEST(Export, SaysWhatWasNotSelected)
{
    const TemporaryFile model(TwoGroups());
    for (const char* kind : {"csv", "xlsx", "saf", "vtu", "glb"}) {
        const ExportFolder folder;
        const auto summary = [&](std::vector<std::string> options) {
            const std::vector<std::string> command = {"export",  model.Path(), "--to",      kind,
                                                      "--force", "-o",         folder / "m"};
            options.insert(options.begin(), command.begin(), command.end());
            return RunTool(options).output;
        };
        const std::string part = summary({"--group", "Poutres", "--case", "2", "--lang", "en"});
        EXPECT_THAT(part, AllOf(HasSubstr("not written:\n"), HasSubstr("  bar (1): not selected\n"),
                                HasSubstr("  node (1): not selected\n"),
                                HasSubstr("  point support (1): not selected\n"),
                                HasSubstr("  point load (2): not selected\n")))
            << kind;
        EXPECT_THAT(summary({"--group", "Poutres", "--lang", "fr"}),
                    HasSubstr("  filaire (1) : non choisi\n"));
        EXPECT_THAT(summary({}), testing::Not(HasSubstr("not selected"))) << kind;
    }
}

TEST(Export, CallsSumsThoseOfTheWholeModelBesideAPartOfIt)
{
    const TemporaryFile model(TwoGroups());
    const auto sums = [&](const std::vector<std::string>& options) {
        const ExportFolder folder;
        std::vector<std::string> arguments = {"export", model.Path(), "-o", folder / "m-csv"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(RunTool(arguments).exitCode, 0);
        return ContentOfFile(folder / "m-csv/Model.csv");
    };
    const std::string all = sums({});
    EXPECT_THAT(all, HasSubstr("\nlength of bars,"));
    EXPECT_THAT(all, testing::Not(HasSubstr("of the whole model")));
    for (const auto& options : {std::vector<std::string>{"--group", "Poutres"}, {"--case", "1"}}) {
        const std::string part = sums(options);
        EXPECT_THAT(part, HasSubstr("\nlength of bars of the whole model,"));
        EXPECT_THAT(part, HasSubstr("\nsum of loads of the whole model,"));
        EXPECT_THAT(part, testing::Not(HasSubstr("\nsum of loads,")));
    }
}

TEST(Export, SaysWhatIsLostInBothLanguages)
{
    const ExportFolder folder;
    const auto summary = [&](const char* language) {
        return RunTool({"export", Sample("hall"), "-o", folder / "h.saf.xlsx", "--force", "--lang",
                        language})
            .output;
    };
    EXPECT_THAT(summary("en"),
                AllOf(HasSubstr("h.saf.xlsx\nnot written:\n"),
                      HasSubstr("  cable (16): the format has nothing like it\n"),
                      HasSubstr("written in part, or otherwise:\n"), HasSubstr("assumed:\n")));
    EXPECT_THAT(summary("fr"), AllOf(HasSubstr("non écrit :\n"),
                                     HasSubstr("  câble (16) : le format n'a rien de tel\n")));
}

// Of each kind: what was there stays, and nothing else comes to be there.
TEST(Export, DiskThatIsFullLeavesWhatWasThere)
{
    for (const char* name : {"a-csv", "a.xlsx", "a.saf.xlsx", "a.vtu", "a.glb"}) {
        const ExportFolder folder;
        const std::vector<std::string> once = {"export", Sample("batiment"), "-o", folder / name,
                                               "--force"};
        ExpectTrouble(RunTool(once, "ulimit -f 8;"),
                      "the output cannot be written: File too large");
        EXPECT_THAT(folder.Names(), IsEmpty()) << name;
        EXPECT_EQ(RunTool(once).exitCode, 0);
        const auto before = fs::last_write_time(folder / name);
        EXPECT_EQ(RunTool(once, "ulimit -f 8;").exitCode, 2);
        EXPECT_EQ(fs::last_write_time(folder / name), before);
        EXPECT_THAT(folder.Names(), testing::ElementsAre(name));
    }
}

// A file and the folder that it refers to: both or none.
TEST(Export, FileWithAFolderIsWholeOrNotThere)
{
    const ExportFolder folder;
    const std::vector<std::string> once = {"export", Sample("batiment"), "-o", folder / "a.vtm",
                                           "--force"};
    ExpectTrouble(RunTool(once, "ulimit -f 1;"), "the output cannot be written: File too large");
    EXPECT_THAT(folder.Names(), IsEmpty());
    EXPECT_EQ(RunTool(once).exitCode, 0);
    EXPECT_THAT(folder.Names(), testing::UnorderedElementsAre("a.vtm", "a"));
    std::ofstream(folder / "a/notes.txt") << "mine";
    ExpectTrouble(RunTool(once), "the folder holds something else than .vtu files");
    EXPECT_EQ(ContentOfFile(folder / "a/notes.txt"), "mine");
}

TEST(Export, DrawingsHaveTheGroupsAndCasesThatTheyAreTold)
{
    const TemporaryFile model(TwoGroups());
    const auto exported = [&](const std::vector<std::string>& options) {
        const ExportFolder folder;
        std::vector<std::string> arguments = {"export", model.Path(), "-o", folder / "m.glb"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(RunTool(arguments).exitCode, 0);
        const std::string content = ContentOfFile(folder / "m.glb");
        std::string found;
        for (const char* identifier : {"11", "12", "1", "2", "21", "22", "31"}) {
            const std::string text = std::string("\"identifier\":") + identifier + ",";
            if (content.find(text) != std::string::npos) found += std::string(identifier) + " ";
        }
        return found;
    };
    EXPECT_EQ(exported({}), "11 12 1 2 21 22 31 ");
    EXPECT_EQ(exported({"--group", "Poutres"}), "11 2 21 ");
    EXPECT_EQ(exported({"--group", "bars:2", "--case", "1"}), "12 1 ");
    EXPECT_EQ(exported({"--case", "3"}), "11 12 1 2 22 31 ");
}

TEST(Export, SignalLeavesNothing)
{
    std::string text = TwoGroups();
    for (int i = 0; i < 200000; ++i) {
        text +=
            "1 " + std::to_string(i + 100) + " 0 1 0  " + std::to_string(i) + " 0 0  0 0 0  0\n";
    }
    const TemporaryFile model(text);
    const ExportFolder folder;
    // As soon as something is written; a workbook of that size takes seconds.
    const std::string stop = "watch() { while [ -z \"$(ls -A " + (folder / "") +
                             ")\" ]; do :; done; kill -TERM $1; }; "
                             "run() { \"$@\" & watch $!; wait $!; }; run ";
    ExpectTrouble(RunTool({"export", model.Path(), "-o", folder / "a.xlsx"}, stop),
                  "stopped: nothing was written");
    EXPECT_THAT(folder.Names(), IsEmpty());
}

}  // namespace
}  // namespace tamur::test
