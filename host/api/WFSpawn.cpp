#include "WFSpawn.h"

#include "WFProcess.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <set>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

/// How long stopping waits for killed processes to be gone before leaving them to the system.
constexpr std::chrono::milliseconds kReapBound{2000};

/// Signals a host may ignore or catch that its programs must see with their default action:
/// an ignored disposition would survive exec (a SIGXFSZ ignored by the host would let a
/// program write past its file size limit).
constexpr int kDefaultedSignals[] = {SIGHUP,  SIGINT,  SIGQUIT, SIGPIPE, SIGALRM, SIGTERM, SIGUSR1,
                                     SIGUSR2, SIGCHLD, SIGTSTP, SIGTTIN, SIGTTOU, SIGXFSZ, SIGXCPU};

/// Programs being run, by pid: stopping what a finished program left behind must not touch
/// them. Held across the start so that a new program is registered before anyone looks. Never
/// destroyed: a program may be reaped by an object that outlives every static of this
/// library (a plug-in's kept session at exit).
struct TRegistry {
    std::mutex mutex;
    std::multiset<pid_t> running;
};

TRegistry& registry()
{
    static TRegistry& instance = *new TRegistry;
    return instance;
}

/// Processes the program started and then left become this process's children, not init's,
/// so that none escapes being stopped (setsid, double fork). A cgroup would hold them too,
/// but needs a delegated hierarchy that build agents in containers rarely give.
void becomeSubreaper()
{
#ifdef __linux__
    static std::once_flag once;
    std::call_once(once, [] { ::prctl(PR_SET_CHILD_SUBREAPER, 1); });
#endif
}

/// Standard input for programs that read none, opened once.
int devNull()
{
    static const int fd = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    return fd;
}

std::string resolveProgram(const std::string& program)
{
    if (program.find('/') != std::string::npos)
        return program;
    const std::string found = findProgramOnPath(program);
    return found.empty() ? program : found;
}

/// In the child between clone and exec: only async-signal-safe calls.
[[gnu::no_sanitize_address]] void closeAbove2()
{
    if (::syscall(SYS_close_range, 3u, ~0u, 0u) == 0)
        return;
    rlimit limit{};
    const long top = ::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY
        ? static_cast<long>(std::min<rlim_t>(limit.rlim_cur, 1 << 20))
        : 1 << 16;
    for (long fd = 3; fd < top; ++fd)
        ::close(static_cast<int>(fd));
}

std::vector<pid_t> readPids(const std::string& path)
{
    std::vector<pid_t> pids;
    std::ifstream in(path);
    for (long pid; in >> pid;)
        pids.push_back(static_cast<pid_t>(pid));
    return pids;
}

/// Every process with its parent, from /proc.
std::vector<std::pair<pid_t, pid_t>> processParents()
{
    std::vector<std::pair<pid_t, pid_t>> table;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
        const std::string name = entry.path().filename().string();
        if (name.empty() || name.find_first_not_of("0123456789") != std::string::npos)
            continue;
        std::ifstream in(entry.path() / "stat");
        std::string text;
        std::getline(in, text);
        // "pid (command) state ppid ...": the command may hold blanks and parentheses.
        const auto close = text.rfind(')');
        if (close == std::string::npos)
            continue;
        std::istringstream fields(text.substr(close + 1));
        std::string state;
        long parent = 0;
        if (fields >> state >> parent)
            table.emplace_back(static_cast<pid_t>(std::stol(name)), static_cast<pid_t>(parent));
    }
    return table;
}

/// This process's children, of every thread.
std::vector<pid_t> ownChildren()
{
    std::vector<pid_t> children;
    std::error_code error;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task", error)) {
        const auto pids = readPids((task.path() / "children").string());
        children.insert(children.end(), pids.begin(), pids.end());
    }
    if (error) {
        const pid_t self = ::getpid();
        for (const auto& [pid, parent] : processParents())
            if (parent == self)
                children.push_back(pid);
    }
    return children;
}

/// Kills whatever finished programs left behind: children of this process that are no
/// running program, and everything below them. Returns the killed children, to be reaped.
std::vector<pid_t> killLeftovers()
{
    std::lock_guard lock(registry().mutex);
    std::vector<pid_t> roots;
    for (pid_t child : ownChildren())
        if (!registry().running.count(child))
            roots.push_back(child);
    if (roots.empty())
        return roots;
    std::vector<pid_t> victims = roots;
    const auto table = processParents();
    for (std::size_t next = 0; next < victims.size(); ++next)
        for (const auto& [pid, parent] : table)
            if (parent == victims[next] && std::find(victims.begin(), victims.end(), pid) == victims.end())
                victims.push_back(pid);
    for (pid_t victim : victims)
        ::kill(victim, SIGKILL);
    return roots;
}

} // namespace

