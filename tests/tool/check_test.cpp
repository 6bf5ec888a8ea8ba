#include <gtest/gtest.h>

#include "support/model_text.h"
#include "tool_run.h"

namespace tamur::test {
namespace {

TEST(Check, NamesTheLinesThatAreDroppedOrChanged)
{
    const TemporaryFile file(ModelText()
                                 .Elements({"1 1 0 1 0 0 0 0 0 0 0 0",    // line 10: fine
                                            "14 1",                       // no such kind
                                            "2 1 0 2 0 0 0 0 0 0 0 0 0",  // no length
                                            "1 2 0 0 0"})                 // no point
                                 .Section("#Cas", {"1 G 1 G 0", "2 W 6 W 0"})
                                 .Text());
    const ToolRun run = RunTool({"check", file.Path().string()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output,
              "line 11: no such kind of element: dropped\n"
              "line 12: bar without length: dropped\n"
              "line 13: too few points for its kind: dropped\n"
              "line 16: no such type of load case: dropped\n");
}

TEST(Check, SaysWhenThereIsNothing)
{
    const TemporaryFile file(ModelText().Elements({"1 1 0 1 0 0 0 0 0 0 0 0"}).Text());
    const ToolRun run = RunTool({"check", file.Path().string()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "nothing was dropped or replaced\n");
}

}  // namespace
}  // namespace tamur::test
