// The surface accessor can be created without a reader; then it has nothing to serve.
#include <gtest/gtest.h>

#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

TEST(SurfaceAccessorAlone, HasNoSurfaces)
{
    const auto accessor = NewSurfaceAccessor();
    LONG count = -1;
    EXPECT_EQ(accessor->GetNbSurfaciques(&count), S_OK);
    EXPECT_EQ(count, 0);
}

// Any rank is outside of nothing, which is the caller's broken contract and no result.
TEST(SurfaceAccessorAloneDeathTest, AnyRankEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const LONG rank : {0, 1, -1}) {
        EXPECT_DEATH(
            {
                Record<TMRSurfacique> record;
                NewSurfaceAccessor()->GetSurfaciqueAtRank(rank, record.Put());
            },
            "broken contract");
    }
}

}  // namespace
}  // namespace tamur::test
