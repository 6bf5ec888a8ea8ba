#include "support/component_under_test.h"
#include "support/message_boxes.h"

namespace tamur::test {

struct CaughtMessageBoxes::State {
    std::vector<Box> boxes;
};

CaughtMessageBoxes::CaughtMessageBoxes() : state_(std::make_unique<State>())
{
    const auto note = [](const OLECHAR* text, const OLECHAR* caption, UINT style, void* context) {
        static_cast<State*>(context)->boxes.push_back(
            {Utf8(WideStringView(caption)), Utf8(WideStringView(text)), style, false});
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
