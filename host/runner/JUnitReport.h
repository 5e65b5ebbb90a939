#pragma once

#include <string>
#include <utility>
#include <vector>

/// One action of a run as a JUnit test case.
struct TJUnitCase {
    /// Failed: the action's program (or the action itself) failed. Error: the action could not
    /// be started at all (not valid, no command line, program not found).
    enum class Outcome { Passed, Failed, Error, Skipped };
    std::string name;
    std::string className;
    double seconds = 0;
    Outcome outcome = Outcome::Passed;
    /// Why it failed, errored or was skipped: one line.
    std::string message;
    /// The action's log: the body of a failure or error, the standard output of a passed case.
    std::string log;
    /// What the action's program wrote on standard error.
    std::string errors;
    /// A clean-up action: reported in a suite of its own.
    bool cleanup = false;
    /// Failed because the run was stopped, not by a fault of its own.
    bool stopped = false;
};

/// One run as a JUnit suite.
struct TJUnitSuite {
    std::string name;
    /// When the run started, local time, "2026-11-25T16:07:21".
    std::string timestamp;
    std::string hostname;
    /// The build variables, in name order.
    std::vector<std::pair<std::string, std::string>> properties;
    std::vector<TJUnitCase> cases;
};

/// A JUnit XML document holding the run's suite and, when clean-up actions ran, a second suite
/// "NAME (clean-up)" holding them. Text is cleaned for every reader: ANSI escape
/// sequences are removed, other control characters dropped, and bytes that are not UTF-8
/// become "?" (some readers refuse U+FFFD).
std::string renderJUnitReport(const TJUnitSuite& suite);

/// text as a report shows it: escape sequences and control characters gone, tabs and line
/// breaks kept, bytes that are not UTF-8 replaced by "?".
std::string reportText(const std::string& text);

/// The local time as a JUnit timestamp, "2026-11-25T16:07:21".
std::string junitTimestamp();
/// This machine's name, or "localhost".
std::string junitHostname();
