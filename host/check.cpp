#include "host/check.h"

#include "host/rules/check_model.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::host {

Checked CheckFile(const std::string& utf8Path, Findings& findings, Structure* kept)
{
    Checked checked;
    checked.imported = ImportFile(utf8Path, findings);
    if (!checked.imported.reader) return checked;
    Structure structure = ReadStructure(*checked.imported.reader);
    const LoadCases cases = ReadLoadCases(*checked.imported.reader);
    CheckModel(structure, cases, checked.imported.lines, findings);
    checked.sums = SumsOf(structure, cases);
    for (const Section& section : structure.sections) checked.sections.push_back(section.name);
    if (kept != nullptr) *kept = std::move(structure);
    return checked;
}

}  // namespace tamur::host
