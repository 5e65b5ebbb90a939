#include "shell/WFClearCaseRegistration.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseCheckInActivityAction.h"
#include "actions/WFClearCaseCheckInPathAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseFindCheckoutsAction.h"
#include "actions/WFClearCaseGetConfigSpecAction.h"
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
#include "environment/WFClearCaseQuerySession.h"

#include <dlfcn.h>

#include <iostream>
#include <memory>

namespace {

template <typename T>
std::unique_ptr<TClearCaseBaseAction> make()
{
    return std::make_unique<T>();
}

TWFPageClass page(const char* className)
{
    return TWFPageClass{className, {}};
}

TClearCasePageFactory g_pageFactory = nullptr;

/// The page library beside the plug-in this code was loaded from, loaded once.
TClearCasePageFactory loadPageLibrary()
{
    static TClearCasePageFactory loaded = [] () -> TClearCasePageFactory {
        Dl_info self{};
        if (!dladdr(reinterpret_cast<void*>(&loadPageLibrary), &self) || !self.dli_fname) {
            std::cerr << "WF30ClearCase: cannot tell where the package was loaded from; property pages unavailable\n";
            return nullptr;
        }
        std::string path = self.dli_fname;
        path = path.substr(0, path.find_last_of('/') + 1) + kClearCasePageLibrary;
        void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        const char* error = library ? nullptr : dlerror();
        auto factory = library ? reinterpret_cast<TClearCasePageFactory>(dlsym(library, kClearCasePageFactorySymbol)) : nullptr;
        if (!factory)
            std::cerr << "WF30ClearCase: property pages unavailable: " << (error ? error : path + " exports no page factory") << "\n";
        return factory;
    }();
    return loaded;
}

/// The page classes of a design-time host: each named class made by the page library.
TWFPageClass pageClassFor(const TWFPageClass& named, TClearCasePageFactory factory)
{
    TWFPageClass result = named;
    if (factory)
        result.create = [factory, name = named.className](QWidget* parent) { return factory(name.c_str(), parent); };
    return result;
}

std::vector<TWFPageClass> pageClassesFor(const std::vector<TWFPageClass>& named, TClearCasePageFactory factory)
{
    std::vector<TWFPageClass> result;
    for (const auto& one : named)
        result.push_back(pageClassFor(one, factory));
    return result;
}

// The catalogue: type ID, class name, display name, help topic, class. One row per action, in
// the order the host lists them.
const TClearCaseCatalogueRow kCatalogue[] = {
    {{"CC_UPDATE", "TClearCaseUpdateAction", "ClearCase Update Snapshot View", 4440}, make<TClearCaseUpdateAction>},
    {{"CC_CHECKOUT", "TClearCaseCheckoutAction", "ClearCase Check Out", 4460}, make<TClearCaseCheckoutAction>},
    {{"CC_CHECKIN", "TClearCaseCheckInPathAction", "ClearCase Check In", 4470}, make<TClearCaseCheckInPathAction>},
    {{"CC_UNCHECKOUT", "TClearCaseUnCheckOutAction", "ClearCase Undo Checkout", 4480}, make<TClearCaseUnCheckOutAction>},
    {{"CC_FINDCHECKOUTS", "TClearCaseFindCheckoutsAction", "ClearCase Find Checkouts", 4490}, make<TClearCaseFindCheckoutsAction>},
    {{"CC_MKELEM", "TClearCaseMakeElementAction", "ClearCase Make Element", 4500}, make<TClearCaseMakeElementAction>},
    {{"CC_MKLBTYPE", "TClearCaseMkLbTypeAction", "ClearCase Make Label Type", 4510}, make<TClearCaseMkLbTypeAction>},
    {{"CC_LABEL", "TClearCaseApplyLabelAction", "ClearCase Apply Label", 4520}, make<TClearCaseApplyLabelAction>},
    {{"CC_MKATTRTYPE", "TClearCaseMakeAttributeTypeAction", "ClearCase Make Attribute Type", 4530}, make<TClearCaseMakeAttributeTypeAction>},
    {{"CC_APPLYATTR", "TClearCaseApplyAttributePathNamesAction", "ClearCase Apply Attribute (Paths)", 4540}, make<TClearCaseApplyAttributePathNamesAction>},
    {{"CC_APPLYATTR_OBJ", "TClearCaseApplyAttributeObjectsAction", "ClearCase Apply Attribute (Objects)", 4540}, make<TClearCaseApplyAttributeObjectsAction>},
    {{"CC_LOCK", "TClearCaseLockPathNamesAction", "ClearCase Lock (Paths)", 4560}, make<TClearCaseLockPathNamesAction>},
    {{"CC_UNLOCK", "TClearCaseUnlockPathNamesAction", "ClearCase Unlock (Paths)", 4570}, make<TClearCaseUnlockPathNamesAction>},
    {{"CC_LOCK_OBJ", "TClearCaseLockObjectsAction", "ClearCase Lock (Objects)", 4560}, make<TClearCaseLockObjectsAction>},
    {{"CC_UNLOCK_OBJ", "TClearCaseUnlockObjectsAction", "ClearCase Unlock (Objects)", 4570}, make<TClearCaseUnlockObjectsAction>},
    {{"CC_GENERIC", "TClearCaseCleartoolAction", "ClearCase Run Cleartool (Generic)", 4580}, make<TClearCaseCleartoolAction>},
    {{"CC_GETCONFIGSPEC", "TClearCaseGetConfigSpecAction", "ClearCase Get Config Spec", 4590}, make<TClearCaseGetConfigSpecAction>},
    {{"CC_SETCONFIGSPEC", "TClearCaseSetConfigSpecAction", "ClearCase Set Config Spec", 4600}, make<TClearCaseSetConfigSpecAction>},
    {{"UCM_MAKEACTIVITY", "TClearCaseMakeActivityAction", "UCM Make Activity", 4610}, make<TClearCaseMakeActivityAction>},
    {{"UCM_SETACTIVITY", "TClearCaseSetActivityAction", "UCM Set Current Activity", 4620}, make<TClearCaseSetActivityAction>},
    {{"UCM_CHECKIN", "TClearCaseCheckInActivityAction", "UCM Check In Files for Activity", 4630}, make<TClearCaseCheckInActivityAction>},
    {{"UCM_UNCHECKOUT", "TClearCaseUnCheckOutActivityAction", "UCM Undo Checkouts for Activity", 4640}, make<TClearCaseUnCheckOutActivityAction>},
    {{"UCM_MAKEBL", "TClearCaseMakeBaselineAction", "UCM Make Baseline", 4650}, make<TClearCaseMakeBaselineAction>},
    {{"UCM_MAKEBL_LABEL", "TClearCaseMakeBaselineFromLabelAction", "UCM Make Baseline from Label", 4660}, make<TClearCaseMakeBaselineFromLabelAction>},
};

} // namespace

