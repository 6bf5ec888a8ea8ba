// Names of objects, by which sheets refer to each other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "host/kinds.h"

namespace tamur::host::saf {

// Gives out names, each once.
class Names {
 public:
    // `wanted` without what separates names in lists, when that leaves something that is free;
    // otherwise `otherwise`, with a number after it when that is taken too.
    [[nodiscard]] std::string Take(std::string_view wanted, const std::string& otherwise);

 private:
    std::unordered_set<std::string> taken_;
    std::unordered_map<std::string, int> lastNumbers_;  // after names that were taken
};

// "N1; N2"
void AddToList(std::string& list, const std::string& name);

// Universally unique identifiers that a record keeps from one export to the next.
class Ids {
 public:
    // Of the parts that are made of one record each has its own. Empty when that record's
    // identifier was there before.
    [[nodiscard]] std::string Take(Kind kind, std::int64_t identifier, int part = 0);

 private:
    std::unordered_set<std::string> taken_;
};

}  // namespace tamur::host::saf
