// A frame building as a file, which goes with the object.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "models/frame_building.h"
#include "temporary_path.h"

namespace tamur::bench {

class BuildingFile {
 public:
    // Of about so many elements: 7.3 a joint.
    explicit BuildingFile(std::uint64_t elements)
    {
        int bays = 10, storeys = 10;
        while (7.3 * bays * bays * storeys < static_cast<double>(elements)) {
            ++bays;
            storeys = std::min(40, bays);
        }
        std::ofstream(path_.Get(), std::ios::binary) << test::Write({bays, bays, storeys});
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_.Get(); }
    [[nodiscard]] double Bytes() const
    {
        return static_cast<double>(std::filesystem::file_size(path_.Get()));
    }

 private:
    TemporaryPath path_;
};

}  // namespace tamur::bench
