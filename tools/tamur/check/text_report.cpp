// FILE:LINE:COLUMN: severity: text [TMR123], as compilers have it, so that editors can go there.
#include "report.h"
#include "balance_text.h"
#include "../sums/text.h"
#include "host/findings/plain_text.h"

namespace tamur::tool {
namespace {

using host::Finding;
using host::Language;
using host::Severity;

constexpr std::string_view kBold = "\x1B[1m";
constexpr std::string_view kPlain = "\x1B[0m";

std::string_view ColourOf(Severity severity)
{
    switch (severity) {
        case Severity::kError: return "\x1B[1;31m";
        case Severity::kWarning: return "\x1B[1;33m";
        default: return "\x1B[1;36m";
    }
}

class TextReport final : public Report {
 public:
    TextReport(Style style, std::ostream& out) : style_(style), out_(out) {}

    void Add(const FileReport& report) override
    {
        const std::string file = host::PlainText(report.file, report.file.size());
        for (const Finding& finding : report.findings.InFileOrder()) Write(file, finding);
        for (const auto& [code, count] : report.findings.NotHeld()) WriteRest(file, code, count);
        if (report.showsBalance) {
            WriteBalance(report.checked.imported.balance, style_.language, out_);
        }
        if (report.showsSums && report.checked.sums) {
            WriteSums(*report.checked.sums, report.checked.sections, style_.language, kAllSums,
                      out_);
        }
        WriteSummary(file, report);
    }

 private:
    [[nodiscard]] bool IsFrench() const { return style_.language == Language::kFrench; }

    void Coloured(std::string_view colour, std::string_view text)
    {
        if (style_.hasColours) out_ << colour;
        out_ << text;
        if (style_.hasColours) out_ << kPlain;
    }

    void Write(const std::string& file, const Finding& finding)
    {
        std::string place = file + ':';
        if (finding.place.line != 0) place += std::to_string(finding.place.line) + ':';
        if (finding.place.column != 0) place += std::to_string(finding.place.column) + ':';
        Coloured(kBold, place);
        const Severity severity = host::InfoOf(finding.code).severity;
        out_ << ' ';
        Coloured(ColourOf(severity), NameOf(severity, style_.language));
        out_ << (IsFrench() ? " : " : ": ") << TextOf(finding, style_.language) << " ["
             << IdOf(finding.code) << "]\n";
    }

    void WriteRest(const std::string& file, host::Code code, std::size_t count)
    {
        Coloured(kBold, file + ':');
        out_ << ' '
             << (IsFrench() ? "et encore " + std::to_string(count) + " fois "
                            : "and " + std::to_string(count) + " more of ")
             << IdOf(code) << (IsFrench() ? " (--all les montre tous)\n" : " (--all lists all)\n");
    }

    void WriteSummary(const std::string& file, const FileReport& report)
    {
        Coloured(kBold, file + ':');
        std::string_view separator = " ";
        for (const Severity severity : {Severity::kError, Severity::kWarning, Severity::kNote}) {
            const std::size_t count = report.findings.CountOf(severity);
            if (count == 0) continue;
            out_ << separator << count << ' ' << NameOf(severity, style_.language)
                 << (count > 1 ? "s" : "");
            separator = ", ";
        }
        if (!report.WasImported()) {
            if (separator != " ") out_ << (IsFrench() ? " ;" : ";");
            out_ << (IsFrench() ? " non importé" : " not imported");
        } else if (separator == " ") {
            out_ << (IsFrench() ? " rien à signaler" : " nothing found");
        }
        out_ << '\n';
    }

    Style style_;
    std::ostream& out_;
};

}  // namespace

std::unique_ptr<Report> MakeTextReport(Style style, std::ostream& out)
{
    return std::make_unique<TextReport>(style, out);
}

}  // namespace tamur::tool
