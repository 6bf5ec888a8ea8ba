// Nothing is said of a model that is as it should be.
#include <gmock/gmock.h>

#include "model_findings.h"
#include "models/frame_building.h"

namespace tamur::host {
namespace {

TEST(CorrectModels, OfEveryShapeGiveNothing)
{
    for (const test::FrameBuilding& building :
         {test::FrameBuilding{1, 1, 1}, {3, 3, 3}, {7, 2, 5}, {2, 5, 12}, {20, 20, 4}}) {
        EXPECT_THAT(TextsOf(ModelFindings(test::Write(building))), testing::IsEmpty())
            << building.baysX << ' ' << building.baysY << ' ' << building.storeys;
    }
}

}  // namespace
}  // namespace tamur::host
