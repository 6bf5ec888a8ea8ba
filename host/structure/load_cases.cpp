#include "host/structure/load_cases.h"

#include <tamur/ranges.h>

namespace tamur::host {
namespace {

template <class Value>
std::vector<Value> Copied(const Value* values, int count)
{
    if (values == nullptr || count <= 0) return {};
    return std::vector<Value>(values, values + count);
}

}  // namespace

LoadCases ReadLoadCases(ITAMURStructureReader& reader)
{
    LoadCases read;
    for (const auto& record : Records<TMRCas>(reader)) {
        read.byNumber.try_emplace(record->Num, static_cast<Index>(read.cases.size()));
        read.cases.push_back(
            {record->Num, static_cast<CaseType>(record->Type), ToUtf8(ViewOf(record->Titre))});
    }
    for (const auto& record : Records<TMRCombinaison>(reader)) {
        read.combinations.push_back({record->iNumCas, Copied(record->pNumCas, record->iNbCmb),
                                     Copied(record->pCoeff, record->iNbCmb)});
    }
    for (const auto& record : Records<TMREnveloppe>(reader)) {
        read.envelopes.push_back({record->iNumCas, Copied(record->pCases, record->iNbCases), {}});
    }
    return read;
}

}  // namespace tamur::host
