#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// Exit statuses of wfbuild.
enum : int {
    kExitSuccess = 0,
    kExitFailed = 1,
    kExitUsage = 2,
    kExitInterrupted = 130,
};

/// The whole program: parses the arguments after the program name, runs the command and
/// returns the exit status.
int runWfbuild(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);
