// One object a check; docs/check.md describes it.
#include "report.h"
#include "../json_text.h"
#include "../sums/json.h"
#include "host/file/header_names.h"

namespace tamur::tool {
namespace {

using host::Finding;
using host::Language;
using host::Severity;

Json PlaceOf(const Finding& finding)
{
    Json place = Json::object();
    if (finding.place.line != 0) place["line"] = finding.place.line;
    if (finding.place.column != 0) place["column"] = finding.place.column;
    if (finding.place.length != 0) place["length"] = finding.place.length;
    return place;
}

std::string NameOf(host::Kind kind)
{
    return kind == host::Kind::kNone ? "other" : std::string(NounOf(kind, Language::kEnglish));
}

Json CountsAsJson(const host::KindBalance& kind)
{
    Json json = {{"lines", kind.lines}, {"records", kind.records}};
    for (const auto& [code, count] : kind.dropped) json["dropped"][IdOf(code)] = count;
    return json;
}

Json BalanceAsJson(const host::Balance& balance)
{
    Json json = {{"addsUp", balance.AddsUp()},
                 {"lines", balance.lines},
                 {"cutRests", balance.cutRests},
                 {"headers", balance.headers},
                 {"beforeHeaders", balance.beforeHeaders},
                 {"otherSections", balance.foreign},
                 {"afterEnd", balance.afterEnd},
                 {"sections", Json::object()},
                 {"kinds", Json::object()}};
    for (std::size_t i = 0; i < balance.sections.size(); ++i) {
        const host::SectionBalance& section = balance.sections[i];
        if (section.inFile == 0) continue;
        json["sections"][host::DisplayOf(static_cast<SectionHeader>(i))] = {
            {"lines", section.inFile},
            {"data", section.data},
            {"empty", section.empty},
            {"notRead", section.notRead}};
    }
    for (std::size_t i = 0; i < balance.kinds.size(); ++i) {
        if (balance.kinds[i].lines == 0) continue;
        json["kinds"][NameOf(static_cast<host::Kind>(i))] = CountsAsJson(balance.kinds[i]);
    }
    return json;
}

class JsonReport final : public Report {
 public:
    JsonReport(Style style, std::ostream& out) : style_(style), out_(out)
    {
        document_["tool"] = {{"name", "tamur"}, {"version", TAMUR_VERSION}};
        document_["files"] = Json::array();
    }

    void Add(const FileReport& report) override
    {
        Json file = {{"file", report.file}, {"imported", report.WasImported()}};
        for (const Severity severity : {Severity::kError, Severity::kWarning, Severity::kNote}) {
            const std::string name = std::string(NameOf(severity, Language::kEnglish)) + 's';
            file["summary"][name] = report.findings.CountOf(severity);
        }
        file["findings"] = Json::array();
        for (const Finding& finding : report.findings.InFileOrder()) {
            file["findings"].push_back(FindingAsJson(finding));
        }
        file["notListed"] = Json::object();
        for (const auto& [code, count] : report.findings.NotHeld()) {
            file["notListed"][IdOf(code)] = count;
        }
        if (report.showsBalance) {
            file["balance"] = BalanceAsJson(report.checked.imported.balance);
        }
        if (report.showsSums && report.checked.sums) {
            file["sums"] = JsonOf(*report.checked.sums, report.checked.sections);
        }
        document_["files"].push_back(std::move(file));
    }

    void Finish() override { out_ << JsonText(document_, 2) << '\n'; }

 private:
    [[nodiscard]] Json FindingAsJson(const Finding& finding) const
    {
        const host::CodeInfo& info = host::InfoOf(finding.code);
        Json json = {{"code", IdOf(finding.code)},
                     {"name", info.name},
                     {"severity", NameOf(info.severity, Language::kEnglish)}};
        json.update(PlaceOf(finding));
        if (finding.kind != host::Kind::kNone) {
            json["kind"] = NounOf(finding.kind, Language::kEnglish);
        }
        if (finding.identifier != Finding::kNoIdentifier) json["identifier"] = finding.identifier;
        json["text"] = TextOf(finding, style_.language);
        json["values"] = finding.values;
        return json;
    }

    Style style_;
    std::ostream& out_;
    Json document_;
};

}  // namespace

std::unique_ptr<Report> MakeJsonReport(Style style, std::ostream& out)
{
    return std::make_unique<JsonReport>(style, out);
}

}  // namespace tamur::tool
