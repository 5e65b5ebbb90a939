#pragma once

#include "Options.h"
#include "Session.h"

#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ccsim {

/// Raised by a handler when the command line itself is wrong: the cause, then the usage block.
struct UsageError {
    std::string cause;
};

using Handler = void (*)(Session&, const ParsedArgs&);

/// One row of the command table.
struct Command {
    std::string_view name;
    std::string_view aliases; ///< blank-separated short names
    std::span<const OptionRule> options;
    std::string_view usage;
    Handler handler;
    /// Groups of switches of which a command line may give only one, blank-separated ("keep rm").
    std::span<const std::string_view> exclusive = {};
};

std::span<const Command> commands();
const Command* findCommand(std::string_view name);

/// The whole program: argv without the program name. Returns the exit status. With `keep`,
/// the store is opened there once and reused by later calls (the interactive mode).
int runCleartool(const std::vector<std::string>& args, const fs::path& cwd, std::ostream& out, std::ostream& err,
                 std::istream& in, std::unique_ptr<Store>* keep = nullptr);

/// Fails with the usage block when the command line gives two switches of one exclusive group.
void checkExclusive(const Command& cmd, const ParsedArgs& args);
/// The comment of -c / -cfile, empty for -nc or none.
std::string commentOf(Session& s, const ParsedArgs& args);
/// Fails with the usage block unless there is at least one operand.
void requireOperands(const ParsedArgs& args);

} // namespace ccsim
