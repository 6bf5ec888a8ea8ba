#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

using testing::HasSubstr;
using testing::Not;

// The lines of `tamur info`, with single blanks.
std::vector<std::string> Info(const std::string& file)
{
    const ToolRun run = RunTool({"info", file});
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
         {"version 12.1", "working space plane frame", "tolerance 0.001", "rigid in bending no",
          "extent in x 0 to 20", "extent in y 0 to 0", "extent in z 0 to 7.5"}) {
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
    EXPECT_THAT(lines, testing::Contains("extent in x -1.5 to -1.5"));
    EXPECT_THAT(lines, testing::Contains("extent in z 3 to 3"));
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

}  // namespace
}  // namespace tamur::test
