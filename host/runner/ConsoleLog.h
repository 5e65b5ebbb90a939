#pragma once

#include "WFLog.h"

#include <iosfwd>
#include <string>

/// wfbuild's build log. The console gets a header per action, then its lines: messages and
/// standard output on standard output, the program's standard error on standard error. The
/// log file gets every line exactly as sent and nothing else. Messages are flushed at once and
/// program output as soon as the chunk that brought it has been handed over, so the last line
/// before a hang is on the console and in the log; a large listing comes in large chunks, so
/// that is no write per line. An action's header and the messages before its program starts
/// go out together, in one write, as the program starts (Settle). The last lines of the
/// current action are kept for the report: enough to explain a failure, never the whole of a
/// large output.
class TConsoleLog final : public IWFLogSink {
public:
    TConsoleLog(std::ostream& out, std::ostream& err);

    ~TConsoleLog() override;
    TConsoleLog(const TConsoleLog&) = delete;
    TConsoleLog& operator=(const TConsoleLog&) = delete;

    /// Opens (truncates) the plain log file, close-on-exec so that no program inherits it;
    /// false with a reason.
    bool OpenLogFile(const std::string& path, std::string& error);
    /// Starts the console section of one action and forgets the previous action's lines. The
    /// header waits for the next Settle or Flush, as do the messages until then.
    void BeginAction(std::size_t number, std::size_t total, const std::string& title, bool cleanup = false);
    void Line(Stream stream, std::string_view text) override;
    void Settle() override;
    /// The lines sent since BeginAction, each ended by a line break; when they exceed the
    /// report's limit, the last ones after a note of how much was left out.
    std::string ActionText() const;
    /// As ActionText, the program's standard error alone.
    std::string ActionErrors() const;
    /// The last line of the current action that was not blank, of one stream.
    const std::string& LastLine(Stream stream) const { return m_lastLine[static_cast<int>(stream)]; }
    /// Flushes the console and the log file.
    void Flush();
    /// The first write to the console or the log file that failed (a full disk, a closed
    /// pipe), or empty. A log that lost lines must not let the run claim success.
    const std::string& WriteFailure() const { return m_writeFailure; }
    /// Records a failure found outside the log (the JUnit report, the variables line).
    void NoteWriteFailure(const std::string& reason);

private:
    /// The end of a stream of lines, kept within the report's limit.
    struct TTail {
        std::string text;
        std::size_t droppedBytes = 0;
        void add(std::string_view line);
        std::string str() const;
    };

    void flushFile();
    void checkConsole();

    std::ostream& m_out;
    std::ostream& m_err;
    int m_fd = -1;
    std::string m_path;
    std::string m_pending;
    bool m_held = false;
    std::string m_writeFailure;

    TTail m_actionText;
    TTail m_actionErrors;
    std::string m_lastLine[3];
};

/// The console title of an action: "[3/12] ClearCase Check Out: nightly", or of a clean-up
/// action: "[clean-up 1/2] ClearCase Undo Check Out".
std::string consoleHeader(std::size_t number, std::size_t total, const std::string& title, bool cleanup = false);
