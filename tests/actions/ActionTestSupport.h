#pragma once

#include "FakeCleartool.h"
#include "actions/WFClearCaseBaseAction.h"

#include "WFVariables.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace wftest {

using PropertyTexts = std::vector<std::pair<std::string, std::string>>;

/// A new action of a catalogued class, made by the catalogue, or of the check-in's intermediate
/// class; nullptr for any other name.
std::unique_ptr<TClearCaseBaseAction> createAction(const std::string& className);

/// A run-time environment for actions: the real options pointing at a fake cleartool (whose
/// folder is `{dir}`), a view folder, a project folder as the host's default directory, a config
/// spec file `{dir}/specs/rel 1.cs`, a recording log and build variables.
class ActionEnvironment {
public:
    ActionEnvironment();

    /// `{view}`, `{project}` and `{dir}` replaced by the folders.
    std::string expand(const std::string& text) const;
    std::vector<std::string> expand(const std::vector<std::string>& texts) const;
    /// A new action of the class, bound to the host, its properties set from persisted text
    /// (after expand); a property that does not take its text fails the test.
    std::unique_ptr<TClearCaseBaseAction> create(const std::string& className, const PropertyTexts& properties);

    /// A table row's choice of cleartool: empty keeps the fake program, "-" stores none at all,
    /// anything else is expanded and stored.
    void useCleartool(const std::string& choice);

    FakeCleartool cleartool;
    const TempDir& dir;
    std::string view;
    std::string project;
    RecordingLog log;
    TWFBuildVariables variables;
    TWFActionHost host;
};

} // namespace wftest
