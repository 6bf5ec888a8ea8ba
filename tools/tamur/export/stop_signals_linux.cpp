#include "stop_signals.h"

#include <atomic>
#include <csignal>

namespace tamur::tool {
namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<host::Steps*> g_steps = nullptr;
static_assert(std::atomic<host::Steps*>::is_always_lock_free);  // a signal handler uses it

void Stop(int)
{
    if (host::Steps* const steps = g_steps) steps->Stop();
}

}  // namespace

StopSignals::StopSignals(host::Steps& steps)
{
    g_steps = &steps;
    (void)std::signal(SIGXFSZ, SIG_IGN);  // for good: files are closed at the very end too
    struct sigaction action = {};
    action.sa_handler = Stop;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int signal : kSignals) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
    }
}

StopSignals::~StopSignals()
{
    for (const int signal : kSignals) {
        struct sigaction now = {};
        sigaction(signal, nullptr, &now);
        if (now.sa_handler == Stop) (void)std::signal(signal, SIG_DFL);
    }
    g_steps = nullptr;
}

}  // namespace tamur::tool
