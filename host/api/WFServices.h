#pragma once

/// The registration services a package uses from WFRegister: the action catalogue, the
/// options objects and the scripting functions, and the designer's view of the open project.
#include "WFActionServices.h"
#include "WFExport.h"
#include "WFOptionsServices.h"
#include "WFScriptingServices.h"
#include "WFVariables.h"

#include <functional>
#include <string>
#include <vector>

/// Design-time services: what the open project holds.
class WF_API TWFDesignApplicationServices {
public:
    std::function<std::vector<std::string>()> variableNamesProvider;
    /// The open project's build variables with their values in the project.
    std::function<TWFBuildVariables()> variablesProvider;
    /// The names of the open project's build variables.
    std::vector<std::string> GetVariableNames() const { return variableNamesProvider ? variableNamesProvider() : std::vector<std::string>{}; }
    /// Expands a page's value as a run would at its start: the project's variables, else the
    /// environment, and the script functions. False with the reason when it cannot.
    bool ExpandExpression(const std::string& text, std::string& expanded, std::string& error) const;
};

WF_API TWFDesignApplicationServices& WFDesignApplicationServices();
