// The geometry of a glTF file: positions and indices of meshes, in single precision.
#pragma once

#include <array>
#include <cstdint>
#include <ostream>
#include <vector>

#include "host/export/glb/json_writer.h"
#include "host/structure/geometry.h"

namespace tamur::host {

enum class MeshMode : std::uint8_t { kLines = 1, kTriangles = 4 };

class Meshes {
 public:
    // Its place. Without corners the points are used in their order.
    std::uint32_t Add(const std::vector<Point>& points, const std::vector<std::uint32_t>& corners,
                      MeshMode mode, int material);

    [[nodiscard]] bool IsEmpty() const { return meshes_.empty(); }
    // The members of a glTF document: meshes, accessors, bufferViews, buffers.
    void Write(JsonWriter& out) const;
    [[nodiscard]] std::uint64_t ByteSize() const;
    void WriteBytes(std::ostream& out) const;

 private:
    struct Mesh {
        std::uint32_t firstPosition, positionCount;
        std::uint32_t firstIndex, indexCount;
        std::array<float, 3> low, high;
        bool isWide;  // indices of 32 bits
        MeshMode mode;
        std::uint8_t material;
    };
    void WriteAccessors(JsonWriter& out) const;

    std::vector<Mesh> meshes_;
    std::vector<std::array<float, 3>> positions_;
    std::vector<std::uint32_t> wide_;
    std::vector<std::uint16_t> narrow_;
};

}  // namespace tamur::host
