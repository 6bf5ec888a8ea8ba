// What every group of measurements gets.
#pragma once

#include <cstdint>
#include <string>

#include "generator.h"
#include "report.h"
#include "runner.h"

namespace tamur::bench {

struct Context {
    ModelFiles& files;
    Report& report;
    bool isQuick;
    int rounds;

    // The sizes that the goals speak of, or smaller ones for a quick run.
    [[nodiscard]] std::uint64_t Large() const { return isQuick ? 100000 : 1000000; }
    [[nodiscard]] std::uint64_t Huge() const { return Large() * 5; }
    [[nodiscard]] std::uint64_t Small() const { return Large() / 10; }
};

// A row for the quotient of two medians.
[[nodiscard]] Row Ratio(std::string what, const Samples& above, const Samples& below);

// The groups. Each adds its rows to the report.
void MeasureImport(Context& context);
void MeasureMemory(Context& context);
void MeasureAccessors(Context& context);
void MeasureScaling(Context& context);
void MeasureHostileFiles(Context& context);
void MeasureThreads(Context& context);

}  // namespace tamur::bench
