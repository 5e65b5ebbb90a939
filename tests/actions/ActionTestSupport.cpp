#include "ActionTestSupport.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseCheckInActivityAction.h"
#include "actions/WFClearCaseCheckInGenericAction.h"
#include "actions/WFClearCaseCheckInPathAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseFindCheckoutsAction.h"
#include "actions/WFClearCaseGetConfigSpecAction.h"
#include "actions/WFClearCaseLockGenericAction.h"
#include "actions/WFClearCaseLockObjectsAction.h"
#include "actions/WFClearCaseLockPathNamesAction.h"
#include "actions/WFClearCaseMakeActivityAction.h"
#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "actions/WFClearCaseMakeBaselineAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "actions/WFClearCaseMakeElementAction.h"
#include "actions/WFClearCaseMkLbTypeAction.h"
#include "actions/WFClearCaseSetActivityAction.h"
#include "actions/WFClearCaseSetConfigSpecAction.h"
#include "actions/WFClearCaseUnCheckOutAction.h"
#include "actions/WFClearCaseUnCheckOutActivityAction.h"
#include "actions/WFClearCaseUnlockObjectsAction.h"
#include "actions/WFClearCaseUnlockPathNamesAction.h"
#include "actions/WFClearCaseUpdateAction.h"
#include "environment/WFClearCaseOptions.h"
#include "WFFiles.h"
#include "WFServices.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace wftest {

namespace {

using Factory = std::function<std::unique_ptr<TClearCaseBaseAction>()>;

template <typename T>
std::pair<const std::string, Factory> entry(const char* name)
{
    return {name, [] { return std::unique_ptr<TClearCaseBaseAction>(std::make_unique<T>()); }};
}

const std::map<std::string, Factory>& factories()
{
    static const std::map<std::string, Factory> table{
        entry<TClearCaseUpdateAction>("TClearCaseUpdateAction"),
        entry<TClearCaseCheckoutAction>("TClearCaseCheckoutAction"),
        entry<TClearCaseCheckInPathAction>("TClearCaseCheckInPathAction"),
        entry<TClearCaseUnCheckOutAction>("TClearCaseUnCheckOutAction"),
        entry<TClearCaseFindCheckoutsAction>("TClearCaseFindCheckoutsAction"),
        entry<TClearCaseMakeElementAction>("TClearCaseMakeElementAction"),
        entry<TClearCaseMkLbTypeAction>("TClearCaseMkLbTypeAction"),
        entry<TClearCaseApplyLabelAction>("TClearCaseApplyLabelAction"),
        entry<TClearCaseMakeAttributeTypeAction>("TClearCaseMakeAttributeTypeAction"),
        entry<TClearCaseApplyAttributePathNamesAction>("TClearCaseApplyAttributePathNamesAction"),
        entry<TClearCaseApplyAttributeObjectsAction>("TClearCaseApplyAttributeObjectsAction"),
        entry<TClearCaseLockPathNamesAction>("TClearCaseLockPathNamesAction"),
        entry<TClearCaseUnlockPathNamesAction>("TClearCaseUnlockPathNamesAction"),
        entry<TClearCaseLockObjectsAction>("TClearCaseLockObjectsAction"),
        entry<TClearCaseUnlockObjectsAction>("TClearCaseUnlockObjectsAction"),
        entry<TClearCaseCleartoolAction>("TClearCaseCleartoolAction"),
        entry<TClearCaseGetConfigSpecAction>("TClearCaseGetConfigSpecAction"),
        entry<TClearCaseSetConfigSpecAction>("TClearCaseSetConfigSpecAction"),
        entry<TClearCaseMakeActivityAction>("TClearCaseMakeActivityAction"),
        entry<TClearCaseSetActivityAction>("TClearCaseSetActivityAction"),
        entry<TClearCaseCheckInActivityAction>("TClearCaseCheckInActivityAction"),
        entry<TClearCaseUnCheckOutActivityAction>("TClearCaseUnCheckOutActivityAction"),
        entry<TClearCaseMakeBaselineAction>("TClearCaseMakeBaselineAction"),
        entry<TClearCaseMakeBaselineFromLabelAction>("TClearCaseMakeBaselineFromLabelAction"),
        entry<TClearCaseCheckInGenericAction>("TClearCaseCheckInGenericAction"),
        entry<TClearCaseLockGenericAction>("TClearCaseLockGenericAction"),
    };
    return table;
}

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

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
    const auto found = factories().find(className);
    return found == factories().end() ? nullptr : found->second();
}

std::vector<std::string> actionClassNames()
{
    std::vector<std::string> names;
    for (const auto& [name, factory] : factories())
        names.push_back(name);
    return names;
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
    std::string result = text;
    replaceAll(result, "{view}", view);
    replaceAll(result, "{project}", project);
    replaceAll(result, "{dir}", dir.path());
    return result;
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
