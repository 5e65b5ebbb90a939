#pragma once

#include "Session.h"

#include <optional>
#include <string>

namespace ccsim {

/// Where an element of `vobTag` at `vobPath` lives inside a snapshot view.
fs::path viewFile(const View& view, const std::string& vobTag, const std::string& vobPath);

std::string readFile(const fs::path& file);
/// A loaded file changed without a check-out: writable, or its data differs from the loaded version.
bool isHijacked(Session& s, const View& view, std::int64_t element, const fs::path& file);
/// "a.c.keep", or "a.c.keep.1" and so on when taken.
fs::path keepName(const fs::path& file);

struct UpdateOptions {
    bool print = false;     ///< preview: write the log only
    std::string hijack = "nooverwrite"; ///< overwrite | nooverwrite | rename
    bool ptime = false;
    std::optional<std::string> log; ///< -log: where the log goes, as the user named it
};

/// Brings the view's files in line with its config spec, printing progress and writing the update log.
void updateView(Session& s, const View& view, const UpdateOptions& options);

} // namespace ccsim
