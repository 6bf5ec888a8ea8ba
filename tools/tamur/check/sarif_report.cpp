// SARIF 2.1.0, which code hosts and editors show beside the lines.
#include "report.h"
#include "sarif_uri.h"
#include "../json_text.h"

namespace tamur::tool {
namespace {

using host::Finding;
using host::Language;
using host::Severity;

std::string_view LevelOf(Severity severity)
{
    return NameOf(severity, Language::kEnglish);  // SARIF has the same three words
}

// SARIF wants sentences.
Json MessageOf(std::string text)
{
    return {{"text", std::move(text) + '.'}};
}

// The text with its marks as people read them: "{1}" is any value.
std::string GeneralText(const host::CodeInfo& info, Language language)
{
    std::string text;
    const std::string_view marked = info.texts[static_cast<int>(language)];
    for (std::size_t i = 0; i < marked.size(); ++i) {
        if (marked[i] == '{') {
            text += "…";
            i += 2;
        } else {
            text += marked[i];
        }
    }
    return text;
}

class SarifReport final : public Report {
 public:
    SarifReport(Style style, std::ostream& out) : style_(style), out_(out) {}

    void Add(const FileReport& report) override
    {
        const std::string uri = SarifUriOf(report.file);
        for (const Finding& finding : report.findings.InFileOrder()) {
            results_.push_back(ResultOf(finding, uri));
        }
        artifacts_.push_back({{"location", {{"uri", uri}}}});
        wasImported_ = wasImported_ && report.WasImported();
    }

    void Finish() override
    {
        Json driver = {{"name", "tamur"}, {"semanticVersion", TAMUR_VERSION}, {"rules", Rules()}};
        Json run = {{"tool", {{"driver", std::move(driver)}}},
                    {"language", style_.language == Language::kFrench ? "fr-FR" : "en-US"},
                    {"columnKind", "utf16CodeUnits"},  // a byte of the file is a character
                    {"invocations", Json::array({{{"executionSuccessful", wasImported_}}})},
                    {"artifacts", std::move(artifacts_)},
                    {"results", std::move(results_)}};
        const Json document = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                               {"version", "2.1.0"},
                               {"runs", Json::array({std::move(run)})}};
        out_ << JsonText(document, 2) << '\n';
    }

 private:
    [[nodiscard]] Json Rules() const
    {
        Json rules = Json::array();
        for (const host::CodeInfo& info : host::AllCodes()) {
            rules.push_back({{"id", IdOf(info.code)},
                             {"name", info.name},
                             {"shortDescription", MessageOf(GeneralText(info, style_.language))},
                             {"defaultConfiguration", {{"level", LevelOf(info.severity)}}}});
        }
        return rules;
    }

    [[nodiscard]] Json ResultOf(const Finding& finding, const std::string& uri) const
    {
        Json location = {{"artifactLocation", {{"uri", uri}}}};
        if (finding.place.line != 0) location["region"] = RegionOf(finding.place);
        return {{"ruleId", IdOf(finding.code)},
                {"level", LevelOf(host::InfoOf(finding.code).severity)},
                {"message", MessageOf(TextOf(finding, style_.language))},
                {"locations", Json::array({{{"physicalLocation", std::move(location)}}})}};
    }

    static Json RegionOf(const host::Place& place)
    {
        Json region = {{"startLine", place.line}};
        if (place.column != 0) region["startColumn"] = place.column;
        region["endLine"] = place.line;
        if (place.column != 0 && place.length != 0) {
            region["endColumn"] = place.column + place.length;
        }
        return region;
    }

    Style style_;
    std::ostream& out_;
    Json results_ = Json::array();
    Json artifacts_ = Json::array();
    bool wasImported_ = true;
};

}  // namespace

std::unique_ptr<Report> MakeSarifReport(Style style, std::ostream& out)
{
    return std::make_unique<SarifReport>(style, out);
}

}  // namespace tamur::tool
