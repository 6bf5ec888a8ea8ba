// What every group of measurements gets.
#pragma once

#include <cstdint>

#include "report.h"
#include "runner.h"

namespace tamur::bench {

struct Context {
    bool isQuick = false;
    Report report;

    // The sizes that the goals speak of, or smaller ones for a quick run.
    [[nodiscard]] std::uint64_t Large() const { return isQuick ? 100000 : 1000000; }
    [[nodiscard]] std::uint64_t Huge() const { return Large() * 5; }
    [[nodiscard]] std::uint64_t Small() const { return Large() / 10; }

    [[nodiscard]] std::vector<Samples> Measure(const std::vector<Subject>& subjects) const
    {
        return MeasureInTurns(subjects, isQuick ? Effort{5, 0.05} : Effort{7, 0.2});
    }
};

// The groups. Each adds its rows to the report.
void MeasureImport(Context& context);
void MeasureObserver(Context& context);
void MeasureMemory(Context& context);
void MeasureAccessors(Context& context);
void MeasureScaling(Context& context);
void MeasureHostileFiles(Context& context);
void MeasureRepeatedImports(Context& context);
void MeasureThreads(Context& context);
void MeasureCheck(Context& context);
void MeasureExports(Context& context);

}  // namespace tamur::bench
