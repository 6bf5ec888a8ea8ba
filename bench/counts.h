// How many records of each kind something read from a model file.
#pragma once

#include <TAMURReader.h>

#include <array>
#include <cstdint>
#include <string>

namespace tamur::bench {

struct Counts {
    std::array<std::int64_t, 23> elements = {};  // by kind
    std::int64_t groups = 0;
    std::int64_t materials = 0;
    std::int64_t sections = 0;
    std::int64_t releases = 0;
    std::int64_t cases = 0;
    std::int64_t combinations = 0;
    std::int64_t envelopes = 0;
    std::int64_t seismicCases = 0;

    bool operator==(const Counts&) const = default;
};

[[nodiscard]] Counts CountsOf(ITAMURStructureReader& reader);

// Ends the program with a message when a reference did not read what the component read: its
// times would mean nothing.
void RequireSame(const Counts& component, const Counts& reference, const std::string& name);

}  // namespace tamur::bench
