#pragma once

#include <string>
#include <utility>
#include <vector>

namespace wftest {

/// One start of a program under test, with what it printed and how it ended.
struct ProgramRun {
    /// The exit code, or 128 + the signal that ended it.
    int status = -1;
    std::string out;
    std::string err;
    /// Milliseconds from start to end.
    long long elapsedMs = 0;
};

struct ProgramRequest {
    std::string program;
    std::vector<std::string> arguments;
    /// Added to (or replacing in) the test's own environment.
    std::vector<std::pair<std::string, std::string>> environment;
    std::string workingDirectory;
    /// When set, the program gets `signal` as soon as this file holds a complete line.
    std::string signalWhenFileReady;
    int signal = 0;
    /// When positive, the program gets `signal` this many milliseconds after its start.
    int signalAfterMs = 0;
    /// Stop reading the program's standard output at once, as a reader that quits does.
    bool closeStandardOutput = false;
    /// Bytes any file the program writes may grow to (RLIMIT_FSIZE; the program's own answer to
    /// SIGXFSZ decides whether a write beyond it kills it or fails with EFBIG); 0: no limit.
    long long fileSizeLimit = 0;
    /// Standard output goes to this file instead of the collecting pipe (/dev/full: every write fails).
    std::string stdoutFile;
    /// Standard input comes from this file; empty: the test's own.
    std::string stdinFile;
    /// Starts the program with standard output closed, as `>&-` does.
    bool closeStdout = false;
    /// Killed after this long; the run then reports status -1.
    int deadlineMs = 10000;
};

/// Starts the program without a shell and waits for its end, collecting both outputs.
ProgramRun runProgram(const ProgramRequest& request);

/// True when no process with this pid runs any more (a zombie awaiting its reaper counts as gone).
bool processGone(int pid);
/// Waits up to timeoutMs for the process to be gone. When it is not, kills it, so that a failing
/// test leaves nothing behind, and returns false.
bool awaitProcessGone(int pid, int timeoutMs = 2000);

} // namespace wftest
