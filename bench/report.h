// The results of a run: one table for people, JSON for programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tamur::bench {

enum class Better { kLower, kHigher };

struct Row {
    std::string what;
    double measured = 0;
    std::string unit = "x";
    std::optional<double> must = std::nullopt;
    std::optional<double> aim = std::nullopt;
    Better better = Better::kLower;
    double spread = 0;  // relative; of the noisier side of a ratio
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
