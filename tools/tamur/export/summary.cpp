#include "summary.h"

#include <optional>

namespace tamur::tool {
namespace {

using host::Kind;
using host::Language;
using host::LossType;

std::string_view HeadingOf(LossType type, Language language)
{
    static constexpr host::Name kHeadings[] = {
        {"not written:", "non écrit :"},
        {"written in part, or otherwise:", "écrit en partie, ou autrement :"},
        {"assumed:", "supposé :"},
    };
    return kHeadings[static_cast<int>(type)].In(language);
}

}  // namespace

void WriteSummary(const host::Losses& losses, Language language, std::ostream& out)
{
    std::optional<LossType> type;
    for (const host::Loss& loss : losses.InOrder()) {
        if (type != loss.text->type) out << HeadingOf(loss.text->type, language) << '\n';
        type = loss.text->type;
        out << "  ";
        if (loss.kind != Kind::kNone) {
            out << NounOf(loss.kind, language) << " (" << loss.count
                << (language == Language::kFrench ? ") : " : "): ");
        }
        out << loss.text->why.In(language) << '\n';
    }
}

}  // namespace tamur::tool
