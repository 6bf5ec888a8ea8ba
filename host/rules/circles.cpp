// Combinations and envelopes that are made of themselves.
#include <algorithm>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

// Which cases each case is made of, by their places.
std::vector<std::vector<Index>> UsesOf(const LoadCases& cases)
{
    std::vector<std::vector<Index>> uses(cases.cases.size());
    for (const auto* list : {&cases.combinations, &cases.envelopes}) {
        for (const Combined& combined : *list) {
            const auto owner = cases.byNumber.find(combined.number);
            if (owner == cases.byNumber.end()) continue;
            for (const int number : combined.cases) {
                const auto used = cases.byNumber.find(number);
                if (used != cases.byNumber.end()) uses[owner->second].push_back(used->second);
            }
        }
    }
    return uses;
}

// Follows uses in depth; what leads back to a case on the way closes a circle.
class CircleSearch {
 public:
    CircleSearch(const LoadCases& cases, Report& report)
        : cases_(cases), report_(report), uses_(UsesOf(cases)), states_(uses_.size())
    {
    }

    void Find()
    {
        for (Index start = 0; start < uses_.size(); ++start) {
            if (!states_[start].isSeen) Follow(start);
        }
    }

 private:
    struct State {
        bool isSeen = false, isOnWay = false, isSaid = false;
        std::size_t next = 0;
    };

    void Enter(Index rank)
    {
        states_[rank].isSeen = states_[rank].isOnWay = true;
        way_.push_back(rank);
    }

    void Follow(Index start)
    {
        Enter(start);
        while (!way_.empty()) {
            const Index last = way_.back();
            State& state = states_[last];
            if (state.next == uses_[last].size()) {
                state.isOnWay = false;
                way_.pop_back();
                continue;
            }
            const Index used = uses_[last][state.next++];
            if (states_[used].isOnWay) Close(used);
            if (!states_[used].isSeen) Enter(used);
        }
    }

    // One finding for circles that have a case in common.
    void Close(Index from)
    {
        std::size_t place = way_.size();
        do {
            State& state = states_[way_[--place]];
            if (state.isSaid) return;
            state.isSaid = true;
        } while (way_[place] != from);
        std::vector<Index> circle(way_.begin() + static_cast<std::ptrdiff_t>(place), way_.end());
        const auto byNumber = [this](Index a, Index b) { return NumberOf(a) < NumberOf(b); };
        std::rotate(circle.begin(), std::min_element(circle.begin(), circle.end(), byNumber),
                    circle.end());
        report_.Add(Code::kCaseInCircle, {Kind::kCase, circle[0], NumberOf(circle[0])},
                    [&] { return Values{TextOf(circle)}; });
    }

    [[nodiscard]] int NumberOf(Index rank) const { return cases_.cases[rank].number; }

    [[nodiscard]] std::string TextOf(const std::vector<Index>& circle) const
    {
        constexpr std::size_t kMost = 8;
        std::string text;
        for (std::size_t i = 0; i < std::min(circle.size(), kMost); ++i) {
            text += std::to_string(NumberOf(circle[i])) + " → ";
        }
        if (circle.size() > kMost) text += "... → ";
        return text + std::to_string(NumberOf(circle[0]));
    }

    const LoadCases& cases_;
    Report& report_;
    std::vector<std::vector<Index>> uses_;
    std::vector<State> states_;
    std::vector<Index> way_;
};

}  // namespace

void CheckCircles(const Model& model, Report& report)
{
    CircleSearch(model.cases, report).Find();
}

}  // namespace tamur::host
