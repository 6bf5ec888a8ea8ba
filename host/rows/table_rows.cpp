#include "host/rows/table_rows.h"

#include <host/row_fills.h>

#include "host/rows/bar_rows.h"
#include "host/structure/geometry.h"

namespace tamur::host {
namespace {

double LengthBetween(const TMR3DLine& line)
{
    const auto pointOf = [](const TMR3DPnt& point) { return Point{point.x, point.y, point.z}; };
    return Segment{pointOf(line.start), pointOf(line.end)}.Length();
}

// What no field of a record says.
class RowCompleter {
 public:
    explicit RowCompleter(ITAMURStructureReader& reader) : reader_(reader) {}

    template <class PublicRecord, class RowType>
    void Complete(const PublicRecord& record, [[maybe_unused]] std::size_t rank, RowType& row)
    {
        if constexpr (std::is_same_v<PublicRecord, TMRSurfacique>) {
            row.material = MaterialOfSurface(reader_, rank);
        }
        if constexpr (requires { record.Surface.tabPoints; }) {
            row.area = AreaOf(record.Surface);
        } else if constexpr (requires { record.Geometrie.tabPoints; }) {
            row.area = AreaOf(record.Geometrie);
        } else if constexpr (requires { row.length; }) {
            row.length = LengthBetween(record.Geometrie);
        }
    }

 private:
    double AreaOf(const TMR3DPlanarElement& polygon)
    {
        corners_.clear();
        for (int i = 0; i < polygon.nbPoints; ++i) {
            const TMR3DPnt& corner = polygon.tabPoints[i];
            corners_.push_back({corner.x, corner.y, corner.z});
        }
        return Polygon(corners_).Area();
    }

    ITAMURStructureReader& reader_;
    std::vector<Point> corners_;
};

template <class PublicRecord>
void AddRecords(ITAMURStructureReader& reader, RowTable& table)
{
    using RowType = typename RowTypeOf<PublicRecord>::Row;
    const Range<PublicRecord> records = Records<PublicRecord>(reader);
    const LONG size = records.Size();
    table.Reserve<RowType>(static_cast<std::size_t>(size));
    RowCompleter completer(reader);
    for (LONG rank = 0; rank < size; ++rank) {
        const Record<PublicRecord> record = records.At(rank);
        RowType& row = table.Add<RowType>();
        FillRow(record.Get(), table.Blocks(), row);
        completer.Complete(record.Get(), static_cast<std::size_t>(rank), row);
    }
}

void AddModal(ITAMURStructureReader& reader, RowTable& table)
{
    Record<TMRModes> modes;
    Check(GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor)->GetModes(modes.Put()),
          "GetModes");
    FillRow(modes.Get(), table.Blocks(), table.Add<TamurModal>());
}

void AddSettings(const ImportedFile& imported, RowTable& table)
{
    TMRStructureData data = {};
    Check(imported.reader->GetStructureGlobalData(&data), "GetStructureGlobalData");
    int skipped = 0;
    Check(GetAccessor(*imported.reader, &ITAMURStructureReader::GetChargeAccessor)
              ->GetNbCombinaisonsSkipped(&skipped),
          "GetNbCombinaisonsSkipped");
    TamurSetting& row = table.Add<TamurSetting>();
    FillRow(data, table.Blocks(), row);
    row.version = table.Blocks().AddText(std::string_view(imported.version));
    row.service_pack = imported.servicePack;
    row.skipped_combinations = skipped;
}

// The texts are lent by their accessor.
void AddMessages(ITAMURStructureReader& reader, RowTable& table)
{
    const auto accessor = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(accessor->GetNbMessages(&count), "GetNbMessages");
    table.Reserve<TamurMessage>(static_cast<std::size_t>(count));
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR text = nullptr;
        Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
        table.Add<TamurMessage>().text = table.Blocks().AddText(text);
    }
}

bool AddTable(int number, ITAMURStructureReader& reader, RowTable& table)
{
    bool isFound = false;
    ForEachTableType([&](auto type) {
        using PublicRecord = typename decltype(type)::PublicRecord;
        if (number != RowTypeOf<PublicRecord>::kNumber) return;
        isFound = true;
        if constexpr (std::is_same_v<PublicRecord, TMRFilaire>) {
            AddBars(reader, table);
        } else {
            AddRecords<PublicRecord>(reader, table);
        }
    });
    return isFound;
}

void FillRow(const Finding& finding, RowBlocks& blocks, TamurFinding& row)
{
    const auto text = [&blocks](std::string_view utf8) { return blocks.AddText(utf8); };
    const CodeInfo& info = InfoOf(finding.code);
    row.code = text(IdOf(finding.code));
    row.severity = text(NameOf(info.severity, Language::kEnglish));
    row.line = static_cast<std::int32_t>(finding.place.line);
    row.column = static_cast<std::int32_t>(finding.place.column);
    row.length = static_cast<std::int32_t>(finding.place.length);
    row.kind = text(NounOf(finding.kind, Language::kEnglish));
    row.identifier = finding.identifier;
    const std::uint64_t start = blocks.BeginList();
    for (const std::string& value : finding.values) blocks.AddToList(text(value));
    row.values = blocks.EndList(start, static_cast<int>(finding.values.size()));
    row.text = text(TextOf(finding, Language::kEnglish));
    row.text_fr = text(TextOf(finding, Language::kFrench));
}

}  // namespace

bool AddRows(int number, const ImportedFile& imported, RowTable& table)
{
    ITAMURStructureReader& reader = *imported.reader;
    switch (number) {
        case TAMUR_MODAL: AddModal(reader, table); return true;
        case TAMUR_SETTINGS: AddSettings(imported, table); return true;
        case TAMUR_MESSAGES: AddMessages(reader, table); return true;
        default: return AddTable(number, reader, table);
    }
}

void AddFindings(const Findings& findings, RowTable& table)
{
    table.Reserve<TamurFinding>(0);
    for (const Finding& finding : findings.InFileOrder()) {
        FillRow(finding, table.Blocks(), table.Add<TamurFinding>());
    }
}

void AddFindingCounts(const Findings& findings, RowTable& table)
{
    table.Reserve<TamurFindingCount>(0);
    for (const CodeInfo& info : AllCodes()) {
        const std::size_t count = findings.CountOf(info.code);
        if (count == 0) continue;
        TamurFindingCount& row = table.Add<TamurFindingCount>();
        row.code = table.Blocks().AddText(std::string_view(IdOf(info.code)));
        row.severity = table.Blocks().AddText(NameOf(info.severity, Language::kEnglish));
        row.count = static_cast<std::int64_t>(count);
    }
}

}  // namespace tamur::host