std::span<const TClearCaseCatalogueRow> ClearCaseCatalogue()
{
    return kCatalogue;
}

const TClearCaseCatalogueRow* ClearCaseFindClass(const std::string& className)
{
    for (const auto& row : kCatalogue)
        if (className == row.identity.className)
            return &row;
    return nullptr;
}

std::unique_ptr<TClearCaseBaseAction> ClearCaseCreateAction(const TClearCaseCatalogueRow& row)
{
    auto action = row.make();
    action->SetIdentity(row.identity);
    action->SetActionTypeID(row.identity.typeId);
    return action;
}

const std::vector<TClearCasePagesRow>& ClearCaseActionPages()
{
    // The lists are uneven on purpose: not every action has every page.
    static const auto viewPaths = page("TClearCaseViewPathNameFrame");
    static const auto extendedPaths = page("TClearCaseExtendedPathNameFrame");
    static const auto objects = page("TClearCaseObjectSelectorFrame");
    static const auto activity = page("TClearCaseActivitySelectorFrame");
    static const auto comment = page("TClearCaseCommentFrame");
    static const auto checkIn = page("TClearCaseCheckInFrame");
    static const auto lock = page("TClearCaseLockFrame");
    static const auto applyAttribute = page("TClearCaseApplyAttributeFrame");
    static const std::vector<TClearCasePagesRow> pages = {
        {"TClearCaseUpdateAction", {page("TClearCaseUpdateFrame")}},
        {"TClearCaseCheckoutAction", {viewPaths, extendedPaths, page("TClearCaseCheckOutFrame"), comment}},
        {"TClearCaseCheckInPathAction", {viewPaths, extendedPaths, checkIn, comment}},
        {"TClearCaseUnCheckOutAction", {viewPaths, extendedPaths, page("TClearCaseUnCheckOutFrame")}},
        {"TClearCaseUnCheckOutActivityAction", {page("TClearCaseUnCheckOutActivityFrame")}},
        {"TClearCaseCheckInActivityAction", {activity, checkIn, comment}},
        {"TClearCaseSetActivityAction", {activity, comment}},
        {"TClearCaseMkLbTypeAction", {page("TClearCaseMkLbTypeFrame"), comment}},
        {"TClearCaseApplyLabelAction", {viewPaths, extendedPaths, page("TClearCaseApplyLabelFrame"), comment}},
        {"TClearCaseLockPathNamesAction", {viewPaths, extendedPaths, lock, comment}},
        {"TClearCaseLockObjectsAction", {objects, lock, comment}},
        {"TClearCaseUnlockObjectsAction", {objects, comment}},
        {"TClearCaseUnlockPathNamesAction", {viewPaths, extendedPaths, comment}},
        {"TClearCaseMakeBaselineAction", {page("TClearCaseMakeBaselineFrame"), page("TClearCaseMakeBaseLineLabelFrame"), comment}},
        {"TClearCaseMakeBaselineFromLabelAction", {page("TClearCaseMakeBaselineFromLabelFrame"), comment}},
        {"TClearCaseCleartoolAction", {page("TClearCaseCleartoolFrame")}},
        {"TClearCaseMakeActivityAction", {page("TClearCaseMakeActivityFrame"), comment}},
        {"TClearCaseMakeAttributeTypeAction",
         {page("TClearCaseMakeAttributeTypeFrame"), page("TClearCaseMakeAttributeTypeOptionsFrame"), comment}},
        {"TClearCaseApplyAttributePathNamesAction", {viewPaths, applyAttribute, page("TClearCaseApplyAttributePathNamesFrame")}},
        {"TClearCaseApplyAttributeObjectsAction", {objects, applyAttribute, page("TClearCaseApplyAttributeObjectsFrame")}},
        {"TClearCaseSetConfigSpecAction", {page("TClearCaseSetConfigSpecFrame")}},
        {"TClearCaseGetConfigSpecAction", {page("TClearCaseGetConfigSpecFrame")}},
        {"TClearCaseFindCheckoutsAction", {page("TClearCaseFindCheckoutsFrame")}},
        {"TClearCaseMakeElementAction", {viewPaths, page("TClearCaseMakeElementFrame"), comment}},
    };
    return pages;
}

