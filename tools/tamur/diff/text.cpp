#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iomanip>

#include "words.h"
#include "host/findings/plain_text.h"

namespace tamur::tool {
namespace {

using host::Change;
using host::Description;
using host::FieldChange;
using host::Kind;
using host::PlainText;
using host::What;

constexpr std::size_t kShownChanges = 20;
constexpr std::size_t kShownFields = 6;
constexpr std::size_t kShownValues = 8;
constexpr std::size_t kShownNumbers = 5;
constexpr const char* kArrow = " -> ";
// As What; what is renumbered has a line for all.
constexpr std::array<char, host::kWhatCount> kMarks = {'~', '~', '+', '-', '='};

template <class... Format>
std::string NumberText(double number, Format... format)
{
    std::array<char, 40> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, format...);
    return std::string(digits.data(), end.ptr);
}

std::string PointText(const TMR3DPnt& point)
{
    return "(" + NumberText(point.x) + ", " + NumberText(point.y) + ", " + NumberText(point.z) +
           ")";
}

// Tells changes in one language.
class Teller {
 public:
    Teller(host::Language language, bool showsAll, std::ostream& out)
        : language_(language), words_(WordsIn(language)), showsAll_(showsAll), out_(out)
    {
    }

    void TellVersions(const DiffResult& result)
    {
        if (result.before.version == result.after.version) return;
        out_ << "~ " << words_.version << words_.of << Quoted(result.before.version) << kArrow
             << Quoted(result.after.version) << '\n';
    }

    void TellFields(std::string_view of, const std::vector<FieldChange>& changes)
    {
        if (!changes.empty()) out_ << "~ " << of << words_.of << FieldsText(changes) << '\n';
    }

    void TellCounts(const char* of, host::Counts counts)
    {
        if (counts.before == counts.after) return;
        out_ << "~ " << of << words_.of << counts.before << kArrow << counts.after << '\n';
    }

    void TellMessages(char mark, const std::vector<std::string>& texts)
    {
        std::size_t shown = 0;
        for (const std::string& text : texts) {
            if (IsEnough(shown++)) return TellMore(words_.message, texts.size() - kShownChanges);
            out_ << mark << ' ' << words_.message << ' ' << Quoted(text) << '\n';
        }
    }

    void TellTable(const host::TableDiff& table)
    {
        const std::size_t renumbered = showsAll_ ? 0 : table.CountOf(What::kRenumbered);
        if (renumbered != 0) TellRenumbered(table, renumbered);
        std::size_t shown = 0;
        for (const Change& change : table.Changes()) {
            if (change.what == What::kRenumbered && !showsAll_) continue;
            if (IsEnough(shown++)) {
                const std::size_t left = table.Changes().size() - renumbered - kShownChanges;
                return TellMore(Noun(table.TheKind()), left);
            }
            TellChange(table.TheKind(), change.what, table.Describe(change));
        }
    }

    void TellSummary(const host::ModelDiff& diff)
    {
        bool isFirst = true;
        for (const host::TableDiff& table : diff.tables) {
            if (table.Changes().empty()) continue;
            if (isFirst) out_ << '\n';
            isFirst = false;
            out_ << Noun(table.TheKind());
            const char* between = words_.of;
            for (int what = 0; what < host::kWhatCount; ++what) {
                const std::size_t count = table.CountOf(static_cast<What>(what));
                if (count == 0) continue;
                out_ << between << count << words_.counted[what];
                between = ", ";
            }
            out_ << '\n';
        }
    }

    [[nodiscard]] std::string_view Noun(Kind kind) const { return NounOf(kind, language_); }

    [[nodiscard]] const DiffWords& Words() const { return words_; }

 private:
    [[nodiscard]] bool IsEnough(std::size_t shown) const
    {
        return !showsAll_ && shown == kShownChanges;
    }

    void TellMore(std::string_view noun, std::size_t count)
    {
        out_ << "  " << noun << words_.of << count << words_.moreShown << '\n';
    }

    void TellChange(Kind kind, What what, const Description& description)
    {
        out_ << kMarks[static_cast<std::size_t>(what)] << ' ' << Noun(kind) << ' ';
        out_ << KeyText(what == What::kAdded ? description.after : description.before);
        if (what == What::kRenumbered) out_ << kArrow << KeyText(description.after);
        if (description.movement) {
            out_ << words_.of << MovementText(description);
        } else if (!description.fields.empty()) {
            out_ << words_.of << FieldsText(description.fields);
        }
        out_ << '\n';
    }

    void TellRenumbered(const host::TableDiff& table, std::size_t count)
    {
        const Kind kind = table.TheKind();
        const bool hasName =
            kind == Kind::kMaterial || kind == Kind::kSection || kind == Kind::kRelease;
        out_ << "= " << Noun(kind) << words_.of << count
             << (hasName ? words_.renamed : words_.renumbered);
        std::size_t shown = 0;
        for (const Change& change : table.Changes()) {
            if (change.what != What::kRenumbered) continue;
            if (shown == kShownNumbers) {
                out_ << ", ...";
                break;
            }
            const Description description = table.Describe(change);
            out_ << (shown++ == 0 ? "" : ", ") << KeyText(description.before) << kArrow
                 << KeyText(description.after);
        }
        out_ << '\n';
    }

