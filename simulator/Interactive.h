#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ccsim {

/// True for the argument lists that start the interactive mode: none, or only -status and -e.
bool isInteractiveInvocation(const std::vector<std::string>& args);

/// The interactive mode: prompts with "cleartool> ", reads one sub-command a line (a line
/// ending in a backslash continues on the next), runs it as the single-command mode would, and
/// with -status reports "Command N returned status S" after each. cd, pwd, quit and exit are
/// its own; end of input ends it. With -e the first failing sub-command ends it with its status.
int runInteractive(const std::vector<std::string>& args, const std::filesystem::path& cwd, std::ostream& out,
                   std::ostream& err, std::istream& in);

/// Splits an interactive line into words: blanks and tabs separate, double or single quotes
/// group (the other kind is literal inside), quoted and bare parts of a word join. Nothing when
/// a quote is left open.
std::optional<std::vector<std::string>> splitInteractiveLine(std::string_view line);

} // namespace ccsim
