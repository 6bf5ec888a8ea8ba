#include <tamur/ranges.h>

#include <array>

#include "host/export/saf/cross_sections.h"
#include "host/export/saf/labels.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kNoLength = {LossType::kNot,
                                {"a bar without a length, or with coordinates that cannot be meant",
                                 "un filaire sans longueur, ou aux coordonnées impossibles"}};
constexpr LossText kTwoShapes = {
    LossType::kPartly,
    {"sections of different shapes at both ends: the first one is written",
     "sections de formes différentes aux deux bouts : la première est écrite"}};
constexpr LossText kTooManyNodes = {
    LossType::kPartly,
    {"more inner nodes than a cell holds: they are not written",
     "plus de nœuds intermédiaires qu'une cellule n'en contient : ils ne sont pas écrits"}};
constexpr LossText kMesh = {LossType::kPartly,
                            {"mesh steps, and remarks of the import, are not written",
                             "les pas de maillage et les remarques de l'import ne sont pas "
                             "écrits"}};
constexpr LossText kAxes = {
    LossType::kAssumed,
    {"axes of bars: z is upwards or towards the orientation node, then turned by the angle that "
     "the file writes, without the quarter that the import adds",
     "axes des filaires : z est vers le haut ou vers le nœud d'orientation, puis tourné de l'angle "
     "que le fichier écrit, sans le quart de tour que l'import ajoute"}};
constexpr LossText kTruss = {LossType::kAssumed,
                             {"Tirant is Tension only, Barre is Axial force only",
                              "un Tirant est Tension only, une Barre Axial force only"}};
constexpr LossText kRelaxation = {
    LossType::kAssumed,
    {"a relaxation along x leaves ux free", "une relaxation selon x libère ux"}};

// Left and right of the format are those of y, which leads to the left.
const char* SystemLineOf(TMRFilaireExcentration excentration)
{
    constexpr std::array<const char*, 9> kLines = {"Top right", "Right",  "Bottom right",
                                                   "Top",       "Centre", "Bottom",
                                                   "Top left",  "Left",   "Bottom left"};
    const auto place = static_cast<std::size_t>(excentration);
    return place < kLines.size() ? kLines[place] : "Centre";
}

class Bars {
 public:
    explicit Bars(Model& model)
        : model_(model),
          structure_(model.structure),
          records_(Records<TMRFilaire>(model.source.reader)),
          sections_(model)
    {
    }

    void Write()
    {
        model_.bars.resize(structure_.bars.size());
        for (std::size_t i = 0; i < structure_.bars.size(); ++i) {
            if (model_.Takes(structure_.bars[i])) WriteBar(i);
            model_.report.steps.Do();
        }
    }

 private:
    void WriteBar(std::size_t place)
    {
        const Bar& bar = structure_.bars[place];
        const auto record = records_.At(static_cast<LONG>(bar.rank));
        const auto frame = FrameOf(bar, *record);
        if (!bar.isUsable || bar.start == bar.end || !frame) return model_.Lose(bar, kNoLength);
        const std::string name = NameOfElement(model_, names_, bar, record->ElemLabels, "B");
        model_.bars[place] = name;
        CountLosses(bar, *record);

        const Index material = bar.material == kNone ? 0 : bar.material;
        const Index start = bar.startSection == kNone ? 0 : bar.startSection;
        const Index end = bar.endSection == kNone ? 0 : bar.endSection;
        std::string varying;
        if (start != end) {
            const auto found = sections_.NameOfVarying(start, end, material);
            if (!found) model_.Lose(bar, kTwoShapes);
            varying = found.value_or("");
        }
        const bool isVertical = std::abs(frame->x.z) > 1 - kVertical;
        Row row;
        row.Text(name).Text(isVertical ? "Column" : bar.IsTruss() ? "General" : "Beam");
        row.Text(sections_.NameOf(start, material)).Text(varying);
        row.Text(model_.PointName(bar.start) + "; " + model_.PointName(bar.end)).Text("Line");
        row.Text(InnerNodesOf(place)).Number(bar.length).Text("Line").Text("z by vector");
        row.Number(AngleAsWritten(*record)).Point(frame->z);
        row.Text(SystemLineOf(record->Excentration));
        row.Number(0).Number(0).Number(0).Number(0).Text(model_.LayerOf(2, bar.group));
        row.Text(bar.type == BarType::kTirant  ? "Tension only"
                 : bar.type == BarType::kBarre ? "Axial force only"
                                               : "Standard");
        row.Skip().Text(model_.ids.Take(Kind::kBar, bar.identifier));
        model_.book.Add(model_.layouts.bar, row);
        WriteHinges(bar, name);
    }

    // Before it is turned.
    std::optional<Frame> FrameOf(const Bar& bar, const TMRFilaire& record) const
    {
        const Segment axis = {{record.startPoint.x, record.startPoint.y, record.startPoint.z},
                              {record.endPoint.x, record.endPoint.y, record.endPoint.z}};
        return FrameOfAxis(axis, model_.NodeAt(bar.orientationNode));
    }

    void CountLosses(const Bar& bar, const TMRFilaire& record)
    {
        model_.Lose(bar, kAxes);
        if (bar.IsTruss()) model_.Lose(bar, kTruss);
        if (record.MeshStep != 0 || record.ErrorMessage != nullptr) model_.Lose(bar, kMesh);
        if (((bar.releasedAtStart | bar.releasedAtEnd) & RELAXATION_X) != 0) {
            model_.Lose(bar, kRelaxation);
        }
    }

    std::string InnerNodesOf(std::size_t place)
    {
        std::string list;
        for (const Stop& stop : structure_.stops[place]) {
            const Bar& bar = structure_.bars[place];
            if (stop.point == bar.start || stop.point == bar.end) continue;
            AddToList(list, model_.PointName(stop.point));
        }
        if (list.size() <= Workbook::kLongestText) return list;
        model_.Lose(structure_.bars[place], kTooManyNodes);
        return "";
    }

    void WriteHinges(const Bar& bar, const std::string& name)
    {
        if (bar.releasedAtStart == bar.releasedAtEnd) {
            return WriteHinge(bar, name, "Both", bar.releasedAtStart, 0);
        }
        WriteHinge(bar, name, "Begin", bar.releasedAtStart, 0);
        WriteHinge(bar, name, "End", bar.releasedAtEnd, 1);
    }

    void WriteHinge(const Bar& bar, const std::string& name, const char* position,
                    std::uint8_t released, int part)
    {
        if ((released & (ROTULE | RELAXATION_X)) == 0) return;
        const auto freedom = [released](int bit) {
            return (released & bit) != 0 ? "Free" : "Rigid";
        };
        Row row;
        row.Text(hingeNames_.Take("", "H" + std::to_string(++hingeCount_))).Text(name);
        row.Text(position).Text(freedom(RELAXATION_X)).Text("Rigid").Text("Rigid");
        row.Text(freedom(ROTULE_X)).Text(freedom(ROTULE_Y)).Text(freedom(ROTULE_Z));
        row.Skip(7).Text(model_.ids.Take(Kind::kRelease, bar.identifier, part));
        model_.book.Add(model_.layouts.hinge, row);
    }

    Model& model_;
    const Structure& structure_;
    Range<TMRFilaire> records_;
    CrossSections sections_;
    Names names_, hingeNames_;
    std::size_t hingeCount_ = 0;
};

}  // namespace

void WriteBars(Model& model)
{
    Bars(model).Write();
}

}  // namespace tamur::host::saf
