#include "balance_text.h"

#include <iomanip>
#include <string>

#include "host/file/header_names.h"

namespace tamur::tool {
namespace {

struct BalanceWords {
    std::string_view lines, headers, empty, before, foreign, after, notRead, cut, other, records;
    std::string_view addsUp, doesNot;
};

const BalanceWords& BalanceWordsIn(host::Language language)
{
    static constexpr BalanceWords kEnglish = {
        "lines of the file",
        "headers",
        "empty lines",
        "before the first section",
        "in sections that are not read",
        "after Ctrl-Z",
        "of sections, not read",
        "further lines, cut from too long ones",
        "of no known kind",
        "records",
        "every line is accounted for",
        "lines are unaccounted for: this is a defect of tamur"};
    static constexpr BalanceWords kFrench = {
        "lignes du fichier",
        "en-têtes",
        "lignes vides",
        "avant la première section",
        "dans des sections non lues",
        "après Ctrl-Z",
        "non lues dans les sections",
        "lignes de plus, coupées de lignes trop longues",
        "d'un genre inconnu",
        "enregistrements",
        "chaque ligne a été comptée",
        "des lignes ne sont pas comptées : c'est un défaut de tamur"};
    return language == host::Language::kFrench ? kFrench : kEnglish;
}

class BalanceTable {
 public:
    explicit BalanceTable(std::ostream& out) : out_(out) {}

    std::ostream& Row(std::uint64_t count, std::string_view what)
    {
        return out_ << std::setw(kWidth) << count << "  " << what;
    }
    void RowIfAny(std::uint64_t count, std::string_view what)
    {
        if (count != 0) Row(count, what) << '\n';
    }

 private:
    static constexpr int kWidth = 12;
    std::ostream& out_;
};

void WriteKind(BalanceTable& table, const host::KindBalance& kind, std::string_view noun,
               const BalanceWords& words)
{
    std::ostream& row = table.Row(kind.lines, noun);
    row << ": " << words.records << ' ' << kind.records;
    for (const auto& [code, count] : kind.dropped) row << ", " << count << ' ' << IdOf(code);
    row << '\n';
}

}  // namespace

void WriteBalance(const host::Balance& balance, host::Language language, std::ostream& out)
{
    const BalanceWords& words = BalanceWordsIn(language);
    BalanceTable table(out);
    table.Row(balance.lines, words.lines) << '\n';
    table.RowIfAny(balance.cutRests, words.cut);
    table.RowIfAny(balance.headers, words.headers);
    table.RowIfAny(balance.beforeHeaders, words.before);
    table.RowIfAny(balance.foreign, words.foreign);
    table.RowIfAny(balance.afterEnd, words.after);
    for (std::size_t i = 0; i < balance.sections.size(); ++i) {
        const host::SectionBalance& section = balance.sections[i];
        const std::string name = host::DisplayOf(static_cast<SectionHeader>(i)) + ": ";
        if (host::IsSetting(static_cast<SectionHeader>(i))) {
            table.RowIfAny(section.data, host::DisplayOf(static_cast<SectionHeader>(i)));
        }
        table.RowIfAny(section.empty, name + std::string(words.empty));
        table.RowIfAny(section.notRead, name + std::string(words.notRead));
    }
    for (std::size_t i = 0; i < balance.kinds.size(); ++i) {
        const host::KindBalance& kind = balance.kinds[i];
        const std::string_view noun = NounOf(static_cast<host::Kind>(i), language);
        if (kind.lines != 0) WriteKind(table, kind, noun.empty() ? words.other : noun, words);
    }
    out << (balance.AddsUp() ? words.addsUp : words.doesNot) << '\n';
}

}  // namespace tamur::tool
