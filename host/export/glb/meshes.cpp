#include "host/export/glb/meshes.h"

#include <algorithm>
#include <span>
#include <utility>

#include "host/geometry/centring.h"

namespace tamur::host {
namespace {

// Of glTF.
constexpr int kFloat = 5126, kUnsignedShort = 5123, kUnsignedInt = 5125;
constexpr int kLines = 1, kTriangles = 4;
constexpr int kArrayBuffer = 34962, kElementArrayBuffer = 34963;
constexpr std::size_t kMostNarrow = 65535;  // the largest index restarts primitives

std::uint64_t PaddedToWords(std::uint64_t size)
{
    return (size + 3) / 4 * 4;
}

}  // namespace

void Meshes::Mesh::Surround(const Position& position)
{
    for (std::size_t i = 0; i < 3; ++i) {
        low[i] = std::min(low[i], position[i]);
        high[i] = std::max(high[i], position[i]);
    }
}

void Meshes::Expect(std::size_t surfaces)
{
    // Of both sides, some with openings. What is not used takes no memory.
    constexpr std::size_t kPositions = 16, kIndices = 72;
    positions_.reserve(kPositions * surfaces);
    narrow_.reserve(kIndices * surfaces);
    meshes_.reserve(surfaces + 1);
}

std::uint32_t Meshes::Add(const std::vector<Point>& points,
                          const std::vector<std::uint32_t>& corners, int material)
{
    Mesh mesh = {};
    mesh.firstPosition = static_cast<std::uint32_t>(positions_.size());
    mesh.positionCount = static_cast<std::uint32_t>(points.size());
    mesh.isWide = points.size() > kMostNarrow;
    mesh.firstIndex = static_cast<std::uint32_t>(mesh.isWide ? wide_.size() : narrow_.size());
    mesh.indexCount = static_cast<std::uint32_t>(corners.size());
    mesh.material = static_cast<std::uint8_t>(material);
    for (const Point& point : points) {
        positions_.push_back(Centring::Relative(point, {}));
        if (positions_.size() == mesh.firstPosition + 1) mesh.low = mesh.high = positions_.back();
        mesh.Surround(positions_.back());
    }
    for (const std::uint32_t corner : corners) {
        if (mesh.isWide) wide_.push_back(corner);
        if (!mesh.isWide) narrow_.push_back(static_cast<std::uint16_t>(corner));
    }
    meshes_.push_back(mesh);
    return static_cast<std::uint32_t>(meshes_.size() - 1);
}

std::uint32_t Meshes::AddLines(std::vector<Position> points, int material)
{
    Mesh mesh = {};
    mesh.firstPosition = static_cast<std::uint32_t>(positions_.size());
    mesh.positionCount = static_cast<std::uint32_t>(points.size());
    mesh.isLines = true;
    mesh.material = static_cast<std::uint8_t>(material);
    mesh.low = mesh.high = points.front();
    for (const Position& position : points) mesh.Surround(position);
    lines_ = std::move(points);
    meshes_.push_back(mesh);
    return static_cast<std::uint32_t>(meshes_.size() - 1);
}

void Meshes::WriteAccessors(JsonWriter& out) const
{
    out.Key("accessors");
    out.Begin('[');
    const auto begin = [&out](int view, std::uint64_t offset, int type, std::uint32_t count) {
        out.Begin('{');
        out.Key("bufferView");
        out.Number(view);
        out.Key("byteOffset");
        out.Number(offset);
        out.Key("componentType");
        out.Number(type);
        out.Key("count");
        out.Number(count);
        out.Key("type");
    };
    for (const Mesh& mesh : meshes_) {
        begin(0, 12 * std::uint64_t{mesh.firstPosition}, kFloat, mesh.positionCount);
        out.Text("VEC3");
        // As doubles: the shortest text of a single need not be it.
        out.Array("min", static_cast<double>(mesh.low[0]), static_cast<double>(mesh.low[1]),
                  static_cast<double>(mesh.low[2]));
        out.Array("max", static_cast<double>(mesh.high[0]), static_cast<double>(mesh.high[1]),
                  static_cast<double>(mesh.high[2]));
        out.End('}');
        if (mesh.indexCount == 0) continue;
        const bool hasNarrow = !narrow_.empty();
        if (mesh.isWide) {
            begin(hasNarrow ? 2 : 1, 4 * std::uint64_t{mesh.firstIndex}, kUnsignedInt,
                  mesh.indexCount);
        } else {
            begin(1, 2 * std::uint64_t{mesh.firstIndex}, kUnsignedShort, mesh.indexCount);
        }
        out.Text("SCALAR");
        out.End('}');
    }
    out.End(']');
}

void Meshes::Write(JsonWriter& out) const
{
    if (meshes_.empty()) return;
    out.Key("meshes");
    out.Begin('[');
    int accessor = 0;
    for (const Mesh& mesh : meshes_) {
        out.Begin('{');
        out.Key("primitives");
        out.Begin('[');
        out.Begin('{');
        out.Key("attributes");
        out.Begin('{');
        out.Key("POSITION");
        out.Number(accessor++);
        out.End('}');
        if (mesh.indexCount > 0) {
            out.Key("indices");
            out.Number(accessor++);
        }
        out.Key("mode");
        out.Number(mesh.isLines ? kLines : kTriangles);
        out.Key("material");
        out.Number(int{mesh.material});
        out.End('}');
        out.End(']');
        out.End('}');
    }
    out.End(']');
    WriteAccessors(out);

    out.Key("bufferViews");
    out.Begin('[');
    std::uint64_t offset = 0;
    const auto view = [&](std::uint64_t size, int target, int stride = 0) {
        if (size == 0) return;
        out.Begin('{');
        out.Key("buffer");
        out.Number(0);
        out.Key("byteOffset");
        out.Number(offset);
        out.Key("byteLength");
        out.Number(size);
        if (stride > 0) {
            out.Key("byteStride");
            out.Number(stride);
        }
        out.Key("target");
        out.Number(target);
        out.End('}');
        offset += PaddedToWords(size);
    };
    view(12 * PositionCount(), kArrayBuffer, 12);
    view(2 * narrow_.size(), kElementArrayBuffer);
    view(4 * wide_.size(), kElementArrayBuffer);
    out.End(']');
    out.Key("buffers");
    out.Begin('[');
    out.Begin('{');
    out.Key("byteLength");
    out.Number(ByteSize());
    out.End('}');
    out.End(']');
}

std::uint64_t Meshes::ByteSize() const
{
    return 12 * PositionCount() + PaddedToWords(2 * narrow_.size()) + 4 * wide_.size();
}

void Meshes::WriteBytes(std::ostream& out) const
{
    const auto write = [&out](auto values) {
        const auto bytes = std::as_bytes(values);
        out.write(reinterpret_cast<const char*>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
    };
    write(std::span(positions_));
    write(std::span(lines_));
    write(std::span(narrow_));
    if (narrow_.size() % 2 != 0) out.write("\0\0", 2);
    write(std::span(wide_));
}

}  // namespace tamur::host
