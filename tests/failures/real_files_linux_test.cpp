// What has the path of a file and is none.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "failures/seed_files.h"
#include "linked/quiet_boxes.h"

namespace tamur::test {
namespace {

TEST(RealFiles, APipeIsRefusedWithoutWaitingForItsWriter)
{
    const QuietBoxes boxes;
    const TemporaryFile file("");
    std::filesystem::remove(file.Path());
    ASSERT_EQ(mkfifo(file.Path().c_str(), 0600), 0);
    EXPECT_EQ(ImportUndisturbed(file.Path()).result, E_FAIL);
}

}  // namespace
}  // namespace tamur::test