namespace {

/// What the child is to do, and why it could not.
struct TChildStart {
    const char* program;
    char* const* argv;
    const char* folder;
    int input;
    int output;
    int error;
    int failure = 0;
    bool inDirectory = true;
};

/// The child between clone and exec: only async-signal-safe calls. All signals stay blocked
/// (the caller blocks them) until their handling is back to the default. Not instrumented:
/// it runs on a borrowed stack in the parent's memory.
[[gnu::no_sanitize_address]] int childMain(void* argument)
{
    auto& start = *static_cast<TChildStart*>(argument);
    ::setpgid(0, 0);
    struct sigaction defaults {};
    defaults.sa_handler = SIG_DFL;
    for (int signal : kDefaultedSignals)
        ::sigaction(signal, &defaults, nullptr);
    ::dup2(start.input, 0);
    ::dup2(start.output, 1);
    ::dup2(start.error, 2);
    closeAbove2();
    if (start.folder && ::chdir(start.folder) != 0) {
        start.failure = errno;
        start.inDirectory = false;
        return 127;
    }
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::execve(start.program, start.argv, environ);
    start.failure = errno;
    return 127;
}

/// clone as vfork does it (the memory shared, the caller suspended until exec), but the child
/// on a stack of its own and, when asked, the pidfd made in the same call. posix_spawn would
/// ask and reset every signal handler in the child and map a stack for it, which doubled the
/// cost of starting a short program.
pid_t cloneAndExec(TChildStart& start, int* pidFd)
{
    // The caller is suspended while the child runs, so its stack can lend the child room.
    alignas(64) char stack[64 * 1024];
    const int flags = CLONE_VM | CLONE_VFORK | SIGCHLD;
    if (pidFd) {
        *pidFd = -1;
        const pid_t pid = ::clone(childMain, stack + sizeof stack, flags | CLONE_PIDFD, &start, pidFd);
        // A kernel before 5.2 does not know CLONE_PIDFD.
        if (pid >= 0 || errno != EINVAL)
            return pid;
        *pidFd = -1;
    }
    return ::clone(childMain, stack + sizeof stack, flags, &start);
}

} // namespace

pid_t spawnProgram(const std::string& name, const std::vector<std::string>& arguments, const std::string& directory,
                   int input, int output, int error, std::string& errorText, int* pidFd)
{
    std::vector<std::string> argvText = arguments;
    std::vector<char*> argv;
    argv.reserve(argvText.size() + 1);
    for (auto& argument : argvText)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const std::string program = resolveProgram(name);
    becomeSubreaper();

    sigset_t all;
    sigset_t previous;
    sigfillset(&all);
    TChildStart start{program.c_str(), argv.data(), directory.empty() ? nullptr : directory.c_str(),
                      input >= 0 ? input : devNull(), output, error};
    std::unique_lock lock(registry().mutex);
    pthread_sigmask(SIG_SETMASK, &all, &previous);
    const pid_t pid = cloneAndExec(start, pidFd);
    const int forkError = pid < 0 ? errno : 0;
    if (pid > 0 && start.failure == 0)
        registry().running.insert(pid);
    lock.unlock();
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    if (pid > 0 && start.failure == 0)
        return pid;
    if (pidFd && *pidFd >= 0) {
        ::close(*pidFd);
        *pidFd = -1;
    }
    if (pid > 0) {
        int status = 0;
        while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
    }
    errorText = "Could not start \"" + name + "\"";
    if (!start.inDirectory)
        errorText += " in \"" + directory + "\"";
    errorText += std::string(": ") + std::strerror(pid < 0 ? forkError : start.failure);
    return -1;
}

void forgetProgram(pid_t pid)
{
    std::lock_guard lock(registry().mutex);
    const auto found = registry().running.find(pid);
    if (found != registry().running.end())
        registry().running.erase(found);
}

bool noChildLeft()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) < 0 && errno == ECHILD;
}

void stopLeftovers(pid_t group)
{
    // No child at all, the usual case once the program was reaped: nothing can be left, not
    // even in its process group, as whatever it started and left is ours.
    if (noChildLeft())
        return;
    if (group > 0)
        ::kill(-group, SIGKILL);
    // Killed processes pass their own children on to us as they die, so this goes round
    // until none is left.
    const auto until = Clock::now() + kReapBound;
    for (std::vector<pid_t> killed = killLeftovers(); !killed.empty() && Clock::now() < until;
         killed = killLeftovers()) {
        for (pid_t pid : killed) {
            int status = 0;
            while (::waitpid(pid, &status, WNOHANG) == 0 && Clock::now() < until)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
}
