#pragma once

/// The registration services a package uses from WFRegister: the action catalogue, the
/// options objects and the scripting functions, and the designer's view of the open project.
#include "WFActionServices.h"
#include "WFExport.h"
#include "WFOptionsServices.h"
#include "WFScriptingServices.h"

#include <functional>
#include <string>
#include <vector>

/// Design-time services: what the open project holds.
class WF_API TWFDesignApplicationServices {
public:
    std::function<std::vector<std::string>()> variableNamesProvider;
    /// The names of the open project's build variables.
    std::vector<std::string> GetVariableNames() const { return variableNamesProvider ? variableNamesProvider() : std::vector<std::string>{}; }
};

WF_API TWFDesignApplicationServices& WFDesignApplicationServices();
