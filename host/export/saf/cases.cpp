#include <tamur/ranges.h>

#include <algorithm>
#include <cmath>
#include <iterator>

#include "host/export/saf/model.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kActions = {
    LossType::kAssumed,
    {"kinds of actions follow from the codes of cases: G or P permanent, W or V wind, N snow, T "
     "temperature, A accidental, others variable; durations are short",
     "les natures d'actions suivent des codes des cas : G ou P permanente, W ou V vent, N neige, T "
     "température, A accidentelle, sinon variable ; les durées sont courtes"}};
constexpr LossText kEmptyCase = {
    LossType::kPartly,
    {"a modal or seismic case is an empty case: its parameters are not written",
     "un cas modal ou sismique est un cas vide : ses paramètres ne sont pas écrits"}};
constexpr LossText kParameters = {
    LossType::kNot,
    {"spectra and parameters have no columns", "les spectres et paramètres n'ont pas de colonnes"}};
constexpr LossText kTooMany = {
    LossType::kNot,
    {"a combination of more than 99 cases, or one without a case that can be combined",
     "une combinaison de plus de 99 cas, ou sans cas qui puisse être combiné"}};
constexpr LossText kMultipliedOut = {LossType::kPartly,
                                     {"combinations of combinations are multiplied out",
                                      "les combinaisons de combinaisons sont développées"}};
constexpr LossText kOfEnvelopes = {LossType::kNot,
                                   {"a combination of envelopes cannot be said",
                                    "une combinaison d'enveloppes ne peut pas être dite"}};
constexpr LossText kEnvelope = {
    LossType::kPartly,
    {"an envelope of load cases is one of their sums, as their groups allow; its quantities and "
     "parameters are not written",
     "une enveloppe de cas est celle de leurs sommes, selon leurs groupes ; ses grandeurs et "
     "paramètres ne sont pas écrits"}};
constexpr LossText kEnvelopeOfOthers = {
    LossType::kNot,
    {"the format has envelopes of load cases only",
     "le format ne connaît que des enveloppes de cas de charge"}};
constexpr LossText kSecondOfNumber = {
    LossType::kPartly,
    {"of several cases with one number references mean the first",
     "de plusieurs cas de même numéro les références désignent le premier"}};

struct Action {
    const char* group;  // its name
    const char* groupType;
    const char* loadType;  // of the group when it is variable
    const char* action;
    const char* caseType;
};
constexpr Action kPermanent = {"Permanent", "Permanent", "", "Permanent", "Others"};
constexpr Action kVariable = {"Variable", "Variable", "Domestic", "Variable", "Static"};
constexpr Action kWind = {"Wind", "Variable", "Wind", "Variable", "Wind"};
constexpr Action kSnow = {"Snow", "Variable", "Snow", "Variable", "Snow"};
constexpr Action kTemperature = {"Temperature", "Variable", "Temperature", "Variable",
                                 "Temperature"};
constexpr Action kAccidental = {"Accidental", "Accidental", "", "Accidental", "Others"};
constexpr Action kSeismic = {"Seismic", "Seismic", "", "Variable", "Seismic"};
constexpr Action kDynamic = {"Dynamic", "Variable", "Domestic", "Variable", "Dynamic"};

const Action& ActionOf(CaseType type, const std::string& code)
{
    if (type == CaseType::kSeismic) return kSeismic;
    if (type == CaseType::kModal) return kDynamic;
    if (type == CaseType::kThermal) return kTemperature;
    switch (code.empty() ? ' ' : code[0]) {
        case 'G':
        case 'P': return kPermanent;
        case 'W':
        case 'V': return kWind;
        case 'N': return kSnow;
        case 'T': return kTemperature;
        case 'A': return kAccidental;
        default: return kVariable;
    }
}

bool IsMadeOfCases(CaseType type)
{
    return type == CaseType::kCombination || type == CaseType::kEnvelope;
}

constexpr std::size_t kMostCases = 99;  // that a row combines

