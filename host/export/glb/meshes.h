// The geometry of a glTF file: positions and indices of meshes, in single precision.
#pragma once

#include <array>
#include <cstdint>
#include <ostream>
#include <vector>

#include "host/json/json_writer.h"
#include "host/structure/geometry.h"

namespace tamur::host {

class Meshes {
 public:
    using Position = std::array<float, 3>;

    // So many surfaces will follow, most of four corners.
    void Expect(std::size_t surfaces);
    // A body. Its place.
    std::uint32_t Add(const std::vector<Point>& points, const std::vector<std::uint32_t>& corners,
                      int material);
    // Pairs of points, after all bodies.
    std::uint32_t AddLines(std::vector<Position> points, int material);

    [[nodiscard]] bool IsEmpty() const { return meshes_.empty(); }
    // The members of a glTF document: meshes, accessors, bufferViews, buffers.
    void Write(JsonWriter& out) const;
    [[nodiscard]] std::uint64_t ByteSize() const;
    void WriteBytes(std::ostream& out) const;

 private:
    struct Mesh {
        std::uint32_t firstPosition, positionCount;
        std::uint32_t firstIndex, indexCount;
        Position low, high;
        bool isWide;  // indices of 32 bits
        bool isLines;
        std::uint8_t material;

        void Surround(const Position& position);
    };
    [[nodiscard]] std::uint64_t PositionCount() const { return positions_.size() + lines_.size(); }
    void WriteAccessors(JsonWriter& out) const;

    std::vector<Mesh> meshes_;
    std::vector<Position> positions_, lines_;
    std::vector<std::uint32_t> wide_;
    std::vector<std::uint16_t> narrow_;
};

}  // namespace tamur::host
