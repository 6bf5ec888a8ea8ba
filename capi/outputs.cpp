// What is written of a model: in the forms of other programs, and as a page.
#include <tamur/tamur.h>

#include <sstream>

#include "guarded.h"
#include "host/export/export.h"
#include "host/structure/structure.h"
#include "host/view/page.h"
#include "host_text.h"
#include "model.h"
#include "tools/tamur/export/summary.h"

namespace tamur::capi {
namespace {

const host::Target& TargetOf(const char* kind, const std::string& output)
{
    const bool isGiven = kind != nullptr && *kind != '\0';
    const host::Target* const target =
        isGiven ? host::FindTarget(kind) : host::TargetOfOutput(output);
    if (target != nullptr) return *target;
    std::string names;
    for (const host::Target& known : host::AllTargets()) names += " " + std::string(known.name);
    throw Failure(TAMUR_WRONG_CALL,
                  isGiven
                      ? std::string(kind) + " is none of:" + names
                      : "what to write does not follow from the output's name; there are:" + names);
}

host::Wanted WantedOf(const TamurExportOptions& options)
{
    Need(options.case_count == 0 || options.cases != nullptr, "no cases");
    Need(options.group_count == 0 || options.groups != nullptr, "no groups");
    return {.cases = {options.cases, options.cases + options.case_count},
            .groups = {options.groups, options.groups + options.group_count}};
}

std::string Export(const TamurModel& model, const std::string& name, const std::string& output,
                   const TamurExportOptions& options)
{
    const host::Target& target = TargetOf(options.kind, output);
    host::Findings findings = *model.findings;
    host::ExportReport report;
    try {
        host::ExportModel(name, model.imported, findings, target,
                          {.output = host::PathOf(output),
                           .wanted = WantedOf(options),
                           .mayReplace = options.replace != 0,
                           .isChecked = true},
                          report);
    } catch (const host::OutputError& error) {
        throw Failure(TAMUR_NOT_WRITTEN, error.what());
    } catch (const host::NotInModel& error) {
        throw Failure(TAMUR_WRONG_CALL, error.what());
    }
    std::ostringstream summary;
    tool::WriteSummary(report.losses, host::Language::kEnglish, summary);
    return std::move(summary).str();
}

void NeedChecked(const TamurModel* model)
{
    Need(model != nullptr, "no model");
    Need(model->findings.has_value(), "the model was opened without a check");
}

}  // namespace
}  // namespace tamur::capi

using namespace tamur;
using namespace tamur::capi;

int32_t TamurExport(TamurModel* model, const char* name, const char* output,
                    const TamurExportOptions* options, char** summary, TamurError* error)
{
    return Guarded(error, [&] {
        Need(name != nullptr && output != nullptr && *output != '\0', "no name, or no output");
        Need(summary != nullptr, "no place for the summary");
        *summary = nullptr;
        NeedChecked(model);
        const std::lock_guard lock(model->mutex);
        const TamurExportOptions all = {};
        *summary = TextForHost(Export(*model, name, output, options != nullptr ? *options : all));
    });
}

int32_t TamurView(TamurModel* model, const char* name, char** page, TamurError* error)
{
    return Guarded(error, [&] {
        Need(name != nullptr && page != nullptr, "no name, or no place for the page");
        *page = nullptr;
        NeedChecked(model);
        const std::lock_guard lock(model->mutex);
        const host::Structure structure = host::ReadStructure(*model->imported.reader);
        *page =
            TextForHost(host::view::PageOf({name, model->imported, structure, *model->findings}));
    });
}
