#include <algorithm>
#include <cstddef>
#include <vector>

#include "import/loads/case_parameters.h"

namespace tamur {
namespace {

// A combined case and its factor. The place keeps equal cases in the order of the line: sorting by
// it needs no memory, as a stable sort would.
struct Term {
    std::int32_t caseNumber = 0;
    double factor = 0;
    std::size_t place = 0;
};

constexpr std::int32_t kEndOfList = 32767;

// Reads the terms; false when one names a case that is missing or disabled.
bool ReadTerms(StreamScanner& tokens, const Model& model, const ModelFile& file,
               std::vector<Term>& terms)
{
    for (;;) {
        Term term;
        tokens >> term.caseNumber;
        if (!tokens.Failed() && term.caseNumber == kEndOfList) return true;
        tokens >> term.factor;
        if (tokens.Failed()) {
            file.Report(Finding::kCombinationUnended);
            return true;
        }
        if (model.cases.GetCasType(term.caseNumber) == case_type::kDisabled) return false;
        term.place = terms.size();
        terms.push_back(term);
    }
}

// One term a case, ascending; a case that is named again adds to its factor.
void MergeTerms(std::vector<Term>& terms)
{
    std::sort(terms.begin(), terms.end(), [](const Term& a, const Term& b) {
        return a.caseNumber != b.caseNumber ? a.caseNumber < b.caseNumber : a.place < b.place;
    });
    std::size_t last = 0;
    for (std::size_t i = 1; i < terms.size(); ++i) {
        if (terms[i].caseNumber == terms[last].caseNumber) {
            terms[last].factor += terms[i].factor;
        } else {
            terms[++last] = terms[i];
        }
    }
    terms.resize(std::min(terms.size(), last + 1));
}

}  // namespace

void ReadCombination(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                     const ModelFile& file)
{
    if (model.cases.GetCasType(caseNumber) == case_type::kDisabled) {
        file.Report(Finding::kCombinationOfNoCase);
        return;
    }
    std::vector<Term> terms;
    if (!ReadTerms(tokens, model, file, terms)) {
        model.cases.DisableCas(caseNumber);
        ++model.skippedCombinations;
        file.Report(Finding::kCombinationSkipped);
        return;
    }
    if (terms.empty()) return;
    MergeTerms(terms);
    std::int32_t* const cases = model.arena.Array<std::int32_t>(terms.size());
    double* const factors = model.arena.Array<double>(terms.size());
    for (std::size_t i = 0; i < terms.size(); ++i) {
        cases[i] = terms[i].caseNumber;
        factors[i] = terms[i].factor;
    }
    model.combinations.Append({.cases = cases,
                               .factors = factors,
                               .termCount = static_cast<std::int32_t>(terms.size()),
                               .caseNumber = caseNumber});
}

}  // namespace tamur
