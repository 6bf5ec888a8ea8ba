#include "host/diff/model_diff.h"

#include <tamur/ranges.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_set>

#include "host/diff/compared_records.h"

namespace tamur::host {
namespace {

std::vector<std::pair<int, int>> GroupsOf(ITAMURStructureReader& reader)
{
    std::vector<std::pair<int, int>> groups;
    for (const auto& group : Records<TMRGroupe>(reader)) {
        groups.emplace_back(group->Elem, group->Num);
    }
    return groups;
}

ComPtr<ITMRChargeAccessor> LoadsOf(ITAMURStructureReader& reader)
{
    return GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor);
}

int SkippedCombinations(ITAMURStructureReader& reader)
{
    int count = 0;
    Check(LoadsOf(reader)->GetNbCombinaisonsSkipped(&count), "GetNbCombinaisonsSkipped");
    return count;
}

long long DisabledCombinations(ITAMURStructureReader& reader)
{
    std::unordered_set<int> cases;
    for (const auto& loadCase : Records<TMRCas>(reader)) cases.insert(loadCase->Num);
    long long count = 0;
    for (const auto& combination : Records<TMRCombinaison>(reader)) {
        count += cases.contains(combination->iNumCas) ? 0 : 1;
    }
    return count;
}

std::vector<std::string> SortedMessages(ITAMURStructureReader& reader)
{
    const auto accessor = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(accessor->GetNbMessages(&count), "GetNbMessages");
    std::vector<std::string> texts;
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR text = nullptr;  // lent
        Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
        texts.push_back(ToUtf8(ViewOf(text)));
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

std::vector<std::string> Without(const std::vector<std::string>& texts,
                                 const std::vector<std::string>& others)
{
    std::vector<std::string> left;
    std::set_difference(texts.begin(), texts.end(), others.begin(), others.end(),
                        std::back_inserter(left));
    return left;
}

TMRStructureData SettingsOf(ITAMURStructureReader& reader)
{
    TMRStructureData settings = {};
    Check(reader.GetStructureGlobalData(&settings), "GetStructureGlobalData");
    return settings;
}

Record<TMRModes> ModesOf(ITAMURStructureReader& reader)
{
    Record<TMRModes> modes;
    Check(LoadsOf(reader)->GetModes(modes.Put()), "GetModes");
    return modes;
}

}  // namespace

bool ModelDiff::IsEmpty() const
{
    return settings.empty() && modes.empty() && messagesAdded.empty() && messagesRemoved.empty() &&
           skippedCombinations.before == skippedCombinations.after &&
           disabledCombinations.before == disabledCombinations.after &&
           std::all_of(tables.begin(), tables.end(),
                       [](const TableDiff& table) { return table.Changes().empty(); });
}

ModelDiff Compare(ITAMURStructureReader& before, ITAMURStructureReader& after, double tolerance)
{
    const auto comparing = std::make_shared<Comparing>(tolerance);
    comparing->groupsBefore = GroupsOf(before);
    comparing->groupsAfter = GroupsOf(after);

    ModelDiff diff;
    FieldComparison fields(comparing->tolerance, comparing->identities);
    TMRStructureData settingsBefore = SettingsOf(before), settingsAfter = SettingsOf(after);
    diff.settings = fields.Compare(settingsBefore, settingsAfter);
    Record<TMRModes> modesBefore = ModesOf(before), modesAfter = ModesOf(after);
    diff.modes = fields.Compare(modesBefore.Get(), modesAfter.Get());

    // What is referred to comes first in the contract, so that the others find it compared.
    const auto add = [&](std::unique_ptr<ComparedTables> tables) {
        diff.tables.emplace_back(std::move(tables), comparing->identities);
    };
    ForEachTableType([&](auto table) {
        using PublicRecord = typename decltype(table)::PublicRecord;
        add(std::make_unique<ComparedRecords<PublicRecord>>(before, after, comparing));
    });

    diff.skippedCombinations = {SkippedCombinations(before), SkippedCombinations(after)};
    diff.disabledCombinations = {DisabledCombinations(before), DisabledCombinations(after)};
    const auto messagesBefore = SortedMessages(before), messagesAfter = SortedMessages(after);
    diff.messagesAdded = Without(messagesAfter, messagesBefore);
    diff.messagesRemoved = Without(messagesBefore, messagesAfter);
    return diff;
}

}  // namespace tamur::host
