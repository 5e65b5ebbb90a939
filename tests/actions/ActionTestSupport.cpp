#include "ActionTestSupport.h"

#include "actions/WFClearCaseCheckInGenericAction.h"
#include "actions/WFClearCaseLockGenericAction.h"
#include "environment/WFClearCaseOptions.h"
#include "WFFiles.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFServices.h"

#include <gtest/gtest.h>


namespace wftest {

namespace {

IWFClearCaseOptions& options()
{
    static const bool registered = [] {
        RegisterOptions();
        return true;
    }();
    (void)registered;
    IWFClearCaseOptions* found = ClearCaseOptions();
    if (!found)
        throw std::runtime_error("the ClearCase options are not registered");
    return *found;
}

} // namespace

std::unique_ptr<TClearCaseBaseAction> createAction(const std::string& className)
{
    if (const TClearCaseCatalogueRow* row = ClearCaseFindClass(className))
        return ClearCaseCreateAction(*row);
    // The two intermediate classes that can stand alone: their parts of the command line and
    // their properties are tested by themselves.
    if (className == "TClearCaseCheckInGenericAction")
        return std::make_unique<TClearCaseCheckInGenericAction>();
    if (className == "TClearCaseLockGenericAction")
        return std::make_unique<TClearCaseLockGenericAction>();
    return nullptr;
}

ActionEnvironment::ActionEnvironment()
{
    cleartool = installFakeProgram(dir.path(), "cleartool");
    view = dir.path() + "/view";
    project = dir.path() + "/project";
    makeDirectories(view);
    makeDirectories(project);
    dir.write("specs/rel 1.cs", "element * /main/LATEST\n");
    setCleartoolPath(cleartool);
    setDefaultView("");
    options().SetTestForClearCaseType(false);
    host.log = &log;
    host.variables = &variables;
    host.defaultStartingDir = project;
}

void ActionEnvironment::useCleartool(const std::string& choice)
{
    if (choice == "-")
        setCleartoolPath("");
    else if (!choice.empty())
        setCleartoolPath(expand(choice));
}

void ActionEnvironment::setCleartoolPath(const std::string& path)
{
    options().SetClearToolPath(path);
}

void ActionEnvironment::setDefaultView(const std::string& path)
{
    options().SetDefaultViewPath(path);
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
