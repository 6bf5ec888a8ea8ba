// What it takes to make a structure of a model and to apply every rule to it.
#include "building_file.h"
#include "component_subject.h"
#include "context.h"
#include "generator.h"
#include "host/rules/check_model.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::bench {
namespace {

// As `tamur check` holds them.
constexpr std::size_t kHeldFindings = 100;

void AddRow(Context& context, const std::string& what, const std::filesystem::path& path,
            double must)
{
    const auto reader = Imported(path);
    const auto read = [&reader] { return Timed([&] { Keep(host::ReadStructure(*reader)); }); };
    const auto check = [&reader] {
        return Timed([&] {
            host::Findings findings(kHeldFindings);
            host::CheckModel(*reader, {}, findings);
            Keep(findings);
        });
    };
    const auto samples = context.Measure({check, read, [&] { return TimeImport(path); }});
    context.report.Add({.what = what + ": structure and rules / import",
                        .samples = Quotients(samples[0], samples[2]),
                        .must = must});
    context.report.Add(
        {.what = what + ": structure / import", .samples = Quotients(samples[1], samples[2])});
}

}  // namespace

void MeasureCheck(Context& context)
{
    const BuildingFile building(context.Large());
    AddRow(context, "frame building", building.Path(), 3);
    // Nothing meets where it should, and every surface lies on others.
    const ModelFile random({.elements = context.Small()});
    AddRow(context, "elements anywhere in a building", random.Path(), kNoGoal);
}

}  // namespace tamur::bench
