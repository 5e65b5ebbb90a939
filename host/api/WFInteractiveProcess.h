#pragma once

#include "WFExport.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A program that stays running and is talked to through its standard input and output, for
/// tools with a command loop. Like IWFProcess it runs without a shell, in a process group of
/// its own; unlike it, standard input stays open until the object goes.
class WF_API IWFInteractiveProcess {
public:
    enum class ReadResult {
        Data,    ///< standard output arrived and was appended
        Timeout, ///< nothing arrived in time
        Closed,  ///< standard output is closed: the program ended or was stopped
    };

    virtual ~IWFInteractiveProcess() = default;

    /// Starts the program with the arguments as given (no splitting). False when it could not
    /// be started; GetErrorText says why.
    virtual bool Start(const std::string& executable, const std::vector<std::string>& arguments,
                       const std::string& workingDirectory) = 0;
    /// Writes all of `data` to the program's standard input. False when the program no longer
    /// reads it; never raises SIGPIPE.
    virtual bool Write(const std::string& data) = 0;
    /// Waits at most `milliseconds` for standard output and appends what arrived to `output`.
    /// Standard error is read along the way, so the program never blocks on it.
    virtual ReadResult Read(std::string& output, int milliseconds) = 0;
    /// The last 64 KiB of standard error.
    virtual std::string GetErrorOutput() const = 0;
    virtual std::string GetErrorText() const = 0;
    /// Stops the program and its process tree; safe from any thread. A Read under way returns
    /// Closed soon after.
    virtual void Terminate() = 0;
};

/// A new interactive process object, or nullptr. Tests may replace the factory.
WF_API std::shared_ptr<IWFInteractiveProcess> CreateWFInteractiveProcess();
using TWFInteractiveProcessFactory = std::function<std::shared_ptr<IWFInteractiveProcess>()>;
/// Replaces the factory; an empty function restores the real one. Returns the previous one.
WF_API TWFInteractiveProcessFactory SetWFInteractiveProcessFactory(TWFInteractiveProcessFactory factory);
