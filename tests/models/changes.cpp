#include "models/changes.h"

#include <utility>

namespace tamur::test {
namespace {

// After "one more" and "one less".
constexpr char kBytes[] = {'\0', '\xFF', '\n', '\r', '\x1A', ' ', '#', '-', '9', '.'};
constexpr std::size_t kByteChanges = 2 + std::size(kBytes);

const std::vector<std::string>& Oddities()
{
    static const std::vector<std::string> oddities = {"0",
                                                      "-1",
                                                      "2147483647",
                                                      "-2147483648",
                                                      "4294967295",
                                                      "99999999999",
                                                      "1e308",
                                                      "1e-320",
                                                      "nan",
                                                      "inf",
                                                      "",
                                                      std::string(60000, '7'),
                                                      "0." + std::string(300, '0') + "1"};
    return oddities;
}

constexpr std::size_t kLineChanges = 3;

bool IsSeparator(char c)
{
    return c == ' ' || c == '\n' || c == '\r';
}

}  // namespace

Changes::Changes(std::string text) : text_(std::move(text))
{
    for (std::size_t i = 0; i < text_.size(); ++i) {
        if (i == 0 || text_[i - 1] == '\n') lines_.push_back({i, i});
        lines_.back().end = i + 1;
        if (IsSeparator(text_[i])) continue;
        if (i == 0 || IsSeparator(text_[i - 1])) tokens_.push_back({i, i});
        tokens_.back().end = i + 1;
    }
}

std::size_t Changes::Count() const
{
    return text_.size() * (1 + kByteChanges) + tokens_.size() * Oddities().size() +
           lines_.size() * kLineChanges;
}

std::string Changes::Apply(std::size_t number) const
{
    if (number < text_.size()) return text_.substr(0, number);
    number -= text_.size();
    if (number < text_.size() * kByteChanges) {
        return ChangeByte(number / kByteChanges, number % kByteChanges);
    }
    number -= text_.size() * kByteChanges;
    const std::size_t oddities = Oddities().size();
    if (number < tokens_.size() * oddities) {
        return Replace(tokens_[number / oddities], Oddities()[number % oddities]);
    }
    number -= tokens_.size() * oddities;
    return ChangeLine(number / kLineChanges, number % kLineChanges);
}

std::string Changes::ChangeByte(std::size_t at, std::size_t how) const
{
    std::string changed = text_;
    switch (how) {
        case 0: changed[at] = static_cast<char>(changed[at] + 1); break;
        case 1: changed[at] = static_cast<char>(changed[at] - 1); break;
        default: changed[at] = kBytes[how - 2]; break;
    }
    return changed;
}

std::string Changes::Replace(Span span, const std::string& by) const
{
    return text_.substr(0, span.begin) + by + text_.substr(span.end);
}

std::string Changes::ChangeLine(std::size_t line, std::size_t how) const
{
    const Span span = lines_[line];
    const std::string content = text_.substr(span.begin, span.end - span.begin);
    if (how == 0) return Replace(span, "");
    if (how == 1) return Replace(span, content + content);
    const Span next = lines_[(line + 1) % lines_.size()];
    if (next.begin < span.begin) return text_;
    return Replace({span.begin, next.end},
                   text_.substr(next.begin, next.end - next.begin) + content);
}

}  // namespace tamur::test
