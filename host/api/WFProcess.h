#pragma once

#include "WFExport.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class IWFProcess;

/// Receives a running process's output as it arrives, one chunk per call, on the thread
/// that called Execute.
class WF_API IWFProcessOutputHandler {
public:
    virtual ~IWFProcessOutputHandler() = default;
    virtual void OnProcessStdOut(IWFProcess& process, const std::string& data) = 0;
    virtual void OnProcessStdErr(IWFProcess& process, const std::string& data) = 0;
};

/// The host's process runner. The program is started without a shell: the parameter text is
/// split into arguments with splitCommandLine. Standard input is empty and closed, so a program
/// that asks a question reads end-of-file instead of waiting for an answer. The program runs in
/// a process group of its own. When it ends, or is stopped, everything it started goes with it,
/// also what left its process group: the host adopts the processes the program leaves behind
/// (Linux child subreaper) and stops them. Output is read until the program has ended and its
/// pipes are closed, or for at most a second after its end while something it left holds them.
class WF_API IWFProcess {
public:
    virtual ~IWFProcess() = default;

    virtual void SetExecutable(const std::string& path) = 0;
    virtual std::string GetExecutable() const = 0;
    virtual void SetParameters(const std::string& text) = 0;
    virtual std::string GetParameters() const = 0;
    /// Empty: the caller's current directory.
    virtual void SetWorkingDirectory(const std::string& directory) = 0;
    virtual std::string GetWorkingDirectory() const = 0;

    /// Run without a console window (Windows); no effect elsewhere, where no window is made.
    virtual void SetRunHidden(bool hidden) = 0;
    /// Keep standard output as lines for GetOutputLines (queries); off for actions, whose
    /// output may be far larger than memory should hold.
    virtual void SetCollectOutput(bool collect) = 0;
    /// The longest the program may stay silent (no output, not ended), in milliseconds; then it
    /// is killed with its process tree and the run fails. 0: no bound.
    virtual void SetWaitTimeout(std::int64_t milliseconds) = 0;
    /// The longest the program may run at all, in milliseconds, whatever it does with its
    /// output; 0: no bound.
    virtual void SetTimeLimit(std::int64_t milliseconds) = 0;
    virtual void SetOutputHandler(IWFProcessOutputHandler* handler) = 0;

    /// Starts the program and waits for its end. False when it could not be started.
    virtual bool Execute() = 0;
    virtual int GetExitCode() const = 0;
    virtual const std::vector<std::string>& GetOutputLines() const = 0;
    /// Why the program could not be started, or how it ended when it did not end by itself.
    virtual std::string GetErrorText() const = 0;
    /// True when a bound (silence or time limit) stopped the program.
    virtual bool GetTimedOut() const = 0;
    /// True when Terminate stopped the program.
    virtual bool GetTerminated() const = 0;

    /// Stops the running program and its process tree within a tenth of a second; safe from
    /// any thread, and from a signal handler's watcher. A program not yet started never starts.
    virtual void Terminate() = 0;
};

/// A new process object, or nullptr. Tests may replace the factory.
WF_API std::shared_ptr<IWFProcess> CreateWFProcess();
using TWFProcessFactory = std::function<std::shared_ptr<IWFProcess>()>;
/// Replaces the factory; an empty function restores the real runner. Returns the previous one.
WF_API TWFProcessFactory SetWFProcessFactory(TWFProcessFactory factory);

/// The longest time limit a host accepts, in seconds (30 days): more is a typing error, and
/// would overflow the clocks it is added to.
constexpr std::int64_t kWFMaxTimeLimitSeconds = 30LL * 24 * 60 * 60;
enum class TWFTimeLimitParse { Ok, NotSeconds, TooLong };
/// Reads a time limit given in whole seconds, 0 meaning none.
WF_API TWFTimeLimitParse parseTimeLimitSeconds(std::string_view text, std::int64_t& seconds);

/// The first file named name in a folder of PATH that may be executed; empty when none.
/// Empty entries of PATH are skipped: a build host does not run programs from wherever it
/// happens to be.
WF_API std::string findProgramOnPath(const std::string& name);
