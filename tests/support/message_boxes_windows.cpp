#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#include "support/component_under_test.h"
#include "support/message_boxes.h"

namespace tamur::test {
namespace {

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr int kTextControl = 0xFFFF;

std::string TextOf(HWND window)
{
    wchar_t text[2048] = {};
    SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return Utf8(WideStringView(text));
}

// The dialog of this process that is on the screen; null when there is none. Other processes may
// show boxes of their own at the same time.
HWND FindOpenBox()
{
    HWND box = nullptr;
    while ((box = FindWindowExW(nullptr, box, kDialogClass, nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(box, &process);
        // A visible one is set up completely.
        if (process == GetCurrentProcessId() && IsWindowVisible(box)) return box;
    }
    return nullptr;
}

template <class Matches>
int CountControls(HWND box, const wchar_t* controlClass, Matches matches)
{
    int count = 0;
    HWND control = nullptr;
    while ((control = FindWindowExW(box, control, controlClass, nullptr)) != nullptr) {
        if (matches(control)) ++count;
    }
    return count;
}

// A style cannot be asked for: this is how its bits for buttons, icon and modality look.
bool IsPlain(HWND box)
{
    const auto hasIcon = [](HWND text) { return SendMessageW(text, STM_GETICON, 0, 0) != 0; };
    const bool isOnTop = (GetWindowLongW(box, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    return CountControls(box, L"Button", IsWindowVisible) == 1 &&
           CountControls(box, L"Static", hasIcon) == 0 && !isOnTop;
}

}  // namespace

struct CaughtMessageBoxes::State {
    mutable std::mutex mutex;
    std::vector<Box> boxes;
    std::function<void()> whileOpen;
    std::atomic<bool> ends = false;
    std::thread closer;

    void CloseBoxes()
    {
        while (!ends) {
            if (HWND box = FindOpenBox()) Close(box);
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    void Close(HWND box)
    {
        {
            const std::lock_guard lock(mutex);
            boxes.push_back({TextOf(box), TextOf(GetDlgItem(box, kTextControl)),
                             IsPlain(box) ? 0u : 1u, GetWindow(box, GW_OWNER) != nullptr});
        }
        if (whileOpen) whileOpen();
        // Found by its class: a lone OK button may have the number of OK or that of Cancel.
        SendMessageW(FindWindowExW(box, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
        while (IsWindow(box) && !ends) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
};

CaughtMessageBoxes::CaughtMessageBoxes(std::function<void()> whileOpen)
    : state_(std::make_unique<State>())
{
    state_->whileOpen = std::move(whileOpen);
    state_->closer = std::thread([this] { state_->CloseBoxes(); });
}

CaughtMessageBoxes::~CaughtMessageBoxes()
{
    state_->ends = true;
    state_->closer.join();
}

std::vector<CaughtMessageBoxes::Box> CaughtMessageBoxes::Boxes() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->boxes;
}

}  // namespace tamur::test
