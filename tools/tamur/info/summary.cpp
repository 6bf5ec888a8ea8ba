#include "summary.h"

#include <algorithm>

#include "../import.h"
#include "../tables.h"
#include "host/rules/check_model.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::tool {
namespace {

constexpr std::size_t kMessages = 10;

// Makes a box grow over every point that a record holds, by the types of its fields.
class PointsOfRecord {
 public:
    explicit PointsOfRecord(BoundingBox& box) : box_(box) {}

    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            Add(value);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            std::for_each_n(values, count, [this](const TMR3DPnt& point) { Add(point); });
        }
    }

 private:
    void Add(const TMR3DPnt& point)
    {
        TMR3DPnt &low = box_.low, &high = box_.high;
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }

    BoundingBox& box_;
};

void AddSums(const Imported& imported, host::Findings& findings, ModelSummary& summary)
{
    const host::Structure structure = host::ReadStructure(*imported.reader);
    const host::LoadCases cases = host::ReadLoadCases(*imported.reader);
    host::CheckModel(structure, cases, imported.lines, findings);
    summary.sums = host::SumsOf(structure, cases);
    for (const host::Section& section : structure.sections) {
        summary.sections.push_back(section.name);
    }
}

}  // namespace

ModelSummary Summarize(const std::string& componentPath, const Input& input,
                       host::Language language)
{
    host::Findings findings(0);
    const Imported imported = Import(componentPath, input, language, findings);
    ITAMURStructureReader& reader = *imported.reader;
    ModelSummary summary;
    summary.file = input.Name();
    summary.version = imported.version;
    summary.servicePack = imported.servicePack;
    summary.settings = StructureData(reader);
    AddSums(imported, findings, summary);
    for (std::size_t i = 0; i < summary.findings.size(); ++i) {
        summary.findings[i] = findings.CountOf(kSeverities[i]);
    }
    VisitStructure(reader, [&summary](const auto& table) {
        for (auto record : table) VisitFields(record.Get(), PointsOfRecord(summary.box));
    });
    const auto count = [&summary](const auto& table) {
        summary.counts.push_back({table.Name(), table.PlainName(), table.Size()});
    };
    VisitStructure(reader, count);
    VisitLoads(reader, count);
    summary.skippedCombinations = SkippedCombinations(reader);
    summary.messages = FirstMessages(reader, kMessages);
    return summary;
}

}  // namespace tamur::tool
