// How far an export is, for another thread, which may stop it.
#pragma once

#include <atomic>
#include <cstddef>

#include "host/told_error.h"

namespace tamur::host {

class ExportStopped : public ToldError {
 public:
    ExportStopped() : ToldError("stopped: nothing was written", "arrêté : rien n'a été écrit") {}
};

class Steps {
 public:
    // The writer's: what is to be done in all, in any unit, and that some of it is done. Throws
    // ExportStopped.
    void Expect(std::size_t all) { all_ = all; }
    void Do(std::size_t count = 1)
    {
        done_.fetch_add(count, std::memory_order_relaxed);
        StopIfAsked();
    }
    void StopIfAsked() const
    {
        if (isStopped_.load(std::memory_order_relaxed)) throw ExportStopped();
    }

    // For other threads and signal handlers.
    void Stop() { isStopped_ = true; }
    [[nodiscard]] int Percent() const
    {
        const std::size_t all = all_, done = done_;
        return all == 0 || done >= all ? 100 : static_cast<int>(done * 100 / all);
    }

 private:
    std::atomic<std::size_t> all_ = 0, done_ = 0;
    std::atomic<bool> isStopped_ = false;
};

}  // namespace tamur::host
