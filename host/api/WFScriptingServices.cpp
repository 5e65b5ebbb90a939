#include "WFScriptingServices.h"

#include "WFNamedList.h"
#include "WFPersistence.h"

#include <algorithm>

void TWFScriptingServices::RegisterFunction(const std::string& name, const std::string& /*resultType*/,
                                            const std::vector<std::string>& /*valueTypes*/, TRoutine routine,
                                            void* /*reserved*/)
{
    setNamed(m_functions, name, std::move(routine));
}

void TWFScriptingServices::RegisterEnumeration(const std::string& name, const std::vector<std::string>& members)
{
    setNamed(m_enumerations, name, members);
}

bool TWFScriptingServices::HasFunction(const std::string& name) const
{
    return std::any_of(m_functions.begin(), m_functions.end(), [&](const auto& f) { return f.first == name; });
}

bool TWFScriptingServices::Evaluate(const std::string& function, const std::string& property, std::string& text,
                                    std::string& error) const
{
    const auto found = std::find_if(m_functions.begin(), m_functions.end(), [&](const auto& f) { return f.first == function; });
    if (found == m_functions.end() || !found->second) {
        error = "unknown function \"" + function + "()\"";
        return false;
    }
    const TWFVariant value = found->second();
    if (property.empty()) {
        text = value.toString();
        return true;
    }
    TZTXMLObject* object = value.toObject();
    if (!object) {
        error = "\"" + function + "()\" returned no object to read \"" + property + "\" from";
        return false;
    }
    if (!object->FindProperty(property)) {
        error = "\"" + function + "()\" has no property \"" + property + "\"";
        return false;
    }
    text = object->GetPropertyText(property);
    return true;
}

TWFFunctionResolver TWFScriptingServices::Resolver() const
{
    return [this](const std::string& function, const std::string& property,
                  std::string& error) -> std::optional<std::string> {
        std::string text;
        if (!Evaluate(function, property, text, error))
            return std::nullopt;
        return text;
    };
}

void TWFScriptingServices::Clear()
{
    m_functions.clear();
    m_enumerations.clear();
}

TWFScriptingServices& WFScriptingServices()
{
    static TWFScriptingServices services;
    return services;
}
