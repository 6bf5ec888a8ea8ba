// What an export says otherwise than the model, or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/kinds.h"
#include "host/language.h"

namespace tamur::host {

enum class LossType : std::uint8_t {
    kNot,      // the records are not in the output
    kPartly,   // a part of each is missing, or is said otherwise
    kAssumed,  // nothing is missing, if what is assumed is true
};

// Targets have theirs as constants.
struct LossText {
    LossType type;
    Name why;
};

struct Loss {
    Kind kind;  // of the records; kNone when it is about the model as a whole
    const LossText* text;
    std::size_t count;  // of records
};

class Losses {
 public:
    // `text` must outlive it.
    void Add(Kind kind, const LossText& text, std::size_t count = 1);

    // By type, then by kind, then as they were added.
    [[nodiscard]] std::vector<Loss> InOrder() const;

 private:
    std::vector<Loss> losses_;
};

}  // namespace tamur::host