    // The number or the name; that of a group with what it gathers.
    [[nodiscard]] std::string KeyText(const host::Key& key) const
    {
        std::string text = ValueText(key.back().second);
        if (key.size() == 1) return text;
        const auto element = std::get<long long>(key.front().second.is);
        const Kind kind = host::KindOfElement(static_cast<int>(element));
        const std::string noun(Noun(kind));
        return text + " (" + (kind == Kind::kNone ? std::to_string(element) : noun) + ")";
    }

    [[nodiscard]] std::string MovementText(const Description& description) const
    {
        const host::Movement& movement = *description.movement;
        std::string text = words_.moved + PointText(movement.before) + kArrow +
                           PointText(movement.after) + ", " + words_.distance +
                           NumberText(movement.distance, std::chars_format::general, 6);
        const std::size_t points = description.fields.size();
        if (points > 1) text += " (" + std::to_string(points) + words_.points + ")";
        return text;
    }

    [[nodiscard]] std::string FieldsText(const std::vector<FieldChange>& changes) const
    {
        std::string text;
        std::size_t shown = 0;
        for (std::size_t i = 0; i < changes.size(); ++i, ++shown) {
            if (shown == kShownFields && !showsAll_) {
                return text + ", " + std::to_string(changes.size() - i) + words_.more;
            }
            const std::size_t end = EndOfStart(changes, i);
            if (!text.empty()) text += ", ";
            text += FieldText(changes[i], end != i);
            // It is told with the start: it is not told again.
            if (end == i + 1) ++i;
        }
        return text;
    }

    // Most bars have the same section at both ends, and the same release: one change for people.
    [[nodiscard]] std::size_t EndOfStart(const std::vector<FieldChange>& changes,
                                         std::size_t start) const
    {
        const std::size_t end = start + 1;
        if (end >= changes.size() || !changes[start].field.starts_with(kStart)) return start;
        const bool isSame =
            changes[end].field == kEnd + changes[start].field.substr(kStart.size()) &&
            ValueText(changes[start].before) == ValueText(changes[end].before) &&
            ValueText(changes[start].after) == ValueText(changes[end].after);
        return isSame ? end : start;
    }

    [[nodiscard]] std::string FieldText(const FieldChange& change, bool isAtBothEnds) const
    {
        if (change.isTurned) return words_.turned;
        const std::string field = isAtBothEnds ? change.field.substr(kStart.size()) : change.field;
        return FieldWords(field, language_) + " " + ValueText(field, change.before) + kArrow +
               ValueText(field, change.after);
    }

    [[nodiscard]] std::string ValueText(const std::string& field, const host::Value& value) const
    {
        const auto* const number = std::get_if<long long>(&value.is);
        const std::string_view words =
            number == nullptr ? std::string_view() : ValueWords(field, *number, language_);
        return words.empty() ? ValueText(value) : std::string(words);
    }

    [[nodiscard]] std::string ValueText(const host::Value& value) const
    {
        return std::visit([this](const auto& is) { return this->TextOf(is); }, value.is);
    }
    [[nodiscard]] std::string TextOf(std::monostate) const { return words_.none; }
    [[nodiscard]] static std::string TextOf(long long number) { return std::to_string(number); }
    [[nodiscard]] static std::string TextOf(double number) { return NumberText(number); }
    [[nodiscard]] static std::string TextOf(const std::string& text) { return Quoted(text); }
    [[nodiscard]] static std::string TextOf(const TMR3DPnt& point) { return PointText(point); }
    [[nodiscard]] std::string TextOf(const std::vector<host::Value>& values) const
    {
        if (values.size() > kShownValues) return std::to_string(values.size()) + words_.values;
        std::string text = "[";
        for (const host::Value& value : values) {
            text += (text.size() == 1 ? "" : ", ") + ValueText(value);
        }
        return text + "]";
    }

    [[nodiscard]] static std::string Quoted(const std::string& text)
    {
        return '"' + PlainText(text) + '"';
    }

    static constexpr std::string_view kStart = "Start";
    inline static const std::string kEnd = "End";

    host::Language language_;
    const DiffWords& words_;
    bool showsAll_;
    std::ostream& out_;
};

}  // namespace

void WriteDiffText(const DiffResult& result, host::Language language, bool showsAll,
                   std::ostream& out)
{
    Teller teller(language, showsAll, out);
    const host::ModelDiff& diff = result.model;
    teller.TellVersions(result);
    teller.TellFields(teller.Words().settings, diff.settings);
    teller.TellFields(teller.Noun(Kind::kModes), diff.modes);
    for (const host::TableDiff& table : diff.tables) teller.TellTable(table);
    teller.TellCounts(teller.Words().skippedCombinations, diff.skippedCombinations);
    teller.TellCounts(teller.Words().disabledCombinations, diff.disabledCombinations);
    teller.TellMessages('-', diff.messagesRemoved);
    teller.TellMessages('+', diff.messagesAdded);
    teller.TellSummary(diff);
}

}  // namespace tamur::tool
