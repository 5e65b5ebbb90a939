#include "WFBusy.h"

#include <mutex>

namespace {

std::mutex g_mutex;
TWFBusyHook g_hook;

TWFBusyHook currentHook()
{
    std::lock_guard lock(g_mutex);
    return g_hook;
}

} // namespace

void WFRunBusy(const std::string& message, const std::function<void()>& work, const std::function<void()>& cancel)
{
    if (const TWFBusyHook hook = currentHook())
        hook(message, work, cancel);
    else
        work();
}

bool WFBusyCanCancel()
{
    return static_cast<bool>(currentHook());
}

TWFBusyHook SetWFBusyHook(TWFBusyHook hook)
{
    std::lock_guard lock(g_mutex);
    std::swap(g_hook, hook);
    return hook;
}