class Cases {
 public:
    explicit Cases(Model& model) : model_(model), cases_(model.source.cases) {}

    void Write()
    {
        const auto records = Records<TMRCas>(model_.source.reader);
        for (std::size_t i = 0; i < cases_.cases.size(); ++i) {
            const LoadCase& loadCase = cases_.cases[i];
            const std::string code = ToUtf8(ViewOf(records.At(static_cast<LONG>(i))->Code));
            codes_.try_emplace(loadCase.number, code);
            if (!IsMadeOfCases(loadCase.type)) WriteCase(loadCase, code);
        }
        WriteCombinations();
        model_.report.losses.Add(
            Kind::kSeismicCase, kParameters,
            static_cast<std::size_t>(Records<TMRChargeSismique>(model_.source.reader).Size()));
    }

 private:
    void WriteCase(const LoadCase& loadCase, const std::string& code)
    {
        const Action& action = ActionOf(loadCase.type, code);
        const std::string otherwise = "LC" + std::to_string(loadCase.number);
        const std::string name = names_.Take("", otherwise);
        if (name != otherwise) model_.report.losses.Add(Kind::kCase, kSecondOfNumber);
        model_.cases.try_emplace(loadCase.number, name);
        model_.report.losses.Add(Kind::kCase, kActions);
        if (loadCase.type == CaseType::kModal || loadCase.type == CaseType::kSeismic) {
            model_.report.losses.Add(Kind::kCase, kEmptyCase);
        }
        WriteGroup(action);
        const bool isWeight = model_.selfWeightCases.contains(loadCase.number);
        const bool isVariable = std::string_view(action.action) == "Variable";
        Row row;
        row.Text(name).Text(loadCase.title);
        row.Text(isWeight ? kPermanent.action : action.action);
        if (isWeight) WriteGroup(kPermanent);
        row.Text(isWeight ? kPermanent.group : action.group);
        row.Text(isWeight ? "Self weight" : action.caseType);
        row.Text(isVariable && !isWeight ? "Short" : "");
        row.Text(model_.ids.Take(Kind::kCase, loadCase.number));
        model_.book.Add(model_.layouts.loadCase, row);
    }

    void WriteGroup(const Action& action)
    {
        if (!groups_.insert(action.group).second) return;
        const bool isPermanent = std::string_view(action.groupType) == "Permanent";
        Row row;
        row.Text(action.group).Text(action.groupType).Text(isPermanent ? "Together" : "Standard");
        row.Text(action.loadType).Skip();
        model_.book.Add(model_.layouts.loadGroup, row);
    }

    using Sum = std::map<int, double>;  // factors by the numbers of cases

    // Adds a case that is multiplied by a factor; false when it cannot be said.
    bool AddTo(Sum& sum, int number, double factor, int depth)
    {
        const auto found = cases_.byNumber.find(number);
        if (found == cases_.byNumber.end()) return true;  // it has no loads either
        const CaseType type = cases_.cases[found->second].type;
        if (type == CaseType::kEnvelope) return false;
        if (type != CaseType::kCombination) {
            sum[number] += factor;
            return sum.size() <= kMostCases;
        }
        const auto known = combinations_.find(number);
        if (known == combinations_.end() || depth > kDeepest || stepsLeft_ == 0) return false;
        --stepsLeft_;
        const Combined& combined = *known->second;
        for (std::size_t i = 0; i < combined.cases.size(); ++i) {
            if (!AddTo(sum, combined.cases[i], factor * combined.factors[i], depth + 1)) {
                return false;
            }
        }
        return true;
    }

    // What rows have, gathered first: the longest decides how many columns there are.
    struct Ready {
        const Combined* combined;
        Kind kind;
        Sum sum;
    };

