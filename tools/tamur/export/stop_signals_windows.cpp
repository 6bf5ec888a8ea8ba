#include "stop_signals.h"

#include <windows.h>

#include <atomic>

namespace tamur::tool {
namespace {

std::atomic<host::Steps*> g_steps = nullptr;

BOOL WINAPI Stop(DWORD)
{
    host::Steps* const steps = g_steps.exchange(nullptr);
    if (steps == nullptr) return FALSE;
    steps->Stop();
    return TRUE;
}

}  // namespace

StopSignals::StopSignals(host::Steps& steps)
{
    g_steps = &steps;
    SetConsoleCtrlHandler(Stop, TRUE);
}

StopSignals::~StopSignals()
{
    SetConsoleCtrlHandler(Stop, FALSE);
    g_steps = nullptr;
}

}  // namespace tamur::tool
