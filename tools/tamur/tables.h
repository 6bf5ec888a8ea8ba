// All tables of a model, the structure before the loads.
#pragma once

#include <tamur/ranges.h>

#include <type_traits>

namespace tamur::tool {

template <class PublicRecord>
inline constexpr bool kIsOfLoads =
    std::is_same_v<typename TableOf<PublicRecord>::Accessor, ITMRChargeAccessor>;

template <class Range>
using RecordOf = typename std::decay_t<Range>::PublicRecord;

// Calls visit(range) for every table but the loads.
template <class Visit>
void VisitStructure(ITAMURStructureReader& reader, Visit&& visit)
{
    ForEachTable(reader, [&](const auto& table) {
        if constexpr (!kIsOfLoads<RecordOf<decltype(table)>>) visit(table);
    });
}

// The same for the tables of the load accessor.
template <class Visit>
void VisitLoads(ITAMURStructureReader& reader, Visit&& visit)
{
    ForEachTable(reader, [&](const auto& table) {
        if constexpr (kIsOfLoads<RecordOf<decltype(table)>>) visit(table);
    });
}

// What is served but is no table of records.
[[nodiscard]] inline int SkippedCombinations(ITAMURStructureReader& reader)
{
    int count = 0;
    Check(GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor)
              ->GetNbCombinaisonsSkipped(&count),
          "GetNbCombinaisonsSkipped");
    return count;
}

[[nodiscard]] inline TMRStructureData StructureData(ITAMURStructureReader& reader)
{
    TMRStructureData data = {};
    Check(reader.GetStructureGlobalData(&data), "GetStructureGlobalData");
    return data;
}

// Calls visit(text) for every message. The texts are lent by their accessor: not to be freed.
template <class Visit>
void VisitMessages(ITAMURStructureReader& reader, Visit&& visit)
{
    const auto accessor = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(accessor->GetNbMessages(&count), "GetNbMessages");
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR text = nullptr;
        Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
        visit(ViewOf(text));
    }
}

}  // namespace tamur::tool
