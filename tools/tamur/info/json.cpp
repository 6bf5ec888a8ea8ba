#include "json.h"

#include <new>

#include "../import.h"
#include "../json_value.h"
#include "../sums/json.h"

namespace tamur::tool {
namespace {

Json ListOf(const TMR3DPnt& point)
{
    return {ToJson(point.x), ToJson(point.y), ToJson(point.z)};
}

Json JsonOf(const MessageList& messages)
{
    Json list = Json::array();
    for (const CountedMessage& message : messages.first) {
        list.push_back({{"text", message.text}, {"count", message.count}});
    }
    return list;
}

}  // namespace

Json JsonOf(const ModelSummary& summary)
{
    Json json = {{"file", summary.file}, {"imported", true}, {"version", summary.version}};
    json["servicePack"] = summary.servicePack < 0 ? Json() : Json(summary.servicePack);
    json["settings"] = {{"tolerance", ToJson(summary.settings.tol3D)},
                        {"workSpace", static_cast<int>(summary.settings.espaceDeTravail)},
                        {"rigidInBending", summary.settings.rigideEnFlexion == TMRStructureRigide}};
    json["extent"] = nullptr;
    if (!summary.box.IsEmpty()) {
        json["extent"] = {{"low", ListOf(summary.box.low)}, {"high", ListOf(summary.box.high)}};
    }
    for (const TableCount& table : summary.counts) json["counts"][table.table] = table.count;
    json["skippedCombinations"] = summary.skippedCombinations;
    json["messages"] = JsonOf(summary.messages);
    json["furtherMessages"] = summary.messages.further;
    for (std::size_t i = 0; i < summary.findings.size(); ++i) {
        const auto name = std::string(host::NameOf(kSeverities[i], host::Language::kEnglish)) + 's';
        json["findings"][name] = summary.findings[i];
    }
    json["sums"] = JsonOf(summary.sums, summary.sections);
    return json;
}

Json JsonOfFailure(const std::string& file)
{
    Json json = {{"file", file}, {"imported", false}};
    try {
        throw;
    } catch (const NoModel& error) {
        if (!error.Code().empty()) json["code"] = error.Code();
        json["reason"] = error.Why();
    } catch (const std::bad_alloc&) {
        json["reason"] = "not enough memory";
    } catch (const std::exception& error) {
        json["reason"] = error.what();
    }
    return json;
}

}  // namespace tamur::tool
