#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

#include "support/component_under_test.h"
#include "support/message_boxes.h"

namespace tamur::test {
namespace {

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr int kTextControl = 0xFFFF;
constexpr int kOkButton = 1;
constexpr int kCancelButton = 2;

std::string TextOf(HWND window)
{
    wchar_t text[2048] = {};
    SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return Utf8(WideStringView(text));
}

}  // namespace

struct CaughtMessageBoxes::State {
    mutable std::mutex mutex;
    std::vector<Box> boxes;
    std::atomic<bool> ends = false;
    std::thread closer;

    void CloseBoxes()
    {
        while (!ends) {
            HWND box = FindWindowW(kDialogClass, L"Importation Tamur Structure");
            if (box != nullptr && IsWindowVisible(box)) Close(box);  // set up completely
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    void Close(HWND box)
    {
        const bool hasOneButton = GetDlgItem(box, kCancelButton) == nullptr;
        {
            const std::lock_guard lock(mutex);
            boxes.push_back({TextOf(box), TextOf(GetDlgItem(box, kTextControl)),
                             hasOneButton ? 0u : 1u, GetWindow(box, GW_OWNER) != nullptr});
        }
        SendMessageW(GetDlgItem(box, kOkButton), BM_CLICK, 0, 0);
        while (IsWindow(box) && !ends) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
};

CaughtMessageBoxes::CaughtMessageBoxes() : state_(std::make_unique<State>())
{
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
