#include "WFProcess.h"
#include "WFReplaceableFactory.h"

#include "WFCommandLine.h"
#include "WFFiles.h"
#include "WFInterrupt.h"
#include "WFLineSplitter.h"
#include "WFSpawn.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

class TFileDescriptor {
public:
    TFileDescriptor() = default;
    explicit TFileDescriptor(int fd) : m_fd(fd) {}
    ~TFileDescriptor() { reset(); }
    TFileDescriptor(const TFileDescriptor&) = delete;
    TFileDescriptor& operator=(const TFileDescriptor&) = delete;
    TFileDescriptor(TFileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    TFileDescriptor& operator=(TFileDescriptor&& other) noexcept
    {
        if (this != &other)
            reset(std::exchange(other.m_fd, -1));
        return *this;
    }
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

using Milliseconds = std::chrono::milliseconds;
using Microseconds = std::chrono::microseconds;

/// How often the run loop looks at the program and at stop requests while output flows.
constexpr Milliseconds kCheckInterval{100};
/// How long output is still read after the program ended while something it started holds
/// the pipes open.
constexpr Milliseconds kExitGrace{1000};
/// The first look at the program after its output closed: its end is a few microseconds away.
constexpr Microseconds kFirstExitStep{50};

/// The program's standard output and error. Creating and closing them cost about as much as
/// watching a short program, so a program that ended leaving nothing behind hands them, empty
/// and held by us alone, to the next program started on the same thread.
struct TPipes {
    TFileDescriptor read[2];
    TFileDescriptor write[2];
};

thread_local TPipes t_sparePipes;

bool createPipes(TPipes& pipes, std::string& error)
{
    for (int i = 0; i < 2; ++i) {
        int fds[2];
        if (::pipe2(fds, O_CLOEXEC) != 0) {
            error = std::string("Could not create a pipe: ") + std::strerror(errno);
            return false;
        }
        pipes.read[i].reset(fds[0]);
        pipes.write[i].reset(fds[1]);
        // Once the program has ended, its output is read until the pipe is empty, not until
        // it closes: our write end keeps it open for the next program.
        ::fcntl(fds[0], F_SETFL, O_NONBLOCK);
    }
    return true;
}

/// One output pipe of the program.
struct TStream {
    int fd = -1;
    bool isErr = false;
    bool open = true;
    /// Seen empty after the program had ended: nothing more can come.
    bool emptied = false;
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
    void SetWaitTimeout(std::int64_t milliseconds) override { m_silenceLimit = Milliseconds(std::max<std::int64_t>(milliseconds, 0)); }
    void SetTimeLimit(std::int64_t milliseconds) override { m_timeLimit = Milliseconds(std::max<std::int64_t>(milliseconds, 0)); }
    void SetOutputHandler(IWFProcessOutputHandler* handler) override { m_handler = handler; }

    bool Execute() override;
    int GetExitCode() const override { return m_exitCode; }
    const std::vector<std::string>& GetOutputLines() const override { return m_lines; }
    std::string GetErrorText() const override { return m_error; }
    bool GetTimedOut() const override { return m_timedOut; }
    bool GetTerminated() const override { return m_terminated; }
    void Terminate() override { m_terminateRequested = true; }

private:
    enum class TState { Running, Ended, TimedOut, Stopped };

    bool fail(std::string error);
    bool spawn(int outWrite, int errWrite);
    void pump(TStream (&streams)[2]);
    void watchEnd();
    void ended(TStream (&streams)[2]);
    bool reapAlone();
    TState checkState(Clock::time_point now, bool outputOpen);
    Clock::time_point nextDeadline(Clock::time_point now) const;
    void waitForOutput(TStream (&streams)[2], Clock::time_point deadline);
    /// What one read of a pipe found: a full buffer (more may wait), less (the pipe was
    /// emptied), or the pipe's end.
    enum class TDrain { Read, Emptied, Closed };
    TDrain drain(TStream& stream);
    void deliver(const char* data, std::size_t size, bool isErr);
    int reap(bool ended);

    std::string m_executable;
    std::string m_parameters;
    std::string m_directory;
    bool m_hidden = false;
    bool m_collect = false;
    Milliseconds m_silenceLimit{0};
    Milliseconds m_timeLimit{0};
    IWFProcessOutputHandler* m_handler = nullptr;

    pid_t m_pid = 0;
    std::atomic<bool> m_terminateRequested{false};
    int m_exitCode = -1;
    bool m_timedOut = false;
    bool m_terminated = false;
    std::string m_error;
    std::vector<std::string> m_lines;
    TWFLineSplitter m_collector;

    // The run loop's clock.
    Clock::time_point m_started;
    Clock::time_point m_lastOutput;
    Clock::time_point m_nextExitCheck;
    Microseconds m_exitCheckStep{kFirstExitStep};
    std::optional<Clock::time_point> m_exitedAt;
    bool m_pipeGrown = false;
    // The program's end, watched through a pidfd: the pipes' write ends are ours until then.
    TFileDescriptor m_pidFd;
    TPipes m_pipes;
    // Reaped when its end was seen, with nothing of it left: the pipes can serve again.
    bool m_reaped = false;
    bool m_alone = false;
    int m_status = 0;
};

bool TPosixProcess::fail(std::string error)
{
    m_error = std::move(error);
    return false;
}

bool TPosixProcess::spawn(int outWrite, int errWrite)
{
    std::vector<std::string> arguments = splitCommandLine(m_parameters);
    arguments.insert(arguments.begin(), m_executable);
    int pidFd = -1;
    const pid_t pid = spawnProgram(m_executable, arguments, m_directory, -1, outWrite, errWrite, m_error, &pidFd);
    if (pid < 0)
        return false;
    m_pid = pid;
    m_pidFd.reset(pidFd);
    return true;
}

TPosixProcess::TState TPosixProcess::checkState(Clock::time_point now, bool outputOpen)
{
    if (m_terminateRequested || WFStopRequested())
        return TState::Stopped;
    if (!m_exitedAt && m_pidFd.get() < 0 && now >= m_nextExitCheck) {
        siginfo_t info{};
        if (::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid != 0)
            m_exitedAt = now;
        // With the pipes closed the end is near: look again soon, then less and less often.
        m_exitCheckStep = outputOpen ? Microseconds(kCheckInterval)
                                     : std::min<Microseconds>(m_exitCheckStep * 2, kCheckInterval);
        m_nextExitCheck = now + m_exitCheckStep;
    }
    if (m_exitedAt && (!outputOpen || now >= *m_exitedAt + kExitGrace))
        return TState::Ended;
    if (m_exitedAt)
        return TState::Running;
    if ((m_silenceLimit.count() > 0 && now >= m_lastOutput + m_silenceLimit)
        || (m_timeLimit.count() > 0 && now >= m_started + m_timeLimit))
        return TState::TimedOut;
    return TState::Running;
}

Clock::time_point TPosixProcess::nextDeadline(Clock::time_point now) const
{
    Clock::time_point deadline = now + kCheckInterval;
    if (m_exitedAt) {
        deadline = std::min(deadline, *m_exitedAt + kExitGrace);
    } else {
        if (m_pidFd.get() < 0)
            deadline = std::min(deadline, m_nextExitCheck);
        if (m_silenceLimit.count() > 0)
            deadline = std::min(deadline, m_lastOutput + m_silenceLimit);
        if (m_timeLimit.count() > 0)
            deadline = std::min(deadline, m_started + m_timeLimit);
    }
    return std::max(deadline, now);
}

void TPosixProcess::waitForOutput(TStream (&streams)[2], Clock::time_point deadline)
{
    // The pidfd comes first: poll looks at the pipes after it, so when it reports the program
    // ended, a pipe it reports empty stays empty.
    pollfd fds[3];
    TStream* polled[3] = {};
    nfds_t count = 0;
    const bool watching = m_pidFd.get() >= 0 && !m_exitedAt;
    if (watching)
        fds[count++] = {m_pidFd.get(), POLLIN, 0};
    for (TStream& stream : streams) {
        if (!stream.open)
            continue;
        polled[count] = &stream;
        fds[count++] = {stream.fd, POLLIN, 0};
    }
    if (count == 0) {
        // Both pipes closed: only the program's end is awaited, often a few microseconds away.
        std::this_thread::sleep_until(deadline);
        return;
    }
    const auto wait = std::chrono::ceil<Milliseconds>(deadline - Clock::now());
    const int timeout = static_cast<int>(std::max<Milliseconds::rep>(wait.count(), 0));
    if (::poll(fds, count, timeout) <= 0)
        return;
    const bool programEnded = watching && fds[0].revents;
    for (nfds_t i = watching ? 1 : 0; i < count; ++i) {
        TStream& stream = *polled[i];
        const bool ready = fds[i].revents & (POLLIN | POLLHUP | POLLERR);
        const TDrain read = ready ? drain(stream) : TDrain::Emptied;
        stream.emptied = programEnded && read == TDrain::Emptied;
    }
    if (programEnded)
        ended(streams);
}

void TPosixProcess::watchEnd()
{
    // Each pipe wakes us as it closes and the program's end once more; on a busy machine every
    // wake-up waits for a core. A pidfd wakes us once, when the program has ended, while our
    // write ends keep the pipes from closing before. Without one, the pipes' ends are watched.
    if (m_pidFd.get() < 0) {
        m_pipes.write[0].reset();
        m_pipes.write[1].reset();
    }
}

bool TPosixProcess::reapAlone()
{
    if (::waitpid(m_pid, &m_status, WNOHANG) != m_pid)
        return false;
    m_reaped = true;
    forgetProgram(m_pid);
    m_alone = noChildLeft();
    return m_alone;
}

void TPosixProcess::ended(TStream (&streams)[2])
{
    m_exitedAt = Clock::now();
    // With the program reaped and no child left, nothing else can write to the pipes: what
    // is in them is the rest of its output.
    if (reapAlone()) {
        for (TStream& stream : streams) {
            while (stream.open && !stream.emptied && drain(stream) == TDrain::Read) {
            }
            stream.open = false;
        }
        return;
    }
    // Otherwise the pipes end after what the program wrote once our write ends are gone,
    // unless something it started still holds them.
    m_pipes.write[0].reset();
    m_pipes.write[1].reset();
}

TPosixProcess::TDrain TPosixProcess::drain(TStream& stream)
{
    // One read buffer per thread: programs are started one after another, and clearing a fresh
    // buffer for each would cost more than starting a short program.
    thread_local std::vector<char> buffer(256 * 1024);
    const ssize_t n = ::read(stream.fd, buffer.data(), buffer.size());
    if (n < 0 && (errno == EINTR || errno == EAGAIN))
        return errno == EINTR ? TDrain::Read : TDrain::Emptied;
    if (n <= 0) {
        stream.open = false;
        m_nextExitCheck = Clock::now();
        m_exitCheckStep = kFirstExitStep / 2;
        return TDrain::Closed;
    }
    m_lastOutput = Clock::now();
    // A program that fills the pipe prints a long listing: a larger pipe lets it run ahead of
    // our reads. Most programs print little, so the pipe grows only then.
    if (!stream.isErr && !m_pipeGrown && static_cast<std::size_t>(n) >= 64 * 1024) {
        ::fcntl(stream.fd, F_SETPIPE_SZ, 1024 * 1024);
        m_pipeGrown = true;
    }
    deliver(buffer.data(), static_cast<std::size_t>(n), stream.isErr);
    return static_cast<std::size_t>(n) < buffer.size() ? TDrain::Emptied : TDrain::Read;
}

void TPosixProcess::deliver(const char* data, std::size_t size, bool isErr)
{
    if (!isErr && m_collect)
        m_collector.add(std::string_view(data, size), [this](std::string_view line) { m_lines.emplace_back(line); });
    if (!m_handler)
        return;
    const std::string chunk(data, size);
    if (isErr)
        m_handler->OnProcessStdErr(*this, chunk);
    else
        m_handler->OnProcessStdOut(*this, chunk);
}

void TPosixProcess::pump(TStream (&streams)[2])
{
    m_started = m_lastOutput = m_nextExitCheck = Clock::now();
    m_exitCheckStep = kFirstExitStep / 2;
    m_exitedAt.reset();
    m_pipeGrown = false;
    for (;;) {
        const auto now = Clock::now();
        switch (checkState(now, streams[0].open || streams[1].open)) {
        case TState::Running:
            waitForOutput(streams, nextDeadline(now));
            continue;
        case TState::Ended:
            break;
        case TState::TimedOut:
            m_timedOut = true;
            break;
        case TState::Stopped:
            m_terminated = true;
            break;
        }
        break;
    }
    if (m_collect)
        m_collector.finish([this](std::string_view line) { m_lines.emplace_back(line); });
}

int TPosixProcess::reap(bool ended)
{
    if (!ended) {
        // A reaped pid may already name another process; its group lives on while a member does.
        if (!m_reaped)
            ::kill(m_pid, SIGKILL);
        ::kill(-m_pid, SIGKILL);
    }
    m_pidFd.reset();
    if (!m_alone) {
        m_pipes.write[0].reset();
        m_pipes.write[1].reset();
    }
    int status = m_status;
    if (!m_reaped) {
        while (::waitpid(m_pid, &status, 0) < 0 && errno == EINTR) {
        }
        forgetProgram(m_pid);
    }
    // Anything the program left running goes with it, also what left its process group.
    if (!m_alone)
        stopLeftovers(m_pid);
    m_pid = 0;
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
    m_collector.clear();

    m_reaped = m_alone = false;
    m_status = 0;
    m_pipes = std::move(t_sparePipes);
    if (m_pipes.read[0].get() < 0 && !createPipes(m_pipes, m_error)) {
        m_pipes = {};
        return false;
    }

    const bool stopped = m_terminateRequested || WFStopRequested();
    if (stopped || !spawn(m_pipes.write[0].get(), m_pipes.write[1].get())) {
        // Nothing was started, so nothing wrote to the pipes.
        t_sparePipes = std::move(m_pipes);
        if (!stopped)
            return false;
        m_terminated = true;
        return fail("Stopped before it started");
    }
    watchEnd();

    TStream streams[2] = {{m_pipes.read[0].get(), false, true}, {m_pipes.read[1].get(), true, true}};
    pump(streams);
    m_exitCode = reap(!m_timedOut && !m_terminated);
    if (m_alone)
        t_sparePipes = std::move(m_pipes);
    else
        m_pipes = {};
    if (m_timedOut)
        m_error = "Stopped after running too long without finishing";
    else if (m_terminated)
        m_error = "Stopped on request";
    return true;
}

TWFReplaceableFactory<IWFProcess, TPosixProcess>& factory()
{
    static TWFReplaceableFactory<IWFProcess, TPosixProcess> instance;
    return instance;
}

} // namespace

TWFTimeLimitParse parseTimeLimitSeconds(std::string_view text, std::int64_t& seconds)
{
    std::int64_t value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec == std::errc::result_out_of_range && end == text.data() + text.size() && !text.empty() && text[0] != '-')
        return TWFTimeLimitParse::TooLong;
    if (text.empty() || ec != std::errc() || end != text.data() + text.size() || value < 0)
        return TWFTimeLimitParse::NotSeconds;
    if (value > kWFMaxTimeLimitSeconds)
        return TWFTimeLimitParse::TooLong;
    seconds = value;
    return TWFTimeLimitParse::Ok;
}

std::string findProgramOnPath(const std::string& name)
{
    const char* path = std::getenv("PATH");
    const std::string list = path ? path : "/usr/local/bin:/usr/bin:/bin";
    for (std::size_t start = 0; start <= list.size();) {
        auto end = list.find(':', start);
        if (end == std::string::npos)
            end = list.size();
        if (end > start) {
            std::string candidate = list.substr(start, end - start);
            if (candidate.back() != '/')
                candidate += '/';
            candidate += name;
            if (fileExists(candidate) && ::access(candidate.c_str(), X_OK) == 0)
                return candidate;
        }
        start = end + 1;
    }
    return {};
}

std::shared_ptr<IWFProcess> CreateWFProcess()
{
    return factory().create();
}

TWFProcessFactory SetWFProcessFactory(TWFProcessFactory replacement)
{
    return factory().replace(std::move(replacement));
}
