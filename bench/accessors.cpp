// What reading the model through the accessors costs. Single calls are short, so Google Benchmark
// runs them; its random interleaving takes the place of the rounds.
#include <benchmark/benchmark.h>
#include <tamur/ranges.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <vector>

#include "component_subject.h"
#include "context.h"

namespace tamur::bench {
namespace {

// The sizes of what a record holds: strings with length and NUL, blocks as they are.
class Sizes {
 public:
    template <class PublicRecord>
    void AddRecord(PublicRecord& record)
    {
        VisitFields(record, *this);
        all_.push_back(kEndOfRecord);
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
            benchmark::DoNotOptimize(blocks);
            for (std::size_t i = 0; i < count; ++i) std::free(blocks[i]);
            count = 0;
        }
    }

 private:
    static constexpr std::size_t kEndOfRecord = ~std::size_t{0};

    std::vector<std::size_t> all_;
};

// Runs what was registered, in turns, and keeps the processor time of every run by name.
class Collector : public benchmark::BenchmarkReporter {
 public:
    explicit Collector(int rounds)
    {
        std::string repetitions = "--benchmark_repetitions=" + std::to_string(rounds);
        std::string interleaving = "--benchmark_enable_random_interleaving=true";
        std::string time = "--benchmark_min_time=0.1";
        std::string name = "tamur_bench";
        char* arguments[] = {name.data(), repetitions.data(), interleaving.data(), time.data()};
        int count = 4;
        benchmark::Initialize(&count, arguments);
        benchmark::RunSpecifiedBenchmarks(this);
        benchmark::ClearRegisteredBenchmarks();
    }

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            samples_[run.run_name.function_name].Add(run.GetAdjustedCPUTime());
        }
    }

    [[nodiscard]] const Samples& Of(const std::string& name) const { return samples_.at(name); }

 private:
    std::map<std::string, Samples> samples_;
};

void Register(const std::string& name, const std::function<void()>& work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) {
        for (auto _ : state) work();
    });
}

// Reading a sample of the table, record by record, and freeing each.
template <class Range>
std::function<void()> ReadAll(const Range& range, LONG count)
{
    return [&range, count] {
        for (LONG rank = 0; rank < count; ++rank) {
            const auto record = range.At(rank);
            benchmark::DoNotOptimize(record.Get());
        }
    };
}

template <class Range>
Sizes SizesOf(const Range& range, LONG count)
{
    Sizes sizes;
    for (LONG rank = 0; rank < count; ++rank) sizes.AddRecord(range.At(rank).Get());
    return sizes;
}

// Only the call is timed; freeing what it made is not.
void RegisterGetNodes(const std::string& name, ITMRNodeAccessor& accessor, LONG count)
{
    benchmark::RegisterBenchmark(name.c_str(), [&accessor, count](benchmark::State& state) {
        std::vector<TMRNode> nodes(static_cast<std::size_t>(count));
        for (auto _ : state) {
            Check(accessor.GetNodes(nodes.data()), "GetNodes");
            state.PauseTiming();
            for (TMRNode& node : nodes) CoTaskMemFree(node.ElemLabels.tabLabels);
            state.ResumeTiming();
        }
    });
}

void RegisterGetAccessor(const std::string& name, ITAMURStructureReader& reader)
{
    Register(name, [&reader] {
        benchmark::DoNotOptimize(GetAccessor(reader, &ITAMURStructureReader::GetFilaireAccessor));
    });
}

void MeasureRecords(Context& context)
{
    const auto reader = Imported(context.files.Get({.elements = context.Large()}).path);
    const auto few = Imported(context.files.Get({.elements = context.Large() / 100}).path);
    const auto bars = Filaires(*reader);
    const auto nodes = Nodes(*reader);
    const LONG barCount = bars.Size();
    const LONG nodeCount = nodes.Size();
    // As many as fill the caches with what is allocated a few times over.
    const LONG barSample = std::min<LONG>(barCount, 20000);
    const LONG nodeSample = std::min<LONG>(nodeCount, 200000);
    const Sizes barSizes = SizesOf(bars, barSample);
    const Sizes nodeSizes = SizesOf(nodes, nodeSample);

    Register("bars", ReadAll(bars, barSample));
    Register("bar sizes", [&] { barSizes.AllocateAll(); });
    Register("nodes", ReadAll(nodes, nodeSample));
    Register("node sizes", [&] { nodeSizes.AllocateAll(); });
    RegisterGetNodes("all nodes", nodes.TheAccessor(), nodeCount);
    RegisterGetAccessor("accessor", *reader);
    RegisterGetAccessor("accessor of few", *few);
    const Collector results(context.rounds);

    Row row = Ratio("GetFilaireAtRank + freeing / bare allocations", results.Of("bars"),
                    results.Of("bar sizes"));
    row.must = 1.8;
    row.aim = 1.4;
    context.report.Add(row);
    const auto addTime = [&](const char* what, const char* of, LONG count, const char* unit) {
        const Samples& samples = results.Of(of);
        context.report.Add({.what = what,
                            .measured = samples.Median() / count,
                            .unit = unit,
                            .spread = samples.Spread()});
    };
    addTime("GetFilaireAtRank + freeing", "bars", barSample, "ns/bar");
    row = Ratio("GetNodeAtRank + freeing / bare allocations", results.Of("nodes"),
                results.Of("node sizes"));
    row.must = 3;
    row.aim = 2;
    context.report.Add(row);
    addTime("GetNodeAtRank + freeing", "nodes", nodeSample, "ns/node");
    addTime("GetNodes", "all nodes", nodeCount, "ns/node");
    const Samples& accessor = results.Of("accessor");
    context.report.Add({.what = "GetFilaireAccessor, " + std::to_string(barCount) + " bars",
                        .measured = accessor.Median() / barCount,
                        .unit = "ns/bar",
                        .must = 10,
                        .spread = accessor.Spread()});
    row = Ratio("GetFilaireAccessor: many bars / a hundredth of them", accessor,
                results.Of("accessor of few"));
    row.aim = 1.2;
    context.report.Add(row);
}

void MeasureCombinations(Context& context)
{
    const auto imported = [&context](int combinations) {
        return Imported(context.files.Get({.elements = 1000, .combinations = combinations}).path);
    };
    const auto fewReader = imported(4000);
    const auto manyReader = imported(40000);
    const auto few = Combinaisons(*fewReader);
    const auto many = Combinaisons(*manyReader);
    Register("few", ReadAll(few, few.Size()));
    Register("many", ReadAll(many, many.Size()));
    const Collector results(context.rounds);
    Row row =
        Ratio("combinations by rank, a call: 40000 / 4000", results.Of("many"), results.Of("few"));
    row.measured *= static_cast<double>(few.Size()) / many.Size();
    row.must = 1.5;
    row.aim = 1.2;
    context.report.Add(row);
}

}  // namespace

void MeasureAccessors(Context& context)
{
    MeasureRecords(context);
    MeasureCombinations(context);
}

}  // namespace tamur::bench
