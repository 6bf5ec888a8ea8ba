// What reading the model through the accessors costs.
#include <tamur/ranges.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "component_subject.h"
#include "context.h"
#include "generator.h"

namespace tamur::bench {
namespace {

// The sizes of what a record holds: strings with length and NUL, blocks as they are.
class Sizes {
 public:
    template <class Range>
    Sizes(const Range& range, LONG count)
    {
        for (LONG rank = 0; rank < count; ++rank) {
            auto record = range.At(rank);
            VisitFields(record.Get(), *this);
            all_.push_back(kEndOfRecord);
        }
    }

    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            if (value == nullptr) return;
            all_.push_back(sizeof(UINT) + SysStringByteLen(value) + sizeof(OLECHAR));
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        if (values != nullptr) all_.push_back(static_cast<std::size_t>(count) * sizeof(Value));
    }

    // Allocates and frees, record by record; nothing else.
    void AllocateAll() const
    {
        void* blocks[32];
        std::size_t count = 0;
        for (const std::size_t size : all_) {
            if (size != kEndOfRecord) {
                blocks[count++] = std::malloc(size);
                continue;
            }
            Keep(blocks);
            for (std::size_t i = 0; i < count; ++i) std::free(blocks[i]);
            count = 0;
        }
    }

 private:
    static constexpr std::size_t kEndOfRecord = ~std::size_t{0};

    std::vector<std::size_t> all_;
};

// Reading the first records of the table, one by one, and freeing each.
template <class Range>
Subject Reading(const Range& range, LONG count)
{
    return [&range, count] {
        return Timed([&] {
            for (LONG rank = 0; rank < count; ++rank) Keep(range.At(rank));
        });
    };
}

Subject Allocating(const Sizes& sizes)
{
    return [&sizes] { return Timed([&] { sizes.AllocateAll(); }); };
}

// Only the call is timed; freeing what it made is not.
double TimeGetNodes(ITMRNodeAccessor& accessor, std::vector<TMRNode>& nodes)
{
    const double seconds = Timed([&] { Check(accessor.GetNodes(nodes.data()), "GetNodes"); });
    for (const TMRNode& node : nodes) CoTaskMemFree(node.ElemLabels.tabLabels);
    return seconds;
}

constexpr int kAccessors = 100000;

Subject GettingAccessors(ITAMURStructureReader& reader)
{
    return [&reader] {
        return Timed([&] {
            for (int i = 0; i < kAccessors; ++i) {
                Keep(GetAccessor(reader, &ITAMURStructureReader::GetFilaireAccessor));
            }
        });
    };
}

void AddTime(Context& context, const std::string& what, const Samples& seconds, double records,
             const char* unit, double must = kNoGoal)
{
    context.report.Add(
        {.what = what, .samples = Scaled(seconds, 1e9 / records), .must = must, .unit = unit});
}

void MeasureRecords(Context& context, ITAMURStructureReader& reader)
{
    const auto bars = Filaires(reader);
    const auto nodes = Nodes(reader);
    // As many as fill the caches with what is allocated a few times over.
    const LONG barCount = std::min<LONG>(bars.Size(), 20000);
    const LONG nodeCount = std::min<LONG>(nodes.Size(), 200000);
    const Sizes barSizes(bars, barCount), nodeSizes(nodes, nodeCount);
    std::vector<TMRNode> all(static_cast<std::size_t>(nodes.Size()));
    const auto samples = context.Measure({Reading(bars, barCount), Allocating(barSizes),
                                          Reading(nodes, nodeCount), Allocating(nodeSizes),
                                          [&] { return TimeGetNodes(nodes.TheAccessor(), all); }});
    context.report.Add({"GetFilaireAtRank + freeing / bare allocations",
                        Quotients(samples[0], samples[1]), 1.8, 1.4});
    AddTime(context, "GetFilaireAtRank + freeing", samples[0], barCount, "ns/bar");
    context.report.Add(
        {"GetNodeAtRank + freeing / bare allocations", Quotients(samples[2], samples[3]), 3, 2});
    AddTime(context, "GetNodeAtRank + freeing", samples[2], nodeCount, "ns/node");
    AddTime(context, "GetNodes", samples[4], nodes.Size(), "ns/node");
}

void MeasureGetAccessor(Context& context, ITAMURStructureReader& reader)
{
    const auto few = Imported(ModelFile({.elements = context.Large() / 100}).Path());
    const LONG bars = Filaires(reader).Size();
    const auto samples = context.Measure({GettingAccessors(reader), GettingAccessors(*few)});
    AddTime(context, "GetFilaireAccessor, " + std::to_string(bars) + " bars", samples[0],
            double{kAccessors} * bars, "ns/bar", 10);
    context.report.Add({"GetFilaireAccessor: many bars / a hundredth of them",
                        Quotients(samples[0], samples[1]), kNoGoal, 1.2});
}

void MeasureCombinations(Context& context)
{
    const auto imported = [](int combinations) {
        return Imported(ModelFile({.elements = 1000, .combinations = combinations}).Path());
    };
    const auto fewReader = imported(4000);
    const auto manyReader = imported(40000);
    const auto few = Combinaisons(*fewReader);
    const auto many = Combinaisons(*manyReader);
    const double share = static_cast<double>(few.Size()) / many.Size();
    const auto samples = context.Measure({Reading(many, many.Size()), Reading(few, few.Size())});
    context.report.Add({"combinations by rank, a call: 40000 / 4000",
                        Scaled(Quotients(samples[0], samples[1]), share), 1.5, 1.2});
}

}  // namespace

void MeasureAccessors(Context& context)
{
    const auto reader = Imported(ModelFile({.elements = context.Large()}).Path());
    MeasureRecords(context, *reader);
    MeasureGetAccessor(context, *reader);
    MeasureCombinations(context);
}

}  // namespace tamur::bench
