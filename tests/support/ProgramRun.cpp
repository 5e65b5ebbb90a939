#include "ProgramRun.h"

#include <chrono>
#include <cstring>
#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace wftest {

namespace {

bool fileHoldsLine(const std::string& path)
{
    std::ifstream in(path);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return !text.empty() && text.back() == '\n';
}

} // namespace

ProgramRun runProgram(const ProgramRequest& request)
{
    using Clock = std::chrono::steady_clock;
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e) {
        const std::string entry(*e);
        const std::string name = entry.substr(0, entry.find('='));
        bool replaced = false;
        for (const auto& [key, value] : request.environment)
            replaced = replaced || key == name;
        if (!replaced)
            env.push_back(entry);
    }
    for (const auto& [key, value] : request.environment)
        env.push_back(key + "=" + value);
    std::vector<std::string> args{request.program};
    args.insert(args.end(), request.arguments.begin(), request.arguments.end());
    std::vector<char*> argv, envp;
    for (auto& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    for (auto& e : env)
        envp.push_back(e.data());
    envp.push_back(nullptr);

    int out[2], err[2];
    if (::pipe2(out, O_CLOEXEC) != 0 || ::pipe2(err, O_CLOEXEC) != 0)
        return {};
    const auto started = Clock::now();
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(out[1], 1);
        ::dup2(err[1], 2);
        const auto redirect = [](int fd, const std::string& path, int flags) {
            const int file = ::open(path.c_str(), flags | O_CLOEXEC);
            if (file < 0 || ::dup2(file, fd) < 0)
                ::_exit(125);
        };
        if (!request.stdoutFile.empty())
            redirect(1, request.stdoutFile, O_WRONLY);
        if (!request.stdinFile.empty())
            redirect(0, request.stdinFile, O_RDONLY);
        if (request.closeStdout)
            ::close(1);
        if (!request.workingDirectory.empty() && ::chdir(request.workingDirectory.c_str()) != 0)
            ::_exit(126);
        if (request.fileSizeLimit > 0) {
            const rlimit limit{static_cast<rlim_t>(request.fileSizeLimit), static_cast<rlim_t>(request.fileSizeLimit)};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        ::execve(argv[0], argv.data(), envp.data());
        ::_exit(127);
    }
    ::close(out[1]);
    ::close(err[1]);

    ProgramRun run;
    bool signalled = false;
    bool killed = false;
    int open = 2;
    if (request.closeStandardOutput) {
        ::close(out[0]);
        out[0] = -1;
        --open;
    }
    pollfd fds[2] = {{out[0], POLLIN, 0}, {err[0], POLLIN, 0}};
    std::string* sinks[2] = {&run.out, &run.err};
    char buffer[4096];
    while (open > 0) {
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - started).count();
        if (!killed && elapsed > request.deadlineMs) {
            ::kill(pid, SIGKILL);
            killed = true;
        }
        if (!signalled
            && ((!request.signalWhenFileReady.empty() && fileHoldsLine(request.signalWhenFileReady))
                || (request.signalAfterMs > 0 && elapsed >= request.signalAfterMs))) {
            ::kill(pid, request.signal);
            signalled = true;
        }
        if (::poll(fds, 2, 10) <= 0)
            continue;
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || !(fds[i].revents & (POLLIN | POLLHUP | POLLERR)))
                continue;
            const ssize_t n = ::read(fds[i].fd, buffer, sizeof buffer);
            if (n > 0) {
                sinks[i]->append(buffer, static_cast<std::size_t>(n));
            } else {
                ::close(fds[i].fd);
                fds[i].fd = -1;
                --open;
            }
        }
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    run.elapsedMs = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - started).count();
    if (killed)
        run.status = -1;
    else if (WIFEXITED(status))
        run.status = WEXITSTATUS(status);
    else if (WIFSIGNALED(status))
        run.status = 128 + WTERMSIG(status);
    return run;
}

bool processGone(int pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    if (!stat)
        return true;
    std::string text((std::istreambuf_iterator<char>(stat)), std::istreambuf_iterator<char>());
    // The state follows the command name in parentheses: "pid (name) S ...".
    const auto close = text.rfind(')');
    return close != std::string::npos && close + 2 < text.size() && text[close + 2] == 'Z';
}

bool awaitProcessGone(int pid, int timeoutMs)
{
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (!processGone(pid)) {
        if (std::chrono::steady_clock::now() >= until) {
            ::kill(pid, SIGKILL);
            return false;
        }
        ::poll(nullptr, 0, 10);
    }
    return true;
}

} // namespace wftest
