// How much the tests try of what takes far longer on one platform than on the other.
#pragma once

#include <cstddef>

namespace tamur::test {

// Of the places where a file or its memory may fail, every so many is tried.
extern const std::size_t kEvery;

// Lines that are read by the component's scanner and by the standard stream.
extern const int kStreamedLines;

// Of the changes of the seed models, every so many is imported with an observer.
extern const std::size_t kEveryAuditedChange;

}  // namespace tamur::test
