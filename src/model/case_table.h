// The load cases and what is asked of them by number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/text.h"

namespace tamur {

namespace case_type {
inline constexpr std::uint8_t kDisabled = 0;
inline constexpr std::uint8_t kStatic = 1;
inline constexpr std::uint8_t kCombination = 2;
inline constexpr std::uint8_t kModal = 3;
inline constexpr std::uint8_t kSeismic = 4;
inline constexpr std::uint8_t kEnvelope = 9;
inline constexpr std::uint8_t kSelfWeight = 12;  // static, carries self-weight
inline constexpr std::uint8_t kThermal = 13;     // static, carries thermal loads
}  // namespace case_type

struct LoadCase {
    std::int32_t number = 0;
    std::uint8_t type = 0;
    Text title;
    Text code;
};

// Load cases in the order of the file. Numbers may repeat: lookups find the first, disabling
// hits all. No lookup walks the table, nor the cases of one number again and again.
class CaseTable {
 public:
    void Clear();
    void Append(const LoadCase& loadCase) { cases_.push_back(loadCase); }

    // Ends the filling: gives back spare capacity and makes the lookups work.
    void Finish();

    [[nodiscard]] const std::vector<LoadCase>& Cases() const { return cases_; }

    // The type of the first case of that number; 0 when there is none or it is disabled.
    [[nodiscard]] std::uint8_t GetCasType(std::int32_t number) const;

    void DisableCas(std::int32_t number);

    // The first case of that number whose type is `type` or static; null when there is none.
    [[nodiscard]] LoadCase* FindCarrier(std::int32_t number, std::uint8_t type);

 private:
    // The cases of one number: places [begin, end) of byNumber_.
    struct Run {
        std::int32_t number;
        std::uint32_t begin;
        std::uint32_t end;
        // Where the search for a carrier of each kind goes on: what was passed never qualifies
        // again, because types only change from static to a kind of load, or to disabled.
        std::uint32_t nextSelfWeight;
        std::uint32_t nextThermal;
    };

    [[nodiscard]] const Run* FindRun(std::int32_t number) const;

    std::vector<LoadCase> cases_;
    std::vector<std::uint32_t> byNumber_;  // ranks, ascending by number and then by rank
    std::vector<Run> runs_;                // ascending by number
};

}  // namespace tamur
