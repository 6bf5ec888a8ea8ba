#include "host/findings/finding.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <system_error>
#include <utility>

#include "host/findings/plain_text.h"

namespace tamur::host {
namespace {

std::vector<CodeInfo> MakeCodes()
{
    std::vector<CodeInfo> codes = {
#define FINDING(number, name, severity, english, french) \
    {Code::k##name, #name, Severity::severity, {english, french}},
#include "host/findings/file_codes.def"
#include "host/findings/model_codes.def"
#undef FINDING
    };
    std::sort(codes.begin(), codes.end(),
              [](const CodeInfo& a, const CodeInfo& b) { return a.code < b.code; });
    return codes;
}

// The text with "{1}" and so on replaced by the values, "{0}" by the column.
std::string Fill(std::string_view text, const std::vector<std::string>& values,
                 std::string_view column)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isMark = i + 2 < text.size() && text[i] == '{' && text[i + 2] == '}';
        if (!isMark) {
            filled += text[i];
            continue;
        }
        if (text[i + 1] == '0') filled += column;
        const std::size_t value = static_cast<std::size_t>(text[i + 1] - '1');
        if (value < values.size()) filled += PlainText(values[value]);
        i += 2;
    }
    return filled;
}

// Values are what the system says in English; the common ones in that language.
std::vector<std::string> ValuesIn(const Finding& finding, Language language)
{
    std::vector<std::string> values = finding.values;
    const bool isOfSystem = finding.code == Code::kCannotOpen || finding.code == Code::kReadError;
    if (!isOfSystem || language != Language::kFrench) return values;
    static constexpr std::pair<std::errc, std::string_view> kFrench[] = {
        {std::errc::no_such_file_or_directory,
         "ce fichier ou un dossier de son chemin n'existe pas"},
        {std::errc::permission_denied, "accès refusé"},
        {std::errc::is_a_directory, "c'est un dossier"},
        {std::errc::io_error, "erreur d'entrée-sortie"},
    };
    for (const auto& [error, french] : kFrench) {
        const std::string english = std::make_error_code(error).message();
        std::replace(values.begin(), values.end(), english, std::string(french));
    }
    return values;
}

}  // namespace

const std::vector<CodeInfo>& AllCodes()
{
    static const std::vector<CodeInfo> codes = MakeCodes();
    return codes;
}

const CodeInfo& InfoOf(Code code)
{
    const std::vector<CodeInfo>& codes = AllCodes();
    return *std::lower_bound(codes.begin(), codes.end(), code,
                             [](const CodeInfo& info, Code wanted) { return info.code < wanted; });
}

std::string IdOf(Code code)
{
    std::array<char, 8> id;
    (void)std::snprintf(id.data(), id.size(), "TMR%03u", static_cast<unsigned>(code) % 1000);
    return id.data();
}

std::string TextOf(const Finding& finding, Language language)
{
    std::string text;
    if (finding.kind != Kind::kNone) {
        text = NounOf(finding.kind, language);
        if (finding.identifier != Finding::kNoIdentifier) {
            text += ' ' + std::to_string(finding.identifier);
        }
        text += language == Language::kFrench ? " : " : ": ";
    }
    return text + Fill(InfoOf(finding.code).texts[static_cast<int>(language)],
                       ValuesIn(finding, language), finding.column.In(language));
}

std::string_view NameOf(Severity severity, Language language)
{
    static constexpr std::string_view kNames[][kLanguageCount] = {
        {"note", "note"}, {"warning", "avertissement"}, {"error", "erreur"}};
    return kNames[static_cast<int>(severity)][static_cast<int>(language)];
}

}  // namespace tamur::host
