// The forms in which a model can be written.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "host/export/losses.h"
#include "host/export/output.h"
#include "host/export/selection.h"
#include "host/export/steps.h"
#include "host/file/imported_file.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::host {

// The model that is written.
struct Source {
    std::string name;  // of its file, for people
    const ImportedFile& file;
    ITAMURStructureReader& reader;
    const Structure& structure;  // as much of it as the target needs
    const LoadCases& cases;
    const Selection& selection;  // what is not in it is not written, without a word of the target
    const Findings& findings;    // of the file, and of the model when the target needs them
};

// What is said of an export while and after it is made.
struct ExportReport {
    Steps steps;
    Losses losses;
};

// How much must be known of a model: each costs more time and memory than the one before it.
enum class Need {
    kPoints,    // ReadModel: elements and merged points; and the surfaces of openings
    kContacts,  // ReadStructure: what touches what
    kFindings,  // CheckModel too
};

struct Target {
    std::string_view name;        // "csv", for --to
    std::string_view endings[3];  // of names that mean it; the first is given where none is
    Name what;                    // for help texts
    std::string_view folderOf;    // the ending of the files when the output is a folder of them
    Need need;
    // Writes to where `output` says, after it was told what the output is to be. Throws
    // OutputError, ExportStopped and std::bad_alloc.
    void (*write)(const Source& source, const std::filesystem::path& path, Output& output,
                  ExportReport& report);
};

[[nodiscard]] std::span<const Target> AllTargets();

// By its name, and by the longest ending that fits; null when there is none.
[[nodiscard]] const Target* FindTarget(std::string_view name);
[[nodiscard]] const Target* TargetOfOutput(std::string_view outputName);

}  // namespace tamur::host
