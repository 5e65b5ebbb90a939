#pragma once

#include "WFVariant.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class TCustomWFAction;
class TWFBuildVariables;

struct TWFProjectVariable {
    std::string name;
    /// "string", "integer" or "boolean".
    std::string type = "string";
    std::string value;
};

/// A problem found in a project file, with its place (line and column from 1; 0 when unknown).
struct TWFProjectDiagnostic {
    std::string file;
    long long line = 0;
    long long column = 0;
    std::string message;
    /// Warnings (an unknown property) are reported and ignored; errors stop the load.
    bool isError = true;

    std::string ToString() const;
};

/// A build project: its variables, settings and actions in order.
class TWFProject {
public:
    TWFProject();
    ~TWFProject();
    TWFProject(TWFProject&&) noexcept;
    TWFProject& operator=(TWFProject&&) noexcept;

    std::vector<TWFProjectVariable> variables;
    std::vector<std::unique_ptr<TCustomWFAction>> actions;
    /// Longest a process of any action may run, in seconds; 0: no bound.
    std::int64_t timeoutSeconds = 0;

    /// Puts the project's variables into a run's variable set.
    void DefineVariables(TWFBuildVariables& target) const;
};

/// Reads a project file, creating its actions through WFActionServices. Returns false when
/// any error was found; diagnostics then name the file, line and column.
bool ReadProjectFile(const std::string& path, TWFProject& project, std::vector<TWFProjectDiagnostic>& diagnostics);
bool ReadProjectText(const std::string& text, const std::string& fileName, TWFProject& project,
                     std::vector<TWFProjectDiagnostic>& diagnostics);
/// The project in canonical form: properties in each action's persistence order.
std::string WriteProjectText(const TWFProject& project);
/// Writes the project atomically; false with a reason, the old file left intact.
bool WriteProjectFile(const std::string& path, const TWFProject& project, std::string& error);
