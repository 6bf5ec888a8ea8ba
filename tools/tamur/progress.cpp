#include "progress.h"

#include <chrono>
#include <utility>

#include "host/findings/plain_text.h"

namespace tamur::tool {

Progress::Progress(std::ostream& terminal, bool isTerminal, const std::string& what,
                   std::function<int()> percent)
    : percent_(std::move(percent))
{
    if (!isTerminal) return;
    thread_ =
        std::thread([this, &terminal, plain = host::PlainText(what)] { Show(terminal, plain); });
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
        terminal << kWipe << what << " (" << ++seconds << " s";
        // What comes after the last record is not counted.
        const int percent = percent_ ? percent_() : 100;
        if (percent < 100) terminal << ", " << percent << " %";
        terminal << ')' << std::flush;
    }
    if (seconds != 0) terminal << kWipe << std::flush;
}

}  // namespace tamur::tool