    void WriteCombinations()
    {
        stepsLeft_ = 10000 + 100 * cases_.combinations.size();
        for (const Combined& each : cases_.combinations) {
            combinations_.try_emplace(each.number, &each);
        }
        std::vector<Ready> ready;
        for (const Combined& each : cases_.combinations) AddCombination(each, ready);
        for (const Combined& each : cases_.envelopes) AddEnvelope(each, ready);
        std::size_t most = 0;
        for (const Ready& each : ready) most = std::max(most, each.sum.size());
        layout_ = {"StructuralLoadCombination", {"Name", "Description", "Category", "Type"}};
        for (std::size_t i = 1; i <= most; ++i) {
            const std::string number = std::to_string(i);
            layout_.headings.push_back("Load Factor " + number);
            layout_.headings.push_back("Multiplier " + number);
            layout_.headings.push_back("Load Case name " + number);
        }
        layout_.headings.emplace_back("Id");
        for (const Ready& each : ready) WriteCombination(each, most);
    }

    void AddCombination(const Combined& combined, std::vector<Ready>& ready)
    {
        Losses& losses = model_.report.losses;
        Ready each{&combined, Kind::kCombination, {}};
        for (std::size_t i = 0; i < combined.cases.size(); ++i) {
            if (!AddTo(each.sum, combined.cases[i], combined.factors[i], 0)) {
                losses.Add(Kind::kCombination,
                           each.sum.size() > kMostCases ? kTooMany : kOfEnvelopes);
                return;
            }
        }
        if (each.sum.empty()) return losses.Add(Kind::kCombination, kTooMany);
        const bool isNested =
            std::any_of(combined.cases.begin(), combined.cases.end(),
                        [this](int number) { return combinations_.contains(number); });
        if (isNested) losses.Add(Kind::kCombination, kMultipliedOut);
        ready.push_back(std::move(each));
    }

    void AddEnvelope(const Combined& envelope, std::vector<Ready>& ready)
    {
        Ready each{&envelope, Kind::kEnvelope, {}};
        for (const int number : envelope.cases) {
            if (!model_.cases.contains(number) || each.sum.size() == kMostCases) {
                return model_.report.losses.Add(Kind::kEnvelope, kEnvelopeOfOthers);
            }
            each.sum[number] = 1;
        }
        if (each.sum.empty()) {
            return model_.report.losses.Add(Kind::kEnvelope, kEnvelopeOfOthers);
        }
        model_.report.losses.Add(Kind::kEnvelope, kEnvelope);
        ready.push_back(std::move(each));
    }

    void WriteCombination(const Ready& ready, std::size_t most)
    {
        const int number = ready.combined->number;
        const auto found = cases_.byNumber.find(number);
        const std::string title =
            found == cases_.byNumber.end() ? std::string() : cases_.cases[found->second].title;
        Row row;
        row.Text(combinationNames_.Take("", "CO" + std::to_string(number))).Text(title);
        row.Text(CategoryOf(codes_[number]));
        row.Text(ready.kind == Kind::kEnvelope ? "Envelope" : "Linear");
        for (const auto& [loadCase, factor] : ready.sum) {
            row.Number(factor).Number(1).Text(model_.cases[loadCase]);
        }
        row.Skip(3 * (most - ready.sum.size())).Text(model_.ids.Take(ready.kind, number));
        model_.book.Add(layout_, row);
    }

    static const char* CategoryOf(const std::string& code)
    {
        if (code.starts_with("ELU")) return "ULS (Ultimate Limit State)";
        if (code.starts_with("ELS")) return "SLS (Serviceability Limit State)";
        if (code.starts_with("ACC")) return "ALS (Accidental Limit State)";
        return "Not defined";
    }

    static constexpr int kDeepest = 50;

    Model& model_;
    const LoadCases& cases_;
    Layout layout_;
    Names names_, combinationNames_;
    std::unordered_set<std::string> groups_;
    std::map<int, std::string> codes_;
    std::map<int, const Combined*> combinations_;
    std::size_t stepsLeft_ = 0;
};

}  // namespace

void WriteCases(Model& model)
{
    Cases(model).Write();
}

}  // namespace tamur::host::saf
