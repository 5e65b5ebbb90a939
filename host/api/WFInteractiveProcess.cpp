#include "WFInteractiveProcess.h"

#include "WFReplaceableFactory.h"
#include "WFSpawn.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kErrorTail = 64 * 1024;

void closeFd(int& fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

class TPosixInteractiveProcess final : public IWFInteractiveProcess {
public:
    ~TPosixInteractiveProcess() override;

    bool Start(const std::string& executable, const std::vector<std::string>& arguments,
               const std::string& workingDirectory) override;
    bool Write(const std::string& data) override;
    ReadResult Read(std::string& output, int milliseconds) override;
    std::string GetErrorOutput() const override { return m_errorOutput; }
    std::string GetErrorText() const override { return m_error; }
    void Terminate() override;

private:
    void drainError();

    std::atomic<pid_t> m_pid{0};
    int m_in = -1;
    int m_out = -1;
    int m_err = -1;
    std::string m_errorOutput;
    std::string m_error;
};

TPosixInteractiveProcess::~TPosixInteractiveProcess()
{
    closeFd(m_in);
    const pid_t pid = m_pid.exchange(0);
    if (pid > 0) {
        ::kill(-pid, SIGKILL);
        int status = 0;
        while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
        forgetProgram(pid);
        // What the program started outside its process group goes too.
        stopLeftovers();
    }
    closeFd(m_out);
    closeFd(m_err);
}

bool TPosixInteractiveProcess::Start(const std::string& executable, const std::vector<std::string>& arguments,
                                     const std::string& workingDirectory)
{
    if (m_pid.load() > 0) {
        m_error = "Already started";
        return false;
    }
    // Standard input is one end of a socket pair rather than a pipe, so that a write to a
    // program that has gone fails with EPIPE instead of raising SIGPIPE in the host.
    int input[2];
    int out[2];
    int err[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, input) != 0)
        return m_error = std::string("Could not create a socket pair: ") + std::strerror(errno), false;
    if (::pipe2(out, O_CLOEXEC) != 0) {
        m_error = std::string("Could not create a pipe: ") + std::strerror(errno);
        ::close(input[0]);
        ::close(input[1]);
        return false;
    }
    if (::pipe2(err, O_CLOEXEC) != 0) {
        m_error = std::string("Could not create a pipe: ") + std::strerror(errno);
        for (int fd : {input[0], input[1], out[0], out[1]})
            ::close(fd);
        return false;
    }

    std::vector<std::string> argv = arguments;
    argv.insert(argv.begin(), executable);
    const pid_t pid = spawnProgram(executable, argv, workingDirectory, input[1], out[1], err[1], m_error);
    ::close(input[1]);
    ::close(out[1]);
    ::close(err[1]);
    if (pid < 0) {
        ::close(input[0]);
        ::close(out[0]);
        ::close(err[0]);
        return false;
    }
    m_in = input[0];
    m_out = out[0];
    m_err = err[0];
    m_pid = pid;
    return true;
}

bool TPosixInteractiveProcess::Write(const std::string& data)
{
    std::size_t written = 0;
    while (m_in >= 0 && written < data.size()) {
        const ssize_t n = ::send(m_in, data.data() + written, data.size() - written, MSG_NOSIGNAL);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            m_error = std::string("Could not write to the program: ") + std::strerror(errno);
            return false;
        }
        written += static_cast<std::size_t>(n);
    }
    return m_in >= 0;
}

void TPosixInteractiveProcess::drainError()
{
    char buffer[4096];
    const ssize_t n = ::read(m_err, buffer, sizeof buffer);
    if (n > 0) {
        m_errorOutput.append(buffer, static_cast<std::size_t>(n));
        if (m_errorOutput.size() > kErrorTail)
            m_errorOutput.erase(0, m_errorOutput.size() - kErrorTail);
    } else if (n == 0 || (errno != EINTR && errno != EAGAIN)) {
        closeFd(m_err);
    }
}

IWFInteractiveProcess::ReadResult TPosixInteractiveProcess::Read(std::string& output, int milliseconds)
{
    const auto deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (m_out >= 0) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left < 0)
            return ReadResult::Timeout;
        pollfd fds[2] = {{m_out, POLLIN, 0}, {m_err, POLLIN, 0}};
        // A Terminate from another thread closes the output; the slice bounds how long a poll
        // could miss it should the program's children keep the pipe open.
        const int ready = ::poll(fds, m_err >= 0 ? 2 : 1, static_cast<int>(std::min<long long>(left, 100)));
        if (ready < 0 && errno != EINTR)
            break;
        if (ready <= 0)
            continue;
        if (m_err >= 0 && (fds[1].revents & (POLLIN | POLLHUP | POLLERR)))
            drainError();
        if (fds[0].revents & (POLLIN | POLLHUP | POLLERR)) {
            char buffer[64 * 1024];
            const ssize_t n = ::read(m_out, buffer, sizeof buffer);
            if (n > 0) {
                output.append(buffer, static_cast<std::size_t>(n));
                return ReadResult::Data;
            }
            if (n < 0 && (errno == EINTR || errno == EAGAIN))
                continue;
            break;
        }
    }
    closeFd(m_out);
    return ReadResult::Closed;
}

void TPosixInteractiveProcess::Terminate()
{
    const pid_t pid = m_pid.load();
    if (pid > 0)
        ::kill(-pid, SIGKILL);
}

TWFReplaceableFactory<IWFInteractiveProcess, TPosixInteractiveProcess>& factory()
{
    static TWFReplaceableFactory<IWFInteractiveProcess, TPosixInteractiveProcess> instance;
    return instance;
}

} // namespace

std::shared_ptr<IWFInteractiveProcess> CreateWFInteractiveProcess()
{
    return factory().create();
}

TWFInteractiveProcessFactory SetWFInteractiveProcessFactory(TWFInteractiveProcessFactory replacement)
{
    return factory().replace(std::move(replacement));
}
