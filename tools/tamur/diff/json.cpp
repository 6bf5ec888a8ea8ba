#include "json.h"

#include <array>

#include "../json_document.h"

namespace tamur::tool {
namespace {

using host::What;

constexpr std::array<const char*, host::kWhatCount> kWhatNames = {"changed", "moved", "added",
                                                                  "removed", "renumbered"};

const char* NameOf(What what)
{
    return kWhatNames[static_cast<std::size_t>(what)];
}

struct ValueToJson {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(long long number) const { return number; }
    Json operator()(double number) const { return ToJson(number); }
    Json operator()(const std::string& text) const { return text; }
    Json operator()(TMR3DPnt point) const { return ToJson(point); }
    Json operator()(const std::vector<host::Value>& values) const
    {
        Json array = Json::array();
        for (const host::Value& value : values) array.push_back(std::visit(*this, value.is));
        return array;
    }
};

Json JsonOf(const host::Value& value)
{
    return std::visit(ValueToJson(), value.is);
}

Json JsonOf(const host::Key& key)
{
    Json object = Json::object();
    for (const auto& [name, value] : key) object[name] = JsonOf(value);
    return object;
}

Json JsonOf(const std::vector<host::FieldChange>& changes)
{
    Json array = Json::array();
    for (const host::FieldChange& change : changes) {
        Json object = {{"field", change.field},
                       {"before", JsonOf(change.before)},
                       {"after", JsonOf(change.after)}};
        if (change.isTurned) object["turned"] = true;
        array.push_back(std::move(object));
    }
    return array;
}

Json JsonOf(host::Counts counts)
{
    return {{"before", counts.before}, {"after", counts.after}};
}

Json JsonOf(const DiffedFile& file)
{
    return {{"file", file.path}, {"version", file.version}};
}

Json JsonOf(const host::TableDiff& table, const host::Change& change)
{
    const host::Description description = table.Describe(change);
    Json object = {{"table", host::TableNameOf(table.TheKind())}, {"change", NameOf(change.what)}};
    object["key"] = JsonOf(change.what == What::kAdded ? description.after : description.before);
    if (change.what == What::kRenumbered) object["newKey"] = JsonOf(description.after);
    if (description.movement) object["distance"] = ToJson(description.movement->distance);
    if (!description.fields.empty()) object["fields"] = JsonOf(description.fields);
    return object;
}

Json SummaryOf(const host::ModelDiff& diff)
{
    Json summary = Json::object();
    for (const host::TableDiff& table : diff.tables) {
        if (table.Changes().empty()) continue;
        Json& counts = summary[std::string(host::TableNameOf(table.TheKind()))];
        for (int i = 0; i < host::kWhatCount; ++i) {
            const std::size_t count = table.CountOf(static_cast<What>(i));
            if (count != 0) counts[NameOf(static_cast<What>(i))] = count;
        }
    }
    return summary;
}

}  // namespace

void WriteDiffJson(const DiffResult& result, std::ostream& out)
{
    const host::ModelDiff& diff = result.model;
    JsonDocument document(out);
    document.Member("same", result.IsEmpty());
    document.Member("before", JsonOf(result.before));
    document.Member("after", JsonOf(result.after));
    document.Member("StructureGlobalData", JsonOf(diff.settings));
    document.Member("Modes", JsonOf(diff.modes));
    document.Member("NbCombinaisonsSkipped", JsonOf(diff.skippedCombinations));
    document.Member("disabledCombinations", JsonOf(diff.disabledCombinations));
    document.Member("Messages",
                    Json{{"added", diff.messagesAdded}, {"removed", diff.messagesRemoved}});
    document.Member("summary", SummaryOf(diff));
    document.BeginArray("changes");
    for (const host::TableDiff& table : diff.tables) {
        for (const host::Change& change : table.Changes()) {
            document.Element(JsonOf(table, change));
        }
    }
    document.EndArray();
    document.End();
}

}  // namespace tamur::tool
