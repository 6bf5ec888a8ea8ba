#include <utility>

#include "support/component_under_test.h"
#include "support/message_boxes.h"

namespace tamur::test {

struct CaughtMessageBoxes::State {
    std::vector<Box> boxes;
    std::function<void()> whileOpen;
};

CaughtMessageBoxes::CaughtMessageBoxes(std::function<void()> whileOpen)
    : state_(std::make_unique<State>())
{
    state_->whileOpen = std::move(whileOpen);
    const auto note = [](const OLECHAR* text, const OLECHAR* caption, UINT style, void* context) {
        State& state = *static_cast<State*>(context);
        state.boxes.push_back(
            {Utf8(WideStringView(caption)), Utf8(WideStringView(text)), style, false});
        if (state.whileOpen) state.whileOpen();
        return 1;
    };
    TamurSetMessageBoxHandler(note, state_.get());
}

CaughtMessageBoxes::~CaughtMessageBoxes()
{
    TamurSetMessageBoxHandler(nullptr, nullptr);
}

std::vector<CaughtMessageBoxes::Box> CaughtMessageBoxes::Boxes() const
{
    return state_->boxes;
}

}  // namespace tamur::test
