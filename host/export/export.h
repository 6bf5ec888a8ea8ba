// Writes an imported model in one of the forms that other programs read.
#pragma once

#include <filesystem>
#include <string>

#include "host/export/target.h"

namespace tamur::host {

struct ExportOptions {
    std::filesystem::path output;  // empty: the name of the model file with the target's ending,
                                   // in the current folder
    Wanted wanted;
    bool mayReplace = false;
    bool isChecked = false;  // the findings are those of the model already
};

// Of "models/hall.txt" and csv "hall-csv".
[[nodiscard]] std::filesystem::path DefaultOutput(const std::string& name, const Target& target);

// `name` is that of the model's file, in UTF-8; `findings` those of its import, to which those of
// the model are added when the target needs them. The output appears as a whole, or not at all:
// what is there already is left as it is then. Throws OutputError, NotInModel, ExportStopped,
// std::bad_alloc.
void ExportModel(const std::string& name, const ImportedFile& file, Findings& findings,
                 const Target& target, const ExportOptions& options, ExportReport& report);

}  // namespace tamur::host
