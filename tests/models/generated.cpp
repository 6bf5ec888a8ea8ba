#include "models/generated.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "models/seeds.h"
#include "models/line_generator.h"

namespace tamur::test {
namespace {

// One in so many. What an import needs at all is in the first sections: rarely changed.
struct Chances {
    int lineReplaced;
    int lineDoubled;
    int tokenReplaced;
};
constexpr Chances kSettings = {400, 100, 200};
constexpr Chances kContent = {15, 15, 6};

std::string ChangedTokens(std::string_view line, int oneIn, LineGenerator& random)
{
    std::string out;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        out += random.Below(oneIn) == 0 ? random.Token() : std::string(line.substr(0, end));
        if (end < line.size()) out += ' ';
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return out;
}

}  // namespace

std::string GeneratedModel(std::uint32_t number)
{
    static const std::vector<Seed> seeds = Seeds();
    LineGenerator random(number);
    std::string out;
    std::string_view text = seeds[number % seeds.size()].text;
    const std::size_t afterSettings = text.find("#Rigide") + std::string_view("#Rigide\n1").size();
    const char* const settingsEnd = text.data() + afterSettings;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        const Chances& chances = line.data() < settingsEnd ? kSettings : kContent;
        for (int times = random.Below(chances.lineDoubled) == 0 ? 2 : 1; times > 0; --times) {
            if (line.starts_with('#')) {
                out += line;
            } else {
                out += random.Below(chances.lineReplaced) == 0
                           ? random.Line()
                           : ChangedTokens(line, chances.tokenReplaced, random);
            }
            out += '\n';
        }
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return out;
}

}  // namespace tamur::test
