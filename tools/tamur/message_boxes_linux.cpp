#include "message_boxes.h"

namespace tamur::tool {
namespace {

int NoteAndClose(const OLECHAR*, const OLECHAR*, UINT, void* wasShown)
{
    constexpr int kOk = 1;
    *static_cast<bool*>(wasShown) = true;
    return kOk;
}

}  // namespace

// The handler belongs to the library that was loaded, which need not be the one linked to.
SilencedMessageBoxes::SilencedMessageBoxes(const Component& component)
    : setHandler_(
          component.Function<decltype(&TamurSetMessageBoxHandler)>("TamurSetMessageBoxHandler"))
{
    setHandler_(NoteAndClose, &wasShown_);
}

SilencedMessageBoxes::~SilencedMessageBoxes()
{
    setHandler_(nullptr, nullptr);
}

bool SilencedMessageBoxes::WasShown() const
{
    return wasShown_;
}

}  // namespace tamur::tool
