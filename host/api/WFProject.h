#pragma once

#include "WFExport.h"
#include "WFVariant.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class TCustomWFAction;
class TWFBuildVariables;

struct WF_API TWFProjectVariable {
    std::string name;
    /// "string", "integer" or "boolean".
    std::string type = "string";
    std::string value;
};

/// A problem found in a project file, with its place (line and column from 1; 0 when unknown).
struct WF_API TWFProjectDiagnostic {
    std::string file;
    long long line = 0;
    long long column = 0;
    std::string message;
    /// Warnings (an unknown property) are reported and ignored; errors stop the load.
    bool isError = true;

    std::string ToString() const;
};

/// A build project: its variables, settings and actions in order.
class WF_API TWFProject {
public:
    TWFProject();
    ~TWFProject();
    TWFProject(TWFProject&&) noexcept;
    TWFProject& operator=(TWFProject&&) noexcept;

    std::vector<TWFProjectVariable> variables;
    std::vector<std::unique_ptr<TCustomWFAction>> actions;
    /// Run in order after the actions when the build fails or is interrupted, never after a success.
    std::vector<std::unique_ptr<TCustomWFAction>> cleanupActions;
    /// Longest a process of any action may run, in seconds; 0: no bound.
    std::int64_t timeoutSeconds = 0;
    /// Longest the clean-up may take after an interrupt, in seconds; unset: the host's default.
    std::optional<std::int64_t> cleanupTimeoutSeconds;

    /// Puts the project's variables into a run's variable set.
    void DefineVariables(TWFBuildVariables& target) const;
};

/// The format version of files that use nothing newer than version 1 (so that older hosts
/// keep reading them), and the newest this host reads: version 2 adds clean-up actions,
/// the clean-up time limit and the continue-on-failure flag.
inline constexpr int kWFProjectFormatBase = 1;
inline constexpr int kWFProjectFormatNewest = 2;
/// The version a project needs: the lowest that holds everything it uses.
WF_API int projectFormatVersion(const TWFProject& project);

/// Larger project files are refused while they are read.
inline constexpr long long kWFProjectSizeLimit = 16LL * 1024 * 1024;
/// An element with more attributes is refused before the XML reader sees it: no element of
/// the format has more than three, and the reader's cost grows with the square of the count.
inline constexpr std::size_t kWFProjectAttributeLimit = 64;

/// Reads a project file, creating its actions through WFActionServices. Returns false when
/// any error was found; diagnostics then name the file, line and column. Only a regular file
/// of at most kWFProjectSizeLimit bytes is read; bytesRead receives what was read.
WF_API bool ReadProjectFile(const std::string& path, TWFProject& project, std::vector<TWFProjectDiagnostic>& diagnostics,
                            std::string* bytesRead = nullptr);
WF_API bool ReadProjectText(const std::string& text, const std::string& fileName, TWFProject& project,
                     std::vector<TWFProjectDiagnostic>& diagnostics);
/// What a project text holds that saving it would lose (XML comments, a document type
/// declaration), as warnings with their places; empty when saving loses nothing of the kind.
WF_API std::vector<TWFProjectDiagnostic> ProjectMarkupLostOnSave(const std::string& text, const std::string& fileName);
/// The project in canonical form: properties in each action's persistence order.
WF_API std::string WriteProjectText(const TWFProject& project);
/// Writes the project atomically; false with a reason, the old file left intact.
WF_API bool WriteProjectFile(const std::string& path, const TWFProject& project, std::string& error);
