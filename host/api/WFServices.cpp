#include "WFServices.h"

TWFDesignApplicationServices& WFDesignApplicationServices()
{
    static TWFDesignApplicationServices services;
    return services;
}

bool TWFDesignApplicationServices::ExpandExpression(const std::string& text, std::string& expanded, std::string& error) const
{
    const TWFBuildVariables variables = variablesProvider ? variablesProvider() : TWFBuildVariables();
    return expandExpression(text, expressionScope(&variables, WFScriptingServices().Resolver()), expanded, error);
}
