#include "host/export/tables/model_tables.h"

#include <tamur/ranges.h>

#include <utility>

#include "host/export/tables/record_fields.h"
#include "host/export/tables/record_lists.h"

namespace tamur::host {
namespace {

// The place of a record in its table, from 1, comes before its fields: identifiers need not be
// unique, and not every record has one.
const TableColumn kPlace = {"n", ""};

// What bars and surfaces refer to, by its place in its table; 0 where there is none.
std::int64_t PlaceOf(Index index)
{
    return index == kNone ? 0 : static_cast<std::int64_t>(index) + 1;
}

template <class PublicRecord>
void AddReferenceColumns(std::vector<TableColumn>& columns)
{
    if constexpr (std::is_same_v<PublicRecord, TMRFilaire>) {
        for (const char* name : {"StartSection.n", "EndSection.n", "StartConnection.n",
                                 "EndConnection.n", "FilaireMaterial.n"}) {
            columns.push_back({name, ""});
        }
    } else if constexpr (std::is_same_v<PublicRecord, TMRSurfacique>) {
        columns.push_back({"SurfaciqueMaterial.n", ""});
    }
}

template <class PublicRecord>
void AddReferenceCells(const Structure& structure, std::size_t rank, std::vector<Cell>& cells)
{
    if constexpr (std::is_same_v<PublicRecord, TMRFilaire>) {
        const Bar& bar = structure.bars[rank];
        for (const Index index :
             {bar.startSection, bar.endSection, bar.startRelease, bar.endRelease, bar.material}) {
            cells.push_back(PlaceOf(index));
        }
    } else if constexpr (std::is_same_v<PublicRecord, TMRSurfacique>) {
        cells.push_back(PlaceOf(structure.surfaces[rank].material));
    }
}

class RecordTables {
 public:
    RecordTables(const Source& source, Steps& steps, TableWriter& writer)
        : source_(source), steps_(steps), writer_(writer)
    {
    }

    void Write()
    {
        ForEachTable(source_.reader, [this](const auto& table) { WriteTable(table); });
        WriteModes();
        WriteMessages();
    }

 private:
    template <class Table>
    void WriteTable(const Table& table)
    {
        using PublicRecord = typename Table::PublicRecord;
        const LONG size = table.Size();
        if (size == 0) return;
        const Kind kind = KindOfTable(table.Name());
        const auto forEach = [&](auto&& use) {
            for (LONG rank = 0; rank < size; ++rank) {
                const auto place = static_cast<std::size_t>(rank);
                if (!source_.selection.Takes(kind, place)) continue;
                auto record = table.At(rank);
                use(record.Get(), place);
            }
        };
        writer_.Begin(table.Name(), ColumnsOf<PublicRecord>(table.Name()));
        forEach([this](PublicRecord& record, std::size_t rank) {
            BeginRow(rank);
            VisitFields(record, CellsOfRow(cells_));
            AddReferenceCells<PublicRecord>(source_.structure, rank, cells_);
            writer_.Row(cells_);
            steps_.Do();
        });
        WriteLists<PublicRecord>(table.Name(), forEach);
    }

    template <class PublicRecord>
    static std::vector<TableColumn> ColumnsOf(std::string_view table)
    {
        std::vector<TableColumn> columns = {kPlace};
        PublicRecord empty = {};
        VisitFields(empty, ColumnsOfRow(table, columns));
        AddReferenceColumns<PublicRecord>(columns);
        return columns;
    }

    void BeginRow(std::size_t rank)
    {
        cells_.clear();
        cells_.push_back(static_cast<std::int64_t>(rank) + 1);
    }

