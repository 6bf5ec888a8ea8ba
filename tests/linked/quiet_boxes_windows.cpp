#include "linked/quiet_boxes.h"

namespace tamur::test {

QuietBoxes::QuietBoxes() : caught_(std::make_unique<CaughtMessageBoxes>()) {}

QuietBoxes::~QuietBoxes() = default;

}  // namespace tamur::test
