#include "Interrupts.h"

#include <cerrno>
#include <iterator>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {

/// Written end of the pipe; read by the signal handler, so a plain atomic int.
std::atomic<int> g_signalPipe{-1};
/// A hang-up (the terminal or the agent's session went away) ends the run as Ctrl-C does.
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
// Zero-initialised: restoring them before they were filled in restores the default.
struct sigaction g_previous[std::size(kSignals)] {};

/// Byte that tells the watcher to stop; signal numbers are never 0.
constexpr unsigned char kStop = 0;

extern "C" void onSignal(int signal)
{
    const int saved = errno;
    const int fd = g_signalPipe.load();
    if (fd >= 0) {
        const auto byte = static_cast<unsigned char>(signal);
        [[maybe_unused]] auto written = ::write(fd, &byte, 1);
    }
    errno = saved;
}

} // namespace

TInterruptWatcher::TInterruptWatcher(std::function<void(int)> onInterrupt) : m_onInterrupt(std::move(onInterrupt))
{
    if (::pipe2(m_pipe, O_CLOEXEC) != 0)
        return;
    // A full pipe must not block the handler; the watcher only needs one byte to wake.
    ::fcntl(m_pipe[1], F_SETFL, ::fcntl(m_pipe[1], F_GETFL) | O_NONBLOCK);
    g_signalPipe = m_pipe[1];
    struct sigaction action {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    // Restarted calls are no trap here: nothing waits for a signal to break a blocking call.
    // Programs and FIFO opens poll for the stop request instead.
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        if (::sigaction(kSignals[i], &action, &g_previous[i]) != 0)
            return;
    m_active = true;
    m_thread = std::thread([this] { watch(); });
}

TInterruptWatcher::~TInterruptWatcher()
{
    // Also after a half-done set-up: a handler left without its pipe would swallow Ctrl-C.
    if (m_pipe[1] >= 0)
        for (std::size_t i = 0; i < std::size(kSignals); ++i)
            ::sigaction(kSignals[i], &g_previous[i], nullptr);
    g_signalPipe = -1;
    if (m_thread.joinable()) {
        const unsigned char stop = kStop;
        [[maybe_unused]] auto written = ::write(m_pipe[1], &stop, 1);
        m_thread.join();
    }
    for (int fd : m_pipe)
        if (fd >= 0)
            ::close(fd);
}

void TInterruptWatcher::watch()
{
    for (;;) {
        unsigned char byte = 0;
        const ssize_t n = ::read(m_pipe[0], &byte, 1);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0 || byte == kStop)
            return;
        if (m_onInterrupt)
            m_onInterrupt(byte);
    }
}
