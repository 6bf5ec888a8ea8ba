#include "host/view/packed_model.h"

#include <limits>
#include <map>
#include <vector>

#include "host/view/table_columns.h"

namespace tamur::host::view {
namespace {

using Ints = std::vector<std::int32_t>;

std::int32_t PlaceOf(Index index)
{
    return index == kNone ? -1 : static_cast<std::int32_t>(index);
}

// What get(thing) is of every thing, by its rank.
template <class Thing, class Get>
Ints ByRank(const std::vector<Thing>& things, std::size_t rows, const Get& get)
{
    Ints values(rows, -1);
    for (const Thing& thing : things) {
        if (thing.rank < rows) values[thing.rank] = get(thing);
    }
    return values;
}

// The records that findings are about: found by their lines.
class RecordsAt {
 public:
    RecordsAt(const RecordLines& lines, const std::vector<Finding>& findings) : lines_(lines)
    {
        for (const Finding& finding : findings) {
            if (finding.kind != Kind::kNone) ranks_[{finding.kind, finding.place.line}] = -1;
        }
        for (int i = 1; i < kKindCount; ++i) FindRanks(static_cast<Kind>(i));
    }
    [[nodiscard]] std::int32_t RankOf(const Finding& finding) const
    {
        const auto found = ranks_.find({finding.kind, finding.place.line});
        return found == ranks_.end() || finding.place.line == 0 ? -1 : found->second;
    }

 private:
    void FindRanks(Kind kind)
    {
        const auto first = ranks_.lower_bound({kind, 0});
        if (first == ranks_.end() || first->first.first != kind) return;
        const std::vector<std::uint32_t>& lines = lines_.Of(kind);
        for (std::size_t rank = 0; rank < lines.size(); ++rank) {
            const auto found = ranks_.find({kind, lines[rank]});
            if (found != ranks_.end()) found->second = static_cast<std::int32_t>(rank);
        }
    }

    const RecordLines& lines_;
    std::map<std::pair<Kind, std::uint32_t>, std::int32_t> ranks_;
};

class Packer {
 public:
    explicit Packer(const ViewedModel& model) : model_(model), reader_(*model.file.reader) {}

    std::string Pack()
    {
        ForEachTable(reader_, [this](const auto& table) { AddTable(table); });
        AddSettings();
        AddModes();
        AddMessages();
        AddFindings();
        AddNotHeld();
        AddFile();
        return Join();
    }

 private:
    template <class Table>
    void AddTable(const Table& table)
    {
        TableColumns columns(texts_, points_);
        const LONG size = table.Size();
        for (LONG rank = 0; rank < size; ++rank) {
            auto record = table.At(rank);
            columns.Add(record.Get());
        }
        FinishTable(KindOfTable(table.Name()), table.Name(), static_cast<std::size_t>(size),
                    columns);
    }
    void FinishTable(Kind kind, const char* name, std::size_t rows, TableColumns& columns)
    {
        AddDerived(kind, columns, rows);
        columns.AddInts("line", LinesOf(kind, rows));
        Write(name, columns);
    }

    // What the structure knows and no field says.
    void AddDerived(Kind kind, TableColumns& columns, std::size_t rows)
    {
        const Structure& structure = model_.structure;
        const auto addOfBars = [&](const char* name, const char* table, Index Bar::*place) {
            columns.AddInts(
                name,
                ByRank(structure.bars, rows, [&](const Bar& bar) { return PlaceOf(bar.*place); }),
                table);
        };
        if (kind == Kind::kBar) {
            addOfBars("StartSection", "Sections", &Bar::startSection);
            addOfBars("EndSection", "Sections", &Bar::endSection);
            addOfBars("StartConnection", "Attaches", &Bar::startRelease);
            addOfBars("EndConnection", "Attaches", &Bar::endRelease);
            addOfBars("FilaireMaterial", "Materials", &Bar::material);
        } else if (kind == Kind::kSurface) {
            columns.AddInts(
                "SurfaciqueMaterial",
                ByRank(structure.surfaces, rows,
                       [](const Surface& surface) { return PlaceOf(surface.material); }),
                "Materials");
        } else if (kind == Kind::kOpening) {
            const auto surfaceOf = [&](const Surface& opening) {
                const Index index = opening.surface;
                return index == kNone ? -1 : PlaceOf(structure.surfaces[index].rank);
            };
            columns.AddInts("surface", ByRank(structure.openings, rows, surfaceOf), "Surfaciques");
        }
        AddCondition(kind, columns, rows);
        AddCarrier(kind, columns, rows);
    }
    // The first bar or surface that a load acts on: local axes of loads are its.
    void AddCarrier(Kind kind, TableColumns& columns, std::size_t rows)
    {
        if (kind != Kind::kPointLoad && kind != Kind::kLineLoad && kind != Kind::kSurfaceLoad)
            return;
        const Structure& structure = model_.structure;
        Ints bars(rows, -1), surfaces(rows, -1);
        for (std::size_t i = 0; i < structure.loads.size(); ++i) {
            const Load& load = structure.loads[i];
            if (load.kind != kind || load.rank >= rows || structure.carriers[i].empty()) continue;
            const Member carrier = structure.carriers[i].front();
            (carrier.kind == Kind::kBar ? bars : surfaces)[load.rank] =
                static_cast<std::int32_t>(structure.ElementOf(carrier).rank);
        }
        columns.AddInts("bar", std::move(bars), "Filaires");
        columns.AddInts("surface", std::move(surfaces), "Surfaciques");
    }
    void AddCondition(Kind kind, TableColumns& columns, std::size_t rows)
    {
        if (kind != Kind::kPointSupport && kind != Kind::kLineSupport &&
            kind != Kind::kSurfaceSupport) {
            return;
        }
        Ints conditions(rows, -1);
        for (const Support& support : model_.structure.supports) {
            if (support.kind == kind && support.rank < rows) {
                conditions[support.rank] = static_cast<std::int32_t>(support.condition);
            }
        }
        columns.AddInts("condition", std::move(conditions));
    }

