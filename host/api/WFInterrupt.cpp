#include "WFInterrupt.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>

#include <fcntl.h>

namespace {

thread_local const std::atomic<bool>* t_stopRequest = nullptr;

} // namespace

TWFStopScope::TWFStopScope(const std::atomic<bool>& request) : m_previous(t_stopRequest)
{
    t_stopRequest = &request;
}

TWFStopScope::~TWFStopScope()
{
    t_stopRequest = m_previous;
}

bool WFStopRequested()
{
    return t_stopRequest && t_stopRequest->load();
}

int openInterruptibly(const std::string& path, int flags, mode_t mode, std::string& error)
{
    // A blocking open of a FIFO restarts after every signal (SA_RESTART) and would never see
    // the interrupt; a non-blocking one fails at once while no reader is there, so it is retried.
    for (;;) {
        const int fd = ::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC, mode);
        if (fd >= 0) {
            if (!(flags & O_NONBLOCK))
                ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
            return fd;
        }
        if (errno != ENXIO && errno != EINTR && errno != EAGAIN) {
            error = "cannot open \"" + path + "\": " + std::strerror(errno);
            return -1;
        }
        if (WFStopRequested()) {
            error = "stopped while waiting to open \"" + path + "\"";
            return -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}
