// `tamur view`.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class View : public ::testing::Test {
 protected:
    View() { fs::create_directory(folder_); }
    ~View() override { fs::remove_all(folder_); }

    [[nodiscard]] std::string In(const std::string& name) const
    {
        return (folder_ / name).string();
    }
    [[nodiscard]] std::string TextOf(const std::string& name) const
    {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Write(const std::string& name, const std::string& text) const
    {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }
    [[nodiscard]] std::size_t Files() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
    }

    fs::path folder_ = TemporaryFile("").Path().string() + ".view";
};

TEST_F(View, WritesOnePage)
{
    const ToolRun run = RunTool({"view", Sample("hall"), "-o", In("hall.html")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, In("hall.html") + "\n");
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(TextOf("hall.html"), StartsWith("<!doctype html><!-- made by tamur view -->\n"));
    EXPECT_THAT(TextOf("hall.html"), EndsWith("</html>\n"));
    EXPECT_EQ(Files(), 1u);
}

TEST_F(View, IsNamedAsTheModel)
{
    const ToolRun run = RunTool({"view", Sample("portique")}, "cd " + folder_.string() + " &&");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "portique.html\n");
    EXPECT_THAT(TextOf("portique.html"), StartsWith("<!doctype html>"));
}

TEST_F(View, ReplacesItsPagesAndNothingElse)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(RunTool({"view", Sample("hall"), "-o", In("page.html")}).exitCode, 0);
    }
    Write("page.html", "<!doctype html>of somebody else");
    const ToolRun refused = RunTool({"view", Sample("hall"), "-o", In("page.html")});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.errors, HasSubstr("--force"));
    EXPECT_EQ(TextOf("page.html"), "<!doctype html>of somebody else");
    EXPECT_EQ(RunTool({"view", Sample("hall"), "-o", In("page.html"), "--force"}).exitCode, 0);
    EXPECT_THAT(TextOf("page.html"), HasSubstr("made by tamur view"));
    EXPECT_EQ(Files(), 1u);
}

TEST_F(View, OfARefusedFileIsNotWritten)
{
    Write("old.txt", "#Version\n9.9\n");
    const ToolRun run = RunTool({"view", In("old.txt"), "-o", In("old.html")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, HasSubstr("version"));
    EXPECT_EQ(Files(), 1u);
    EXPECT_EQ(RunTool({"view", Sample("hall"), "-o", In("none/hall.html")}).exitCode, 2);
}

TEST_F(View, ReadsStandardInput)
{
    const ToolRun run =
        RunTool({"view", "-", "-o", In("piped.html")}, "cat " + Sample("portique") + " |");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(TextOf("piped.html"), StartsWith("<!doctype html>"));
}

// A stand-in for the desktop's program, which notes what it is asked to open.
TEST_F(View, IsOpenedWhenAskedFor)
{
    Write("xdg-open", "#!/bin/sh\nprintf '%s' \"$1\" >" + In("opened") + "\n");
    fs::permissions(folder_ / "xdg-open", fs::perms::owner_all);
    const std::string path = "PATH=" + folder_.string() + ":$PATH";
    const ToolRun run = RunTool({"view", Sample("hall"), "-o", In("-page.html"), "--open"}, path);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(TextOf("opened"), In("-page.html"));

    Write("xdg-open", "#!/bin/sh\nexit 3\n");
    const ToolRun failed =
        RunTool({"view", Sample("hall"), "-o", In("-page.html"), "--open"}, path);
    EXPECT_EQ(failed.exitCode, 2);
    EXPECT_THAT(failed.errors, HasSubstr("the page was written"));
}

}  // namespace
}  // namespace tamur::test