    [[nodiscard]] Ints LinesOf(Kind kind, std::size_t rows) const
    {
        Ints lines(rows);
        for (std::size_t rank = 0; rank < rows; ++rank) {
            lines[rank] = static_cast<std::int32_t>(model_.file.lines.At(kind, rank));
        }
        return lines;
    }

    void AddSettings()
    {
        TMRStructureData data = {};
        Check(reader_.GetStructureGlobalData(&data), "GetStructureGlobalData");
        TableColumns columns(texts_, points_);
        columns.Add(data);
        Write("StructureGlobalData", columns);
    }

    void AddModes()
    {
        Record<TMRModes> modes;
        Check(Loads()->GetModes(modes.Put()), "GetModes");
        TableColumns columns(texts_, points_);
        columns.Add(modes.Get());
        columns.AddInts("line", LinesOf(Kind::kModes, 1));
        Write("Modes", columns);
    }

    void AddMessages()
    {
        const auto accessor = GetAccessor(reader_, &ITAMURStructureReader::GetMessageAccessor);
        LONG count = 0;
        Check(accessor->GetNbMessages(&count), "GetNbMessages");
        Rows rows(*this, {"text"});
        for (LONG rank = 0; rank < count; ++rank) {
            BSTR text = nullptr;
            Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
            rows.Add({texts_.Add(text)});
        }
        rows.Write("Messages", {0});
    }

    void AddFindings()
    {
        const std::vector<Finding> findings = model_.findings.InFileOrder();
        const RecordsAt records(model_.file.lines, findings);
        Rows rows(*this, {"code", "name", "severity", "line", "column", "table", "rank",
                          "identifier", "english", "french"});
        for (const Finding& finding : findings) {
            const CodeInfo& info = InfoOf(finding.code);
            rows.Add({texts_.Add(IdOf(finding.code)), texts_.Add(std::string(info.name)),
                      static_cast<std::int32_t>(info.severity),
                      static_cast<std::int32_t>(finding.place.line),
                      static_cast<std::int32_t>(finding.place.column),
                      texts_.Add(std::string(TableNameOf(finding.kind))), records.RankOf(finding),
                      static_cast<std::int32_t>(finding.identifier),
                      texts_.Add(TextOf(finding, Language::kEnglish)),
                      texts_.Add(TextOf(finding, Language::kFrench))});
        }
        rows.Write("Findings", {0, 1, 5, 8, 9});
    }

    void AddNotHeld()
    {
        Rows rows(*this, {"code", "severity", "count"});
        for (const auto& [code, count] : model_.findings.NotHeld()) {
            rows.Add({texts_.Add(IdOf(code)), static_cast<std::int32_t>(InfoOf(code).severity),
                      static_cast<std::int32_t>(count)});
        }
        rows.Write("FindingsNotHeld", {0});
    }

    void AddFile()
    {
        int skipped = 0;
        Check(Loads()->GetNbCombinaisonsSkipped(&skipped), "GetNbCombinaisonsSkipped");
        Rows rows(*this, {"name", "version", "servicePack", "skippedCombinations"});
        rows.Add({texts_.Add(model_.name), texts_.Add(model_.file.version), model_.file.servicePack,
                  skipped});
        rows.Write("File", {0, 1});
    }

    // A table of ours, row by row. Texts are among the integers.
    class Rows {
     public:
        Rows(Packer& packer, std::vector<const char*> names)
            : packer_(packer), names_(std::move(names)), columns_(names_.size())
        {
        }
        void Add(std::initializer_list<std::int32_t> row)
        {
            std::size_t column = 0;
            for (const std::int32_t value : row) columns_[column++].push_back(value);
        }
        void Write(const char* name, const std::vector<std::size_t>& texts)
        {
            TableColumns table(packer_.texts_, packer_.points_);
            table.SetRows(columns_.front().size());
            for (std::size_t i = 0; i < names_.size(); ++i) {
                const bool isText = std::find(texts.begin(), texts.end(), i) != texts.end();
                table.AddColumn(names_[i], isText ? ColumnType::kText : ColumnType::kInt,
                                std::move(columns_[i]));
            }
            packer_.Write(name, table);
        }

     private:
        Packer& packer_;
        std::vector<const char*> names_;
        std::vector<Ints> columns_;
    };

    [[nodiscard]] ComPtr<ITMRChargeAccessor> Loads() const
    {
        return GetAccessor(reader_, &ITAMURStructureReader::GetChargeAccessor);
    }
    void Write(const char* name, const TableColumns& columns)
    {
        tables_ += (tables_.empty() ? "" : ",") + columns.Write(name, block_);
    }

    // The length of the header, the header, the bytes.
    std::string Join()
    {
        std::string header = R"({"tables":[)" + tables_ + R"(],"points":)" + points_.Write(block_);
        header += R"(,"texts":)" + block_.AddBytes(texts_.Joined()) + "}";
        std::string packed;
        packed.reserve(4 + header.size() + block_.Bytes().size());
        for (unsigned i = 0; i < 4; ++i) {
            packed += static_cast<char>((header.size() >> (8 * i)) & 0xFF);
        }
        return packed.append(header).append(block_.Bytes());
    }

    const ViewedModel& model_;
    ITAMURStructureReader& reader_;
    DataBlock block_;
    Texts texts_;
    Points points_;
    std::string tables_;
};

}  // namespace

std::string PackModel(const ViewedModel& model)
{
    return Packer(model).Pack();
}

}  // namespace tamur::host::view
