#pragma once

#include <string>
#include <vector>

/// One action of a run as a JUnit test case.
struct TJUnitCase {
    enum class Outcome { Passed, Failed, Skipped };
    std::string name;
    std::string className;
    double seconds = 0;
    Outcome outcome = Outcome::Passed;
    /// Why it failed or was skipped.
    std::string message;
    /// The action's log, for a failed case.
    std::string log;
    /// A clean-up action: reported in a suite of its own.
    bool cleanup = false;
};

/// A JUnit XML document with one suite named suiteName and, when clean-up actions ran,
/// a second suite "suiteName (clean-up)" holding them. Text that XML cannot carry (control
/// characters, bytes that are not UTF-8) is replaced by U+FFFD so every dashboard can read it.
std::string renderJUnitReport(const std::string& suiteName, const std::vector<TJUnitCase>& cases);
