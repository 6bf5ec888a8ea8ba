#include "linked/quiet_boxes.h"
#include "support/component_under_test.h"

namespace tamur::test {

QuietBoxes::QuietBoxes()
{
    TamurSetMessageBoxHandler([](const OLECHAR*, const OLECHAR*, UINT, void*) { return 1; },
                              nullptr);
}

QuietBoxes::~QuietBoxes()
{
    TamurSetMessageBoxHandler(nullptr, nullptr);
}

}  // namespace tamur::test
