#pragma once

#include "WFExport.h"
#include "WFExpression.h"
#include "WFVariant.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Global functions and enumerations for expressions and scripts.
class WF_API TWFScriptingServices {
public:
    using TRoutine = std::function<TWFVariant()>;

    TWFVariant ObjectToVariant(TZTXMLObject* object) const { return TWFVariant::FromObject(object); }
    /// Registers a function without arguments; `%Name().Property%` reads a property of the
    /// object it returns, `%Name()%` its text. The reserved argument is for the host's use.
    void RegisterFunction(const std::string& name, const std::string& resultType,
                          const std::vector<std::string>& valueTypes, TRoutine routine, void* reserved = nullptr);
    void RegisterEnumeration(const std::string& name, const std::vector<std::string>& members);

    bool HasFunction(const std::string& name) const;
    /// Calls a function and reads a property of its result (empty property: the result's
    /// text). False with a reason for an unknown function or property.
    bool Evaluate(const std::string& function, const std::string& property, std::string& text,
                  std::string& error) const;
    /// Evaluate as a resolver for a run's TWFActionHost.
    TWFFunctionResolver Resolver() const;
    const std::vector<std::pair<std::string, std::vector<std::string>>>& Enumerations() const { return m_enumerations; }
    void Clear();

private:
    std::vector<std::pair<std::string, TRoutine>> m_functions;
    std::vector<std::pair<std::string, std::vector<std::string>>> m_enumerations;
};

WF_API TWFScriptingServices& WFScriptingServices();
