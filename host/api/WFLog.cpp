#include "WFLog.h"

#include <cerrno>
#include <iostream>
#include <mutex>
#include <string>
#include <utility>

namespace {

std::mutex& handlerMutex()
{
    static std::mutex mutex;
    return mutex;
}

TWFWarningHandler& handler()
{
    static TWFWarningHandler current;
    return current;
}

} // namespace

void WFWarning(std::string_view text)
{
    TWFWarningHandler current;
    {
        std::lock_guard lock(handlerMutex());
        current = handler();
    }
    if (current) {
        current(text);
        return;
    }
    std::cerr << program_invocation_short_name << ": warning: " << text << std::endl;
}

TWFWarningHandler SetWFWarningHandler(TWFWarningHandler replacement)
{
    std::lock_guard lock(handlerMutex());
    return std::exchange(handler(), std::move(replacement));
}
