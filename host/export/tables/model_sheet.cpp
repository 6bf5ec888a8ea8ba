#include <tamur/ranges.h>

#include "host/export/tables/model_tables.h"
#include "host/sums/sums.h"

namespace tamur::host {
namespace {

constexpr std::string_view kForceNames[] = {"Fx", "Fy", "Fz", "Mx", "My", "Mz"};
constexpr std::string_view kMassNames[] = {"Mx", "My", "Mz", "Ix", "Iy", "Iz"};

class ModelSheet {
 public:
    ModelSheet(const Source& source, TableWriter& writer) : source_(source), writer_(writer) {}

    void Write()
    {
        const TableColumn columns[] = {{"What", ""},  {"Of", ""},   {"Name", ""},
                                       {"Value", ""}, {"Unit", ""}, {"Line", ""}};
        writer_.Begin("Model", columns);
        WriteSettings();
        WriteCounts();
        WriteSums();
        WriteFindings();
    }

 private:
    void Row(Cell what, Cell of, Cell name, Cell value, std::string unit = "", Cell line = {})
    {
        const Cell cells[] = {std::move(what),  std::move(of),   std::move(name),
                              std::move(value), std::move(unit), std::move(line)};
        writer_.Row(cells);
    }

    void WriteSettings()
    {
        TMRStructureData data = {};
        Check(source_.reader.GetStructureGlobalData(&data), "GetStructureGlobalData");
        const auto row = [this](std::string name, Cell value, std::string unit = "") {
            Row("setting", {}, std::move(name), std::move(value), std::move(unit));
        };
        row("file", source_.name);
        row("version", source_.file.version);
        if (source_.file.servicePack >= 0) row("SP", std::int64_t{source_.file.servicePack});
        row("tol3D", data.tol3D, "m");
        row("espaceDeTravail", static_cast<std::int64_t>(data.espaceDeTravail));
        row("rigideEnFlexion", static_cast<std::int64_t>(data.rigideEnFlexion));
        int skipped = 0;
        Check(GetAccessor(source_.reader, &ITAMURStructureReader::GetChargeAccessor)
                  ->GetNbCombinaisonsSkipped(&skipped),
              "GetNbCombinaisonsSkipped");
        row("NbCombinaisonsSkipped", std::int64_t{skipped});
    }

    void WriteCounts()
    {
        ForEachTable(source_.reader,
                     [this](const auto& table) { WriteCount(table.Name(), table.Size()); });
    }
    void WriteCount(const std::string& table, LONG size)
    {
        Row("records", {}, table, static_cast<std::int64_t>(size));
        const std::size_t left = source_.selection.LeavesOut(KindOfTable(table));
        if (left != 0) Row("not selected", {}, table, static_cast<std::int64_t>(left));
    }

    // Of the whole model, whatever is selected.
    void WriteSums()
    {
        const Sums sums = SumsOf(source_.structure, source_.cases);
        const std::string whole = source_.selection.IsAll() ? "" : " of the whole model";
        for (const CaseSum& sum : sums.cases) {
            for (const auto& [frame, forces] : sum.byFrame) {
                const std::string of =
                    "case " + std::to_string(sum.number) + ", frame " + std::to_string(frame);
                for (std::size_t i = 0; i < forces.size(); ++i) {
                    Row("sum of loads" + whole, of, std::string(kForceNames[i]), forces[i],
                        i < 3 ? "N" : "N.m");
                }
            }
        }
        for (std::size_t i = 0; i < sums.masses.size(); ++i) {
            Row("sum of masses" + whole, {}, std::string(kMassNames[i]), sums.masses[i]);
        }
        for (const auto& [sections, length] : sums.lengths) {
            Row("length of bars" + whole, "section " + PlaceOf(sections.first),
                "section " + PlaceOf(sections.second), length, "m");
        }
        for (const auto& [thickness, area] : sums.areas) {
            Row("area of surfaces" + whole, "thickness", thickness, area, "m2");
        }
    }
    static std::string PlaceOf(Index section)
    {
        return section == kNone ? "-" : std::to_string(section + 1);
    }

    void WriteFindings()
    {
        for (const Finding& finding : source_.findings.InFileOrder()) {
            Row(std::string(NameOf(InfoOf(finding.code).severity, Language::kEnglish)),
                IdOf(finding.code), {}, TextOf(finding, Language::kEnglish), "",
                finding.place.line == 0 ? Cell()
                                        : Cell(static_cast<std::int64_t>(finding.place.line)));
        }
        for (const auto& [code, count] : source_.findings.NotHeld()) {
            Row("further findings", IdOf(code), {}, static_cast<std::int64_t>(count));
        }
    }

    const Source& source_;
    TableWriter& writer_;
};

}  // namespace

void WriteModelSheet(const Source& source, TableWriter& writer)
{
    ModelSheet(source, writer).Write();
}

}  // namespace tamur::host
