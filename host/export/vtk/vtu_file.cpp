#include "host/export/vtk/vtu_file.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <limits>
#include <pugixml.hpp>
#include <sstream>
#include <system_error>

#include "host/export/output.h"
#include "host/export/vtk/compressed_array.h"

namespace tamur::host {
namespace {

// The arrays of the whole grid: parts have some of them.
std::vector<const VtkArray*> ArraysOf(std::span<const VtkPart> parts,
                                      std::vector<VtkArray> VtkPart::*arraysOfPart)
{
    std::vector<const VtkArray*> arrays;
    for (const VtkPart& part : parts) {
        for (const VtkArray& array : part.*arraysOfPart) {
            const auto isSame = [&](const VtkArray* other) { return other->name == array.name; };
            if (std::none_of(arrays.begin(), arrays.end(), isSame)) arrays.push_back(&array);
        }
    }
    return arrays;
}

const VtkArray* Find(const std::vector<VtkArray>& arrays, std::string_view name)
{
    for (const VtkArray& array : arrays) {
        if (array.name == name) return &array;
    }
    return nullptr;
}

class VtuFile {
 public:
    VtuFile(const std::filesystem::path& path, const std::vector<Point>& points,
            std::span<const VtkPart> parts, const Steps& steps)
        : points_(points), parts_(parts), steps_(steps), path_(path), out_(path, std::ios::binary)
    {
        for (const VtkPart& part : parts) {
            cells_ += part.cells.size();
            corners_ += part.corners.size();
        }
        constexpr std::size_t kMost = std::numeric_limits<std::int32_t>::max();
        if (points.size() > kMost || corners_ > kMost) {
            throw OutputError("the model is too large for this form",
                              "le modèle est trop grand pour cette forme");
        }
    }

    void Write()
    {
        Describe();
        // The description comes first, but has the places of what follows: room is left for it.
        const std::string longest = Description();
        out_ << std::string(longest.size(), ' ');
        WriteArrays();
        out_ << "\n</AppendedData>\n</VTKFile>\n";
        out_.seekp(0);
        out_ << Padded(Description(), longest.size());
        out_.close();
        if (!out_) FailToWrite();
    }

 private:
    pugi::xml_attribute Declare(pugi::xml_node node, std::string_view name, const char* type,
                                std::size_t components)
    {
        pugi::xml_node array = node.append_child("DataArray");
        array.append_attribute("type") = type;
        array.append_attribute("Name") = std::string(name).c_str();
        // meshio takes 1 for columns of a table.
        if (components > 1) array.append_attribute("NumberOfComponents") = components;
        array.append_attribute("format") = "appended";
        pugi::xml_attribute offset = array.append_attribute("offset");
        offset = std::numeric_limits<unsigned long long>::max();
        offsets_.push_back(offset);
        return offset;
    }

    void Describe()
    {
        pugi::xml_node file = document_.append_child("VTKFile");
        file.append_attribute("type") = "UnstructuredGrid";
        file.append_attribute("version") = "1.0";
        file.append_attribute("byte_order") = "LittleEndian";
        file.append_attribute("header_type") = "UInt64";
        file.append_attribute("compressor") = "vtkZLibDataCompressor";
        pugi::xml_node piece = file.append_child("UnstructuredGrid").append_child("Piece");
        piece.append_attribute("NumberOfPoints") = points_.size();
        piece.append_attribute("NumberOfCells") = cells_;
        const auto declareAll = [this](pugi::xml_node node,
                                       const std::vector<const VtkArray*>& arrays) {
            for (const VtkArray* array : arrays) {
                Declare(node, array->name, array->type, array->components);
            }
        };
        declareAll(piece.append_child("PointData"), pointArrays_);
        declareAll(piece.append_child("CellData"), cellArrays_);
        Declare(piece.append_child("Points"), "Points", "Float64", 3);
        pugi::xml_node cells = piece.append_child("Cells");
        Declare(cells, "connectivity", "Int32", 1);
        Declare(cells, "offsets", "Int32", 1);
        Declare(cells, "types", "UInt8", 1);
        pugi::xml_node appended = file.append_child("AppendedData");
        appended.append_attribute("encoding") = "raw";
        appended.append_child(pugi::node_pcdata).set_value("_");
    }

