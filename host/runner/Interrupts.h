#pragma once

#include <atomic>
#include <functional>
#include <thread>

/// Turns SIGINT, SIGTERM and SIGHUP into calls of onInterrupt on a watcher thread. The signal handler
/// only writes the signal number to a pipe, so onInterrupt may lock, allocate and stop
/// processes. One watcher at a time; the previous handlers come back when it is destroyed.
class TInterruptWatcher {
public:
    explicit TInterruptWatcher(std::function<void(int signal)> onInterrupt);
    ~TInterruptWatcher();
    TInterruptWatcher(const TInterruptWatcher&) = delete;
    TInterruptWatcher& operator=(const TInterruptWatcher&) = delete;

    /// False when the pipe or the handlers could not be set up; the run then cannot be interrupted cleanly.
    bool IsActive() const { return m_active; }

private:
    void watch();

    std::function<void(int)> m_onInterrupt;
    int m_pipe[2] = {-1, -1};
    bool m_active = false;
    std::thread m_thread;
};
