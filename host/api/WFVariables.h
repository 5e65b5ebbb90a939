#pragma once

#include "WFExport.h"
#include "WFVariant.h"

#include <map>
#include <string>
#include <string_view>

/// The build variables of one run, by name (case-sensitive).
class WF_API TWFBuildVariables {
public:
    bool IsDefined(const std::string& name) const { return m_values.count(name) != 0; }
    TWFVariant Get(const std::string& name) const;
    void Set(const std::string& name, TWFVariant value) { m_values[name] = std::move(value); }
    void Remove(const std::string& name) { m_values.erase(name); }
    const std::map<std::string, TWFVariant>& All() const { return m_values; }

    /// The variables as one JSON object on a single line, names in order.
    std::string ToJson() const;

private:
    std::map<std::string, TWFVariant> m_values;
};

/// Why a name cannot name a build variable (empty, or holding a blank, a control character or
/// `%`, so that `%NAME%` could not reach it); empty when it can.
WF_API std::string variableNameProblem(std::string_view name);

/// Appends text to a JSON string literal, quotes included.
WF_API void appendJsonString(std::string& out, std::string_view text);
