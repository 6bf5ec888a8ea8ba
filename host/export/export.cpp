#include "host/export/export.h"

#include "host/rules/check_model.h"
#include "host/structure/contacts.h"
#include "host/structure/read_model.h"

namespace tamur::host {
namespace {

// Whoever chose a part is told what that left out.
void AddNotSelected(const Selection& selection, Losses& losses)
{
    static constexpr LossText kNotSelected = {LossType::kNot, {{"not selected", "non choisi"}}};
    for (int i = 0; i < kKindCount; ++i) {
        const Kind kind = static_cast<Kind>(i);
        losses.Add(kind, kNotSelected, selection.LeavesOut(kind));
    }
}

}  // namespace

std::filesystem::path DefaultOutput(const std::string& name, const Target& target)
{
    std::filesystem::path output = PathOf(name).filename().replace_extension();
    output += PathOf(std::string(target.endings[0]));
    return output;
}

void ExportModel(const std::string& name, const ImportedFile& file, Findings& findings,
                 const Target& target, const ExportOptions& options, ExportReport& report)
{
    Output output(options.mayReplace);
    ITAMURStructureReader& reader = *file.reader;
    const bool needsContacts = target.need != Need::kPoints || !options.wanted.groups.empty();
    Structure structure = needsContacts ? ReadStructure(reader) : ReadModel(reader);
    if (!needsContacts) FindSurfacesOfOpenings(structure);
    const LoadCases cases = ReadLoadCases(reader);
    if (target.need == Need::kFindings && !options.isChecked) {
        CheckModel(structure, cases, file.lines, findings);
    }
    const Selection selection(structure, cases, options.wanted);
    const Source source{name, file, reader, structure, cases, selection, findings};
    const auto path = options.output.empty() ? DefaultOutput(name, target) : options.output;
    target.write(source, path, output, report);
    AddNotSelected(selection, report.losses);
    report.steps.StopIfAsked();
    output.Commit();
}

}  // namespace tamur::host