void ClearCaseRegister(bool registerPages)
{
    RegisterOptions();
    for (const auto& row : kCatalogue) {
        const TWFActionClass actionClass{row.identity.className, [&row] { return ClearCaseCreateAction(row); }};
        WFActionServices().RegisterAction(row.identity.displayName, kClearCaseCategory, actionClass, row.identity.typeId);
    }
    if (!registerPages)
        return;
    SetClearCaseDesignTime(true);
    const TClearCasePageFactory factory = g_pageFactory ? g_pageFactory : loadPageLibrary();
    WFOptionsServices().RegisterOptionsPages(ClearCaseOptionsClass(), pageClassesFor({page("TClearCaseOptionsFrame")}, factory));
    // The host keys pages by class name alone.
    for (const auto& row : ClearCaseActionPages())
        WFActionServices().RegisterActionPages(TWFActionClass{row.actionClassName, {}}, pageClassesFor(row.pages, factory));
}

void SetClearCasePageFactory(TClearCasePageFactory factory)
{
    g_pageFactory = factory;
}

std::string WFClearCasePackageDescription()
{
    return "Wrenfield 3.x clearcase Support";
}

std::string WFClearCaseHelpFileName()
{
    return kClearCaseHelpFile;
}

int WFClearCaseHelpTopic(const std::string& typeId)
{
    for (const auto& row : kCatalogue)
        if (typeId == row.identity.typeId)
            return row.identity.helpTopic;
    return 0;
}
