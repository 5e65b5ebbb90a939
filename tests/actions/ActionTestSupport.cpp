#include "ActionTestSupport.h"

#include "actions/WFClearCaseCheckInGenericAction.h"
#include "WFFiles.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFServices.h"

#include <gtest/gtest.h>

namespace wftest {

std::unique_ptr<TClearCaseBaseAction> createAction(const std::string& className)
{
    if (const TClearCaseCatalogueRow* row = ClearCaseFindClass(className))
        return ClearCaseCreateAction(*row);
    // The check-in's intermediate class stands alone: its part of the command line is tested by itself.
    if (className == "TClearCaseCheckInGenericAction")
        return std::make_unique<TClearCaseCheckInGenericAction>();
    return nullptr;
}

ActionEnvironment::ActionEnvironment() : dir(cleartool.temp()), view(dir.path() + "/view"), project(dir.path() + "/project")
{
    makeDirectories(view);
    makeDirectories(project);
    dir.write("specs/rel 1.cs", "element * /main/LATEST\n");
    cleartool.options().SetTestForClearCaseType(false);
    host.log = &log;
    host.variables = &variables;
    host.defaultStartingDir = project;
}

void ActionEnvironment::useCleartool(const std::string& choice)
{
    if (choice == "-")
        cleartool.options().SetClearToolPath("");
    else if (!choice.empty())
        cleartool.options().SetClearToolPath(expand(choice));
}

std::string ActionEnvironment::expand(const std::string& text) const
{
    return replaceAll(replaceAll(replaceAll(text, "{view}", view), "{project}", project), "{dir}", dir.path());
}

std::vector<std::string> ActionEnvironment::expand(const std::vector<std::string>& texts) const
{
    std::vector<std::string> result;
    for (const auto& text : texts)
        result.push_back(expand(text));
    return result;
}

std::unique_ptr<TClearCaseBaseAction> ActionEnvironment::create(const std::string& className,
                                                                const PropertyTexts& properties)
{
    auto action = createAction(className);
    if (!action) {
        ADD_FAILURE() << "no action class " << className;
        return nullptr;
    }
    action->SetHost(&host);
    for (const auto& [name, text] : properties) {
        std::string error;
        EXPECT_TRUE(action->SetPropertyText(name, expand(text), &error)) << className << "." << name << ": " << error;
    }
    return action;
}

} // namespace wftest
