#pragma once

#include "actions/WFClearCaseBaseAction.h"
#include "WFTestSupport.h"

#include "WFVariables.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace wftest {

using PropertyTexts = std::vector<std::pair<std::string, std::string>>;

/// A new action of a catalogued class, made by the catalogue, or of one of the intermediate
/// classes that can stand alone; nullptr for any other name.
std::unique_ptr<TClearCaseBaseAction> createAction(const std::string& className);

/// A run-time environment for actions: the real options (registered through RegisterOptions)
/// pointing at a fake cleartool, a view folder, a project folder as the host's default
/// directory, a config spec file `{dir}/specs/rel 1.cs`, a recording log and build variables.
class ActionEnvironment {
public:
    ActionEnvironment();

    /// `{view}`, `{project}` and `{dir}` replaced by the folders.
    std::string expand(const std::string& text) const;
    std::vector<std::string> expand(const std::vector<std::string>& texts) const;
    /// A new action of the class, bound to the host, its properties set from persisted text
    /// (after expand); a property that does not take its text fails the test.
    std::unique_ptr<TClearCaseBaseAction> create(const std::string& className, const PropertyTexts& properties);

    void setCleartoolPath(const std::string& path);
    /// A table row's choice of cleartool: empty keeps the fake program, "-" stores none at all,
    /// anything else is expanded and stored.
    void useCleartool(const std::string& choice);
    void setDefaultView(const std::string& path);

    TempDir dir;
    std::string cleartool;
    std::string view;
    std::string project;
    RecordingLog log;
    TWFBuildVariables variables;
    TWFActionHost host;
};

} // namespace wftest
