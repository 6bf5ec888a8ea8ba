// Models with load cases, and what the tests ask of them.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "support/model_text.h"

namespace tamur::test {

// A model with those "#Cas" lines and those "#TAB_PARAM_CAS" lines.
inline ModelText LoadModel(const std::vector<std::string>& cases,
                           const std::vector<std::string>& parameters)
{
    return ModelText().Section("#Cas", cases).Section("#TAB_PARAM_CAS", parameters);
}

inline ComPtr<ITMRChargeAccessor> Loads(ITAMURStructureReader& reader)
{
    return GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor);
}

inline Record<TMRModes> ModesOf(ITAMURStructureReader& reader)
{
    Record<TMRModes> modes;
    Check(Loads(reader)->GetModes(modes.Put()), "GetModes");
    return modes;
}

inline int SkippedOf(ITAMURStructureReader& reader)
{
    int count = -1;
    Check(Loads(reader)->GetNbCombinaisonsSkipped(&count), "GetNbCombinaisonsSkipped");
    return count;
}

// The numbers of the cases that hosts see, in order.
inline std::vector<int> CaseNumbersOf(ITAMURStructureReader& reader)
{
    std::vector<int> numbers;
    for (const auto& loadCase : Cas(reader)) numbers.push_back(loadCase->Num);
    return numbers;
}

// The values of a block; none for a count of 0 or below.
template <class Value>
std::vector<Value> Values(const Value* values, int count)
{
    return std::vector<Value>(values, values + std::max(count, 0));
}

}  // namespace tamur::test