    // Up to where the arrays begin.
    [[nodiscard]] std::string Description() const
    {
        std::ostringstream text;
        document_.save(text, " ", pugi::format_default, pugi::encoding_utf8);
        std::string description = text.str();
        description.resize(description.rfind("_</AppendedData>") + 1);
        return description;
    }
    static std::string Padded(const std::string& description, std::size_t size)
    {
        const std::size_t place = description.rfind("<AppendedData");
        std::string padded = description;
        return padded.insert(place, size - description.size(), ' ');
    }

    // In the order of the description.
    void WriteArrays()
    {
        begin_ = out_.tellp();
        for (const VtkArray* array : pointArrays_) WritePointArray(*array);
        for (const VtkArray* array : cellArrays_) WriteCellArray(*array);
        static_assert(sizeof(Point) == 3 * sizeof(double));
        WriteArray(points_.size() * sizeof(Point),
                   [this](auto& out) { out.Write(std::as_bytes(std::span(points_))); });
        WriteArray(corners_ * 4, [this](auto& out) {
            for (const VtkPart& part : parts_) out.Write(std::as_bytes(std::span(part.corners)));
        });
        WriteArray(cells_ * 4, [this](auto& out) { WriteOffsets(out); });
        WriteArray(cells_, [this](auto& out) {
            for (const VtkPart& part : parts_) out.Write(std::as_bytes(std::span(part.cells)));
        });
    }

    template <class Use>
    void WriteArray(std::size_t size, const Use& use)
    {
        steps_.StopIfAsked();
        offsets_[written_++] = static_cast<unsigned long long>(out_.tellp() - begin_);
        CompressedArray array(out_, size);
        use(array);
        // meshio gives arrays new places while it looks for others by their old ones. Its own are
        // multiples of four.
        array.End(begin_, 1);
    }

    void WritePointArray(const VtkArray& wanted)
    {
        const std::size_t size = wanted.components * wanted.valueSize;
        WriteArray(points_.size() * size, [&](CompressedArray& out) {
            std::size_t done = 0;
            for (const VtkPart& part : parts_) {
                const VtkArray* const array = Find(part.pointArrays, wanted.name);
                if (array == nullptr) continue;
                out.WriteZeros((part.firstOwnPoint - done) * size);
                array->write(part, [&out](auto bytes) { out.Write(bytes); });
                done = part.firstOwnPoint + part.elements.size();
            }
            out.WriteZeros((points_.size() - done) * size);
        });
    }

    void WriteCellArray(const VtkArray& wanted)
    {
        const std::size_t size = wanted.components * wanted.valueSize;
        WriteArray(cells_ * size, [&](CompressedArray& out) {
            for (const VtkPart& part : parts_) {
                const VtkArray* const array = Find(part.cellArrays, wanted.name);
                if (array != nullptr) {
                    array->write(part, [&out](auto bytes) { out.Write(bytes); });
                } else {
                    out.WriteZeros(part.cells.size() * size);
                }
            }
        });
    }

    // Where the corners of each cell end.
    void WriteOffsets(CompressedArray& out)
    {
        std::vector<std::uint32_t> ends;
        std::uint32_t end = 0;
        for (const VtkPart& part : parts_) {
            for (const VtkCell cell : part.cells) {
                ends.push_back(end += CornersOf(cell));
                if (ends.size() < 4096) continue;
                out.Write(std::as_bytes(std::span(ends)));
                ends.clear();
            }
        }
        out.Write(std::as_bytes(std::span(ends)));
    }

    const std::vector<Point>& points_;
    std::span<const VtkPart> parts_;
    const Steps& steps_;
    std::filesystem::path path_;
    std::ofstream out_;
    std::size_t cells_ = 0, corners_ = 0;
    std::vector<const VtkArray*> pointArrays_ = ArraysOf(parts_, &VtkPart::pointArrays);
    std::vector<const VtkArray*> cellArrays_ = ArraysOf(parts_, &VtkPart::cellArrays);

    pugi::xml_document document_;
    std::vector<pugi::xml_attribute> offsets_;  // of the arrays, in their order
    std::size_t written_ = 0;
    std::streampos begin_;
};

}  // namespace

void WriteVtuFile(const std::filesystem::path& path, const std::vector<Point>& points,
                  std::span<const VtkPart> parts, const Steps& steps)
{
    VtuFile(path, points, parts, steps).Write();
}

}  // namespace tamur::host
