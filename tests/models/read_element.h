// The only element of a model that has nothing else.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "models/element_lines.h"

namespace tamur::test {

// An element with its reader, which lends it the labels.
template <class PublicRecord>
class ReadElement {
 public:
    template <class Elements>
    ReadElement(ComPtr<ITAMURStructureReader> reader, const Elements& elements)
        : reader_(std::move(reader)), record_(elements.At(0))
    {
        EXPECT_EQ(elements.Size(), 1);
    }

    const PublicRecord* operator->() const { return &*record_; }

 private:
    ComPtr<ITAMURStructureReader> reader_;
    Record<PublicRecord> record_;
};

inline ReadElement<TMRNode> NodeOf(const std::string& line)
{
    const auto reader = ImportedElements({line});
    return {reader, Nodes(*reader)};
}

inline ReadElement<TMROuverture> OpeningOf(const std::string& line)
{
    const auto reader = ImportedElements({line});
    return {reader, Ouvertures(*reader)};
}

inline ReadElement<TMRSurfacique> SurfaceOf(const std::string& line)
{
    const auto reader = ImportedElements({line});
    return {reader, Surfaciques(*reader)};
}

}  // namespace tamur::test
