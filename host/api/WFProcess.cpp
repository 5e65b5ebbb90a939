#include "WFProcess.h"

#include "WFCommandLine.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <mutex>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

class TFileDescriptor {
public:
    TFileDescriptor() = default;
    explicit TFileDescriptor(int fd) : m_fd(fd) {}
    ~TFileDescriptor() { reset(); }
    TFileDescriptor(const TFileDescriptor&) = delete;
    TFileDescriptor& operator=(const TFileDescriptor&) = delete;
    int get() const { return m_fd; }
    void reset(int fd = -1)
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = fd;
    }

private:
    int m_fd = -1;
};

/// Splits output into lines as it arrives; a final line without a break still counts.
class TLineCollector {
public:
    void add(const char* data, std::size_t size, std::vector<std::string>& lines)
    {
        m_pending.append(data, size);
        std::size_t start = 0;
        for (std::size_t nl; (nl = m_pending.find('\n', start)) != std::string::npos; start = nl + 1) {
            std::size_t end = nl;
            if (end > start && m_pending[end - 1] == '\r')
                --end;
            lines.emplace_back(m_pending, start, end - start);
        }
        m_pending.erase(0, start);
    }
    void finish(std::vector<std::string>& lines)
    {
        if (!m_pending.empty()) {
            if (m_pending.back() == '\r')
                m_pending.pop_back();
            lines.push_back(std::move(m_pending));
            m_pending.clear();
        }
    }

private:
    std::string m_pending;
};

class TPosixProcess final : public IWFProcess {
public:
    void SetExecutable(const std::string& path) override { m_executable = path; }
    std::string GetExecutable() const override { return m_executable; }
    void SetParameters(const std::string& text) override { m_parameters = text; }
    std::string GetParameters() const override { return m_parameters; }
    void SetWorkingDirectory(const std::string& directory) override { m_directory = directory; }
    std::string GetWorkingDirectory() const override { return m_directory; }
    void SetRunHidden(bool hidden) override { m_hidden = hidden; }
    void SetCollectOutput(bool collect) override { m_collect = collect; }
    void SetWaitTimeout(int milliseconds) override { m_silenceLimit = milliseconds; }
    void SetTimeLimit(int milliseconds) override { m_timeLimit = milliseconds; }
    void SetOutputHandler(IWFProcessOutputHandler* handler) override { m_handler = handler; }

    bool Execute() override;
    int GetExitCode() const override { return m_exitCode; }
    const std::vector<std::string>& GetOutputLines() const override { return m_lines; }
    std::string GetErrorText() const override { return m_error; }
    bool GetTimedOut() const override { return m_timedOut; }
    bool GetTerminated() const override { return m_terminated; }
    void Terminate() override;

private:
    bool spawn(int outWrite, int errWrite);
    void killGroup(int signal);
    void pump(int outFd, int errFd);
    int reap();

    std::string m_executable;
    std::string m_parameters;
    std::string m_directory;
    bool m_hidden = false;
    bool m_collect = false;
    int m_silenceLimit = 0;
    int m_timeLimit = 0;
    IWFProcessOutputHandler* m_handler = nullptr;

    std::atomic<pid_t> m_pid{0};
    std::atomic<bool> m_terminateRequested{false};
    int m_exitCode = -1;
    bool m_timedOut = false;
    bool m_terminated = false;
    std::string m_error;
    std::vector<std::string> m_lines;
    TLineCollector m_collector;
};

/// The program's path: as given when it names a folder, else the first match on PATH.
std::string resolveProgram(const std::string& program)
{
    if (program.find('/') != std::string::npos)
        return program;
    const char* path = std::getenv("PATH");
    std::string list = path ? path : "/usr/local/bin:/usr/bin:/bin";
    std::size_t start = 0;
    while (start <= list.size()) {
        auto end = list.find(':', start);
        if (end == std::string::npos)
            end = list.size();
        const std::string directory = end > start ? list.substr(start, end - start) : ".";
        const std::string candidate = directory + "/" + program;
        if (::access(candidate.c_str(), X_OK) == 0)
            return candidate;
        start = end + 1;
    }
    return program;
}

