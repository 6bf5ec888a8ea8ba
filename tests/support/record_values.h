// What records hold, in forms that compare and print.
#pragma once

#include <string>
#include <vector>

#include "support/component_under_test.h"

namespace tamur::test {

// The labels, as UTF-8.
inline std::vector<std::string> TextsOf(const TMRElementLabels& labels)
{
    std::vector<std::string> texts;
    for (int i = 0; i < labels.nbLabels; ++i) texts.push_back(Utf8(labels.tabLabels[i]));
    return texts;
}

inline std::vector<double> Coordinates(const TMR3DPnt& point)
{
    return {point.x, point.y, point.z};
}

inline std::vector<double> Coordinates(const TMR3DLine& line)
{
    return {line.start.x, line.start.y, line.start.z, line.end.x, line.end.y, line.end.z};
}

inline std::vector<double> Coordinates(const TMR3DPlanarElement& polygon)
{
    std::vector<double> all;
    for (int i = 0; i < polygon.nbPoints; ++i) {
        const TMR3DPnt& point = polygon.tabPoints[i];
        all.insert(all.end(), {point.x, point.y, point.z});
    }
    return all;
}

// The warnings about load cases, as UTF-8.
inline std::vector<std::string> Messages(ITAMURStructureReader& reader)
{
    const auto accessor = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(accessor->GetNbMessages(&count), "counting messages");
    std::vector<std::string> texts;
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR text = nullptr;  // lent
        Check(accessor->GetMessageAtRank(rank, &text), "reading a message");
        texts.push_back(Utf8(text));
    }
    return texts;
}

}  // namespace tamur::test
