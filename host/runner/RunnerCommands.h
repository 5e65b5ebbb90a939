#pragma once

#include "ExitStatus.h"

#include <iosfwd>
#include <string>
#include <vector>

/// The whole program: parses the arguments after the program name, runs the command and
/// returns the exit status.
int runWfbuild(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);
