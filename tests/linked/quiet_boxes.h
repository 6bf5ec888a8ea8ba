// Message boxes answered with OK without allocating anything on the thread that shows them.
#pragma once

#include <memory>

#include "support/message_boxes.h"

namespace tamur::test {

class QuietBoxes {
 public:
    QuietBoxes();
    QuietBoxes(const QuietBoxes&) = delete;
    QuietBoxes& operator=(const QuietBoxes&) = delete;
    ~QuietBoxes();

 private:
    std::unique_ptr<CaughtMessageBoxes> caught_;  // where another thread answers them
};

}  // namespace tamur::test
