// What the user or the system does to end the process early.
#pragma once

#include "host/export/steps.h"

namespace tamur::tool {

// From then on a limit on the sizes of files is an error of writing. While it lives, the first
// signal that would end the process (on Windows: Ctrl-C and what is like it) stops the steps
// instead, so that nothing half-written stays. The second one ends the process.
class StopSignals {
 public:
    explicit StopSignals(host::Steps& steps);
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;
    ~StopSignals();
};

}  // namespace tamur::tool