    // One table after the other, each with a pass over the records. One without rows is left out.
    template <class PublicRecord, class ForEach>
    void WriteLists(const std::string& table, const ForEach& forEach)
    {
        int listCount = 0;
        VisitLists(PublicRecord{}, [&listCount](auto&&...) { ++listCount; });
        for (int wanted = 0; wanted < listCount; ++wanted) {
            bool hasBegun = false;
            forEach([&](PublicRecord& record, std::size_t rank) {
                int list = 0;
                VisitLists(record, [&](const char* name, const auto& columns, int count,
                                       const auto& cells) {
                    if (list++ != wanted || count == 0) return;
                    if (!std::exchange(hasBegun, true)) {
                        BeginList<PublicRecord>(table, name, columns);
                    }
                    WriteList(record, rank, count, cells);
                });
            });
        }
    }

    template <class PublicRecord>
    void BeginList(const std::string& table, const char* name,
                   const std::vector<std::string_view>& names)
    {
        std::vector<TableColumn> columns = {kPlace};
        if constexpr (kHasKey<PublicRecord>) {
            PublicRecord empty = {};
            WithKey(empty, [&columns](const char* key, auto&) { columns.push_back({key, ""}); });
        }
        columns.push_back({"i", ""});
        for (const std::string_view each : names) {
            columns.push_back({std::string(each), UnitOf(table, each)});
        }
        writer_.Begin(table + '.' + name, columns);
    }

    template <class PublicRecord, class Cells>
    void WriteList(PublicRecord& record, std::size_t rank, int count, const Cells& cells)
    {
        Cell key;
        if constexpr (kHasKey<PublicRecord>) {
            WithKey(record, [&key](const char*, auto& value) { key = ToCell(value); });
        }
        for (int i = 0; i < count; ++i) {
            BeginRow(rank);
            if constexpr (kHasKey<PublicRecord>) cells_.push_back(key);
            cells_.push_back(std::int64_t{i} + 1);
            cells(i, cells_);
            writer_.Row(cells_);
            steps_.StopIfAsked();
        }
    }

    template <class PublicRecord>
    static constexpr bool kHasKey = !std::is_same_v<PublicRecord, TMRModes>;

    // One record without a table.
    void WriteModes()
    {
        Record<TMRModes> modes;
        Check(GetAccessor(source_.reader, &ITAMURStructureReader::GetChargeAccessor)
                  ->GetModes(modes.Put()),
              "GetModes");
        writer_.Begin("Modes", ColumnsOf<TMRModes>("Modes"));
        BeginRow(0);
        VisitFields(modes.Get(), CellsOfRow(cells_));
        writer_.Row(cells_);
        WriteLists<TMRModes>("Modes", [&modes](auto&& use) { use(modes.Get(), 0); });
    }

    void WriteMessages()
    {
        const auto accessor =
            GetAccessor(source_.reader, &ITAMURStructureReader::GetMessageAccessor);
        LONG count = 0;
        Check(accessor->GetNbMessages(&count), "GetNbMessages");
        if (count == 0) return;
        writer_.Begin("Messages", std::vector<TableColumn>{kPlace, {"Message", ""}});
        for (LONG rank = 0; rank < count; ++rank) {
            BSTR text = nullptr;  // lent
            Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
            BeginRow(static_cast<std::size_t>(rank));
            cells_.push_back(ToCell(text));
            writer_.Row(cells_);
            steps_.StopIfAsked();
        }
    }

    const Source& source_;
    Steps& steps_;
    TableWriter& writer_;
    std::vector<Cell> cells_;
};

std::size_t RecordCount(ITAMURStructureReader& reader)
{
    std::size_t count = 0;
    ForEachTable(reader,
                 [&count](const auto& table) { count += static_cast<std::size_t>(table.Size()); });
    return count;
}

}  // namespace

std::string HeadingOf(const TableColumn& column)
{
    return column.unit.empty() ? column.name : column.name + " [" + std::string(column.unit) + ']';
}

void WriteModelTables(const Source& source, Steps& steps, TableWriter& writer)
{
    steps.Expect(RecordCount(source.reader));
    WriteModelSheet(source, writer);
    RecordTables(source, steps, writer).Write();
    writer.End();
}

}  // namespace tamur::host
