// One helper program for every process scenario of the tests. It stands in for cleartool and
// any other program: it records how it was started, answers with prepared output and exits
// with a chosen code. Its behaviour comes from environment variables, so its argv is exactly
// what the caller passed:
//   WF_FAKE_RECORD=FILE      append "cwd=...", one "arg=..." per argument, then "end"
//   WF_FAKE_RESPONSES=FILE   blocks ">>> EXIT ARGS..." followed by the output for exactly those
//                            arguments (joined by blanks); the first matching block answers
//   WF_FAKE_OUTPUT=FILE      standard output when no block matched
//   WF_FAKE_STDERR=TEXT      written to standard error, one line
//   WF_FAKE_EXIT=N           exit code when no block matched (default 0)
//   WF_FAKE_CHUNKS=N         write the output in N pieces ...
//   WF_FAKE_CHUNK_DELAY_MS=M ... with M milliseconds between them (default 50)
//   WF_FAKE_SLEEP_MS=M       sleep before exiting
//   WF_FAKE_SLEEP_BEFORE_MS=M sleep silently before any output (a slow server)
//   WF_FAKE_CHILD_PIDFILE=F  start a child and write its pid to F; the child, by WF_FAKE_CHILD:
//     sleep (default)        sleeps for a long time
//     writer                 prints a line every 50 ms for a long time
//     detached               leaves the process group and session (setsid), closes its
//                            output and sleeps for a long time
//   WF_FAKE_CLOSE_OUTPUT=1   close standard output and error after the output, before sleeping
//   WF_FAKE_STDIN=1          read standard input to its end first and report what came
//   WF_FAKE_KILL_SELF=1      die by SIGKILL right after the output, as if killed mid-run
//   WF_FAKE_LIST_FDS=FILE    write the numbers of the descriptors it inherited above 2, one a line
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {

std::string env(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

void writeAll(int fd, const std::string& data)
{
    std::size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.data() + done, data.size() - done);
        if (n <= 0)
            return;
        done += static_cast<std::size_t>(n);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (const std::string list = env("WF_FAKE_LIST_FDS"); !list.empty()) {
        std::string numbers;
        for (int fd = 3; fd < 1024; ++fd)
            if (::fcntl(fd, F_GETFD) != -1)
                numbers += std::to_string(fd) + "\n";
        std::ofstream(list, std::ios::binary) << numbers;
    }
    std::string joined;
    for (int i = 1; i < argc; ++i)
        joined += (i > 1 ? " " : "") + std::string(argv[i]);

    if (const std::string record = env("WF_FAKE_RECORD"); !record.empty()) {
        char cwd[4096] = {};
        if (!::getcwd(cwd, sizeof cwd))
            cwd[0] = 0;
        std::ofstream out(record, std::ios::app | std::ios::binary);
        out << "cwd=" << cwd << "\n";
        for (int i = 1; i < argc; ++i)
            out << "arg=" << argv[i] << "\n";
        out << "end\n";
    }

    if (env("WF_FAKE_STDIN") == "1") {
        std::string input((std::istreambuf_iterator<char>(std::cin)), std::istreambuf_iterator<char>());
        std::cout << "stdin:" << input.size() << " bytes\n";
    }

    std::string output;
    if (const std::string sleep = env("WF_FAKE_SLEEP_BEFORE_MS"); !sleep.empty())
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(sleep.c_str())));
    int exitCode = std::atoi(env("WF_FAKE_EXIT").c_str());
    bool matched = false;
    if (const std::string responses = env("WF_FAKE_RESPONSES"); !responses.empty()) {
        std::istringstream in(readFile(responses));
        std::string line;
        bool inBlock = false;
        while (std::getline(in, line)) {
            if (line.rfind(">>> ", 0) == 0) {
                if (matched)
                    break;
                const std::string header = line.substr(4);
                const auto blank = header.find(' ');
                const std::string code = header.substr(0, blank);
                const std::string args = blank == std::string::npos ? "" : header.substr(blank + 1);
                inBlock = args == joined;
                if (inBlock) {
                    matched = true;
                    exitCode = std::atoi(code.c_str());
                }
                continue;
            }
            if (inBlock)
                output += line + "\n";
        }
    }
    if (!matched) {
        if (const std::string file = env("WF_FAKE_OUTPUT"); !file.empty())
            output = readFile(file);
    }

    if (const std::string pidFile = env("WF_FAKE_CHILD_PIDFILE"); !pidFile.empty()) {
        const std::string mode = env("WF_FAKE_CHILD");
        const pid_t child = ::fork();
        if (child == 0) {
            if (mode == "writer") {
                for (int line = 0; line < 12000; ++line) {
                    writeAll(1, "still writing " + std::to_string(line) + "\n");
                    std::this_thread::sleep_for(std::chrono::milliseconds(50));
                }
            } else if (mode == "detached") {
                ::setsid();
                const int null = ::open("/dev/null", O_WRONLY);
                ::dup2(null, 1);
                ::dup2(null, 2);
            }
            ::sleep(600);
            ::_exit(0);
        }
        std::ofstream(pidFile) << child << "\n";
    }

    const int chunks = std::max(1, std::atoi(env("WF_FAKE_CHUNKS").c_str()));
    const int delay = env("WF_FAKE_CHUNK_DELAY_MS").empty() ? 50 : std::atoi(env("WF_FAKE_CHUNK_DELAY_MS").c_str());
    const std::size_t piece = (output.size() + chunks - 1) / std::max(1, chunks);
    for (int n = 0; n < chunks && static_cast<std::size_t>(n) * piece < output.size(); ++n) {
        if (n > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(delay));
        writeAll(1, output.substr(static_cast<std::size_t>(n) * piece, piece));
    }
    if (env("WF_FAKE_KILL_SELF") == "1")
        ::kill(::getpid(), SIGKILL);
    if (const std::string text = env("WF_FAKE_STDERR"); !text.empty())
        writeAll(2, text + "\n");
    if (env("WF_FAKE_CLOSE_OUTPUT") == "1") {
        const int null = ::open("/dev/null", O_WRONLY);
        ::dup2(null, 1);
        ::dup2(null, 2);
    }
    if (const std::string sleep = env("WF_FAKE_SLEEP_MS"); !sleep.empty())
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atol(sleep.c_str())));
    return exitCode;
}
