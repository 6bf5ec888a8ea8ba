// What it takes to write a model for ParaView and as glTF.
#include "building_file.h"
#include "component_subject.h"
#include "context.h"
#include "export_subject.h"
#include "fresh_process.h"
#include "generator.h"
#include "host/export/export.h"

namespace tamur::bench {

void Export(ITAMURStructureReader& reader, std::string_view target)
{
    const TemporaryPath output;
    host::ImportedFile file;
    reader.AddRef();
    *file.reader.Put() = &reader;
    host::Findings findings(1);
    host::ExportReport report;
    host::ExportModel("model", file, findings, *host::FindTarget(target),
                      {.output = output.Get(), .wanted = {}, .mayReplace = true}, report);
}

namespace {

void AddRows(Context& context, const std::string& what, const std::filesystem::path& path,
             double mostVtu, double mostGlb)
{
    const auto reader = Imported(path);
    const auto write = [&reader](std::string_view target) {
        return [&reader, target] { return Timed([&] { Export(*reader, target); }); };
    };
    const auto samples =
        context.Measure({write("vtu"), write("glb"), [&] { return TimeImport(path); }});
    context.report.Add({.what = what + ": vtu / import",
                        .samples = Quotients(samples[0], samples[2]),
                        .must = mostVtu});
    context.report.Add({.what = what + ": glb / import",
                        .samples = Quotients(samples[1], samples[2]),
                        .must = mostGlb});
}

void AddMemory(Context& context, const BuildingFile& building)
{
    constexpr double kMost = 3;
    for (const char* target : {"vtu", "glb"}) {
        const double peak = ImportInFreshProcess(building.Path(), target).peakBytes;
        context.report.Add(
            {.what = std::string("frame building: peak memory of import and ") + target + " / file",
             .samples = {peak / building.Bytes()},
             .must = kMost});
    }
}

}  // namespace

void MeasureExports(Context& context)
{
    const BuildingFile building(context.Large());
    AddRows(context, "frame building", building.Path(), 5, 8);
    AddMemory(context, building);
    // No two elements have a point in common.
    const ModelFile random({.elements = context.Large()});
    AddRows(context, "elements anywhere in a building", random.Path(), kNoGoal, kNoGoal);
}

}  // namespace tamur::bench
