#include "message_boxes.h"

namespace tamur::tool {
namespace {

bool wasShown = false;  // hooks have no argument of their own

// No dialog may come up on this thread: its window is refused, and the box returns.
LRESULT CALLBACK RefuseDialogs(int code, WPARAM window, LPARAM details)
{
    if (code == HCBT_CREATEWND) {
        const auto& create = *reinterpret_cast<const CBT_CREATEWNDW*>(details);
        const auto windowClass = reinterpret_cast<UINT_PTR>(create.lpcs->lpszClass);
        const auto kDialogClass = reinterpret_cast<UINT_PTR>(WC_DIALOG);
        if (windowClass == kDialogClass) {
            wasShown = true;
            return 1;
        }
    }
    return CallNextHookEx(nullptr, code, window, details);
}

}  // namespace

SilencedMessageBoxes::SilencedMessageBoxes(const Component&)
    : hook_(SetWindowsHookExW(WH_CBT, RefuseDialogs, nullptr, GetCurrentThreadId()))
{
    wasShown = false;
}

SilencedMessageBoxes::~SilencedMessageBoxes()
{
    UnhookWindowsHookEx(hook_);
}

bool SilencedMessageBoxes::WasShown() const
{
    return wasShown;
}

}  // namespace tamur::tool