bool TPosixProcess::spawn(int outWrite, int errWrite)
{
    std::vector<std::string> arguments = splitCommandLine(m_parameters);
    arguments.insert(arguments.begin(), m_executable);
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (auto& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const std::string program = resolveProgram(m_executable);
    const char* volatile directory = m_directory.empty() ? nullptr : m_directory.c_str();

    // vfork and exec by hand: posix_spawn asks and resets every signal handler in the child and
    // maps a stack for it, which doubled the cost of starting a short program. Everything the
    // child does is async-signal-safe, with all signals blocked until the handlers that
    // matter are back to their defaults.
    sigset_t all;
    sigset_t previous;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &previous);
    volatile int childError = 0;
    volatile bool inDirectory = true;
    const pid_t pid = ::vfork();
    if (pid == 0) {
        ::setpgid(0, 0);
        struct sigaction defaults {};
        defaults.sa_handler = SIG_DFL;
        for (int signal : {SIGINT, SIGTERM, SIGPIPE, SIGHUP, SIGQUIT, SIGCHLD})
            ::sigaction(signal, &defaults, nullptr);
        const int input = ::open("/dev/null", O_RDONLY);
        if (input >= 0 && input != 0) {
            ::dup2(input, 0);
            ::close(input);
        }
        ::dup2(outWrite, 1);
        ::dup2(errWrite, 2);
        if (directory && ::chdir(directory) != 0) {
            childError = errno;
            inDirectory = false;
            ::_exit(127);
        }
        ::sigprocmask(SIG_SETMASK, &previous, nullptr);
        ::execve(program.c_str(), argv.data(), environ);
        childError = errno;
        ::_exit(127);
    }
    const int forkError = pid < 0 ? errno : 0;
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    if (pid < 0 || childError != 0) {
        if (pid > 0) {
            int status = 0;
            while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
            }
        }
        const int code = pid < 0 ? forkError : childError;
        m_error = "Could not start \"" + m_executable + "\"";
        if (!inDirectory)
            m_error += " in \"" + m_directory + "\"";
        m_error += std::string(": ") + std::strerror(code);
        return false;
    }
    m_pid = pid;
    return true;
}

void TPosixProcess::killGroup(int signal)
{
    const pid_t pid = m_pid.load();
    if (pid > 0)
        ::kill(-pid, signal);
}

void TPosixProcess::Terminate()
{
    m_terminateRequested = true;
    killGroup(SIGKILL);
}

