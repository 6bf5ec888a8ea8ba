// A frame building as an engineer would draw it, of any size.
#pragma once

#include <string>

namespace tamur::test {

struct FrameBuilding {
    int baysX = 3, baysY = 3, storeys = 3;
};

// Columns, beams, slabs and walls with openings, supports, loads, combinations and an envelope.
// Every node, group, material, section, release and case is used, and everything touches as it
// should.
[[nodiscard]] std::string Write(const FrameBuilding& building);

}  // namespace tamur::test
