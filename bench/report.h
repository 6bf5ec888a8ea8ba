// The results of a run: one table for people, JSON for programs.
#pragma once

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "runner.h"

namespace tamur::bench {

enum class Better { kLower, kHigher };

// Every comparison with it is false.
inline constexpr double kNoGoal = std::numeric_limits<double>::quiet_NaN();

struct Row {
    std::string what;
    Samples samples;  // the figure is their median
    double must = kNoGoal;
    double aim = kNoGoal;
    std::string unit = "x";
    Better better = Better::kLower;
};

class Report {
 public:
    void Add(Row row);
    // A fact about the run, for the JSON and the head of the table.
    void AddFact(std::string name, std::string value);

    void Print() const;
    // Throws std::runtime_error when the file cannot be written.
    void WriteJson(const std::string& path) const;

    // Whether every row keeps what it must.
    [[nodiscard]] bool IsGood() const;

 private:
    std::vector<std::pair<std::string, std::string>> facts_;
    std::vector<Row> rows_;
};

}  // namespace tamur::bench
