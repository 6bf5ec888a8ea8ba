// Message boxes answered with OK without allocating anything on the thread that shows them.
#pragma once

#include "support/message_boxes.h"

#ifndef _WIN32
#include "support/component_under_test.h"
#endif

namespace tamur::test {

#ifdef _WIN32
using QuietBoxes = CaughtMessageBoxes;  // another thread answers there
#else
class QuietBoxes {
 public:
    QuietBoxes()
    {
        TamurSetMessageBoxHandler([](const OLECHAR*, const OLECHAR*, UINT, void*) { return 1; },
                                  nullptr);
    }
    QuietBoxes(const QuietBoxes&) = delete;
    QuietBoxes& operator=(const QuietBoxes&) = delete;
    ~QuietBoxes() { TamurSetMessageBoxHandler(nullptr, nullptr); }
};
#endif

}  // namespace tamur::test
