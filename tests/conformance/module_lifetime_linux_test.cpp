// That unloading leaves nothing: on Windows the linked-in run time keeps a few blocks for each
// load.
#include <malloc.h>

#include "conformance/copied_component.h"

namespace tamur::test {
namespace {

TEST_F(CopiedComponent, LeavesNoMemoryBehind)
{
    const auto inUse = [] { return mallinfo2().uordblks; };
    // What the loader and the allocator keep for the next time settles after a while.
    for (int i = 0; i < 50; ++i) LoadUseAndUnload();
    const auto before = inUse();
    for (int i = 0; i < 50; ++i) LoadUseAndUnload();
    EXPECT_LE(inUse(), before);
}

}  // namespace
}  // namespace tamur::test
