#include <tamur/ranges.h>

#include <algorithm>

#include "host/export/saf/model.h"
#include "host/export/writers.h"

namespace tamur::host {
namespace saf {
namespace {

constexpr LossText kUnknown = {LossType::kNot,
                               {"the format has nothing like it", "le format n'a rien de tel"}};
constexpr LossText kNoCase = {
    LossType::kNot,
    {"an imposed displacement needs a support and a load case, and has no case",
     "un déplacement imposé demande un appui et un cas de charge, et n'a pas de cas"}};
constexpr LossText kGroups = {
    LossType::kPartly,
    {"groups are layers of bars and surfaces, by their titles; others are not written",
     "les groupes sont des calques de filaires et surfaciques, par leurs titres ; d'autres ne sont "
     "pas écrits"}};
constexpr LossText kReleases = {
    LossType::kPartly,
    {"releases are hinges of the ends of bars; titles and what is not used are not written",
     "les attaches sont des articulations d'extrémités ; titres et attaches inutilisées ne sont "
     "pas écrits"}};
constexpr LossText kSections = {
    LossType::kPartly,
    {"sections are written with the materials of the bars that have them; others are not",
     "les sections sont écrites avec les matériaux des filaires qui les ont ; les autres non"}};
constexpr LossText kModes = {LossType::kNot,
                             {"parameters of the modal analysis have no place",
                              "les paramètres de l'analyse modale n'ont pas de place"}};
constexpr LossText kSettings = {
    LossType::kPartly,
    {"settings (tolerance, space, rigidity) are not written; EC-Standard-EN is given as the code",
     "les réglages (tolérance, espace, rigidité) ne sont pas écrits ; EC-Standard-EN est donné "
     "comme code"}};
constexpr LossText kUnits = {
    LossType::kAssumed,
    {"newtons, metres and degrees; z is up; unit masses are unit weights by 9.81 m/s\u00B2",
     "newtons, mètres et degrés ; z est vers le haut ; les masses volumiques sont les poids par "
     "9,81 m/s\u00B2"}};

void Count(Model& model, std::span<const Element> elements, const LossText& text)
{
    for (const Element& element : elements) {
        if (model.Takes(element)) model.Lose(element, text);
    }
}

void CountLoads(Model& model, std::span<const Load> loads, const LossText& text)
{
    for (const Load& load : loads) {
        if (model.Takes(load)) model.Lose(load, text);
    }
}

// What people are told after the export stands in the workbook too.
std::string NotesOf(const Losses& losses)
{
    constexpr const char* kWords[] = {"not written", "in part", "assumed"};
    std::string notes;
    for (const Loss& loss : losses.InOrder()) {
        if (!notes.empty()) notes += '\n';
        notes += kWords[static_cast<int>(loss.text->type)];
        notes += ": ";
        if (loss.kind != Kind::kNone) {
            notes += std::string(NounOf(loss.kind, Language::kEnglish)) + " (" +
                     std::to_string(loss.count) + "): ";
        }
        notes += loss.text->why.In(Language::kEnglish);
    }
    return notes;
}

void WriteModelSheet(Model& model)
{
    const std::string name = Utf8Of(PathOf(model.source.name).filename());
    model.book.AddTurned("Project", {{"Name", name}});
    model.book.AddTurned("Model", {{"Name", name},
                                   {"Description", NotesOf(model.report.losses)},
                                   {"Source type", "Structural analysis model"},
                                   {"Source application", "tamur"},
                                   {"SAF Version", "2.2.0"},
                                   {"Global coordinate system", "Z vertical"},
                                   {"LCS of cross-section", "ZYX"},
                                   {"System of units", "Metric"},
                                   {"National code", "EC-Standard-EN"}});
}

}  // namespace

void CountWhatIsNotWritten(Model& model)
{
    const Structure& structure = model.structure;
    Count(model, structure.cables, kUnknown);
    Count(model, structure.cuts, kUnknown);
    Count(model, structure.constructionLines, kUnknown);
    CountLoads(model, structure.masses, kUnknown);
    CountLoads(model, structure.displacements, kNoCase);
    Losses& losses = model.report.losses;
    losses.Add(Kind::kGroup, kGroups, structure.groups.size());
    losses.Add(Kind::kRelease, kReleases, structure.releases.size());
    losses.Add(Kind::kSection, kSections, structure.sections.size());
    const auto& cases = model.source.cases.cases;
    losses.Add(Kind::kModes, kModes,
               static_cast<std::size_t>(std::count_if(
                   cases.begin(), cases.end(),
                   [](const LoadCase& each) { return each.type == CaseType::kModal; })));
    losses.Add(Kind::kNone, kSettings);
    losses.Add(Kind::kNone, kUnits);
}

}  // namespace saf

void WriteSaf(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report)
{
    saf::Book book(output.AddFile(path), report.losses);
    saf::Model model(source, report, book);
    const Structure& structure = source.structure;
    report.steps.Expect(structure.bars.size() + structure.surfaces.size() +
                        structure.supports.size() + structure.loads.size());
    NamePoints(model);
    WriteMaterials(model);
    WriteBars(model);
    WriteSurfaces(model);
    WriteSupports(model);
    FindSelfWeightCases(model);
    WriteCases(model);
    WriteLoads(model);
    WriteGroupLoads(model);
    WritePoints(model);
    CountWhatIsNotWritten(model);
    saf::WriteModelSheet(model);
    book.Close();
}

}  // namespace tamur::host