void TPosixProcess::pump(int outFd, int errFd)
{
    pollfd fds[4];
    bool outOpen = true;
    bool errOpen = true;
    bool grown = false;
    // One read buffer per thread: programs are started one after another, and clearing a fresh
    // buffer for each would cost more than starting a short program.
    thread_local std::vector<char> buffer(256 * 1024);
    const auto started = Clock::now();
    auto lastOutput = started;
    // The end of output normally tells that the program ended. Only when something it started
    // keeps the pipes open is the program itself looked at, a few times a second.
    bool exited = false;

    while (outOpen || errOpen) {
        int count = 0;
        int outIndex = -1;
        int errIndex = -1;
        if (outOpen) {
            outIndex = count;
            fds[count++] = {outFd, POLLIN, 0};
        }
        if (errOpen) {
            errIndex = count;
            fds[count++] = {errFd, POLLIN, 0};
        }

        int timeout = -1;
        const auto now = Clock::now();
        auto consider = [&](int limit, Clock::time_point since) {
            if (limit <= 0)
                return;
            const auto left = limit - std::chrono::duration_cast<std::chrono::milliseconds>(now - since).count();
            const int wait = left < 0 ? 0 : static_cast<int>(left);
            timeout = timeout < 0 ? wait : std::min(timeout, wait);
        };
        consider(m_silenceLimit, lastOutput);
        consider(m_timeLimit, started);
        if (exited)
            timeout = timeout < 0 ? 200 : std::min(timeout, 200);
        timeout = timeout < 0 ? 100 : std::min(timeout, 100);

        const int ready = ::poll(fds, static_cast<nfds_t>(count), timeout);
        if (ready < 0 && errno == EINTR)
            continue;
        if (m_terminateRequested) {
            killGroup(SIGKILL);
            m_terminated = true;
            break;
        }
        if (ready == 0) {
            const auto later = Clock::now();
            const auto ms = [&](Clock::time_point since) {
                return std::chrono::duration_cast<std::chrono::milliseconds>(later - since).count();
            };
            if ((m_silenceLimit > 0 && ms(lastOutput) >= m_silenceLimit) || (m_timeLimit > 0 && ms(started) >= m_timeLimit)) {
                killGroup(SIGKILL);
                m_timedOut = true;
                break;
            }
            if (exited) {
                // The program ended but something it started still holds its output open.
                killGroup(SIGKILL);
                break;
            }
            siginfo_t info{};
            if (::waitid(P_PID, static_cast<id_t>(m_pid.load()), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid != 0)
                exited = true;
            continue;
        }
        auto drain = [&](int index, int fd, bool& open, bool isErr) {
            if (index < 0 || !(fds[index].revents & (POLLIN | POLLHUP | POLLERR)))
                return;
            const ssize_t n = ::read(fd, buffer.data(), buffer.size());
            if (n <= 0) {
                if (n < 0 && (errno == EINTR || errno == EAGAIN))
                    return;
                open = false;
                return;
            }
            lastOutput = Clock::now();
            // A program that fills the pipe prints a long listing: a larger pipe lets it run
            // ahead of our reads. Most programs print little, so the pipe grows only then.
            if (!isErr && !grown && static_cast<std::size_t>(n) >= 64 * 1024) {
                ::fcntl(fd, F_SETPIPE_SZ, 1024 * 1024);
                grown = true;
            }
            const std::string chunk(buffer.data(), static_cast<std::size_t>(n));
            if (!isErr && m_collect)
                m_collector.add(chunk.data(), chunk.size(), m_lines);
            if (m_handler) {
                if (isErr)
                    m_handler->OnProcessStdErr(*this, chunk);
                else
                    m_handler->OnProcessStdOut(*this, chunk);
            }
        };
        drain(outIndex, outFd, outOpen, false);
        drain(errIndex, errFd, errOpen, true);
    }
    if (m_collect)
        m_collector.finish(m_lines);
}

int TPosixProcess::reap()
{
    int status = 0;
    const pid_t pid = m_pid.load();
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    m_pid = 0;
    // Anything the program left running in its group goes with it.
    ::kill(-pid, SIGKILL);
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    if (WIFSIGNALED(status)) {
        m_error = "The program was killed by signal " + std::to_string(WTERMSIG(status)) + " ("
            + ::strsignal(WTERMSIG(status)) + ")";
        return 128 + WTERMSIG(status);
    }
    return -1;
}

bool TPosixProcess::Execute()
{
    m_lines.clear();
    m_error.clear();
    m_exitCode = -1;
    m_timedOut = m_terminated = false;
    m_collector = TLineCollector();

    int out[2];
    int err[2];
    if (::pipe2(out, O_CLOEXEC) != 0)
        return m_error = std::string("Could not create a pipe: ") + std::strerror(errno), false;
    TFileDescriptor outRead(out[0]), outWrite(out[1]);
    if (::pipe2(err, O_CLOEXEC) != 0)
        return m_error = std::string("Could not create a pipe: ") + std::strerror(errno), false;
    TFileDescriptor errRead(err[0]), errWrite(err[1]);

    if (m_terminateRequested) {
        m_terminated = true;
        m_error = "Stopped before it started";
        return false;
    }
    if (!spawn(outWrite.get(), errWrite.get()))
        return false;
    outWrite.reset();
    errWrite.reset();
    if (m_terminateRequested)
        killGroup(SIGKILL);

    pump(outRead.get(), errRead.get());
    m_exitCode = reap();
    if (m_timedOut)
        m_error = "Stopped after running too long without finishing";
    else if (m_terminated)
        m_error = "Stopped on request";
    return true;
}

TWFProcessFactory& factory()
{
    static TWFProcessFactory current;
    return current;
}

std::mutex& factoryMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

std::shared_ptr<IWFProcess> CreateWFProcess()
{
    TWFProcessFactory current;
    {
        std::lock_guard lock(factoryMutex());
        current = factory();
    }
    if (current)
        return current();
    return std::make_shared<TPosixProcess>();
}

TWFProcessFactory SetWFProcessFactory(TWFProcessFactory replacement)
{
    std::lock_guard lock(factoryMutex());
    auto previous = std::move(factory());
    factory() = std::move(replacement);
    return previous;
}
