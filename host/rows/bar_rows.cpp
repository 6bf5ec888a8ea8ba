#include "host/rows/bar_rows.h"

#include <array>

#include "accessors/bar_values.h"
#include "accessors/type_names.h"
#include "reader/observed_reader.h"

namespace tamur::host {
namespace {

// Places count from 1 in the model, 0 for none.
std::int32_t ReferenceOf(std::uint32_t place)
{
    return static_cast<std::int32_t>(place) - 1;
}

void CopyPoint(const tamur::Point& from, double (&to)[3])
{
    to[0] = from.x;
    to[1] = from.y;
    to[2] = from.z;
}

// Texts that many bars have.
class KnownTexts {
 public:
    explicit KnownTexts(RowBlocks& blocks)
        : blocks_(blocks), axisPosition_(blocks.AddText(kBarAxisPosition))
    {
        types_.fill(-1);
    }

    [[nodiscard]] std::int32_t AxisPosition() const { return axisPosition_; }
    [[nodiscard]] std::int32_t Type(std::uint8_t code)
    {
        if (types_[code] < 0) types_[code] = blocks_.AddText(BarTypeName(code));
        return types_[code];
    }
    [[nodiscard]] std::int32_t Remark(BarRemarks remarks)
    {
        const WideStringView text = BarRemarkText(remarks);
        return text.empty() ? -1 : blocks_.AddText(text);
    }

 private:
    RowBlocks& blocks_;
    std::int32_t axisPosition_;
    std::array<std::int32_t, 256> types_;
};

TamurList AddLabelsOf(const tamur::Bar& bar, RowBlocks& blocks)
{
    const std::uint64_t start = blocks.BeginList();
    bar.labels.ForEach([&](Text label) {
        const WideStringView text(label.Data(), label.ByteLength() / sizeof(OLECHAR));
        blocks.AddToList(blocks.AddText(text));
    });
    return blocks.EndList(start, bar.labels.Counts().announced);
}

void FillBar(const tamur::Bar& bar, RowBlocks& blocks, KnownTexts& texts, TamurBar& row)
{
    const double length = LengthOf(bar.line);
    row.identifier = static_cast<std::int32_t>(bar.identifier);
    row.group = bar.group;
    row.labels = AddLabelsOf(bar, blocks);
    row.type = texts.Type(bar.type);
    row.remark = texts.Remark(bar.remarks);
    row.mesh_step = bar.meshStep;
    row.whole_length = WholeLength(length);
    row.start_section = ReferenceOf(bar.startSection);
    row.end_section = ReferenceOf(bar.endSection);
    row.start_release = ReferenceOf(bar.startRelease);
    row.end_release = ReferenceOf(bar.endRelease);
    row.material = ReferenceOf(bar.material);
    row.axis_position = texts.AxisPosition();
    row.angle = bar.angle;
    row.orientation_node = bar.orientationNode;
    row.offset = bar.offset;
    CopyPoint(bar.line.start, row.start);
    CopyPoint(bar.line.end, row.end);
    row.length = length;
}

}  // namespace

void AddBars(ITAMURStructureReader& reader, RowTable& table)
{
    const Table<tamur::Bar>& bars = ModelOf(reader).barTables->bars;
    table.Reserve<TamurBar>(bars.Size());
    KnownTexts texts(table.Blocks());
    for (std::size_t rank = 0; rank < bars.Size(); ++rank) {
        FillBar(bars[rank], table.Blocks(), texts, table.Add<TamurBar>());
    }
}

std::int32_t MaterialOfSurface(ITAMURStructureReader& reader, std::size_t rank)
{
    return ReferenceOf(ModelOf(reader).surfaces[rank].material);
}

}  // namespace tamur::host
