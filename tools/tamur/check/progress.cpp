#include "progress.h"

#include <chrono>

namespace tamur::tool {

Progress::Progress(std::ostream& terminal, bool isTerminal, std::string what)
{
    if (!isTerminal) return;
    thread_ = std::thread([this, &terminal, what = std::move(what)] { Show(terminal, what); });
}

Progress::~Progress()
{
    if (!thread_.joinable()) return;
    {
        const std::lock_guard lock(mutex_);
        hasEnded_ = true;
    }
    ended_.notify_one();
    thread_.join();
}

void Progress::Show(std::ostream& terminal, const std::string& what)
{
    constexpr std::string_view kWipe = "\r\x1B[K";
    std::unique_lock lock(mutex_);
    int seconds = 0;
    while (!ended_.wait_for(lock, std::chrono::seconds(1), [this] { return hasEnded_; })) {
        terminal << kWipe << what << " (" << ++seconds << " s)" << std::flush;
    }
    if (seconds != 0) terminal << kWipe << std::flush;
}

}  // namespace tamur::tool
