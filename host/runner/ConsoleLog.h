#pragma once

#include "WFLog.h"

#include <fstream>
#include <iosfwd>
#include <string>

/// wfbuild's build log. The console gets a header per action, then its lines: messages and
/// standard output on standard output, the program's standard error on standard error. The
/// log file gets every line exactly as sent and nothing else. Both are flushed line by line,
/// so a build can be watched while it runs. The lines of the current action are also kept
/// for the report.
class TConsoleLog final : public IWFLogSink {
public:
    TConsoleLog(std::ostream& out, std::ostream& err);

    /// Opens (truncates) the plain log file; false with a reason.
    bool OpenLogFile(const std::string& path, std::string& error);
    /// Starts the console section of one action and forgets the previous action's lines.
    void BeginAction(std::size_t number, std::size_t total, const std::string& title);
    void Line(Stream stream, std::string_view text) override;
    /// The lines sent since BeginAction, each ended by a line break.
    const std::string& ActionText() const { return m_actionText; }

private:
    std::ostream& m_out;
    std::ostream& m_err;
    std::ofstream m_file;
    std::string m_actionText;
};

/// The console title of an action: "[3/12] ClearCase Check Out: nightly".
std::string consoleHeader(std::size_t number, std::size_t total, const std::string& title);
