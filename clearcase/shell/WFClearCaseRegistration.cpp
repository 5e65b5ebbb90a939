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

#include "WFLog.h"
#include "WFPluginLoader.h"

#include <memory>

namespace {

template <typename T>
std::unique_ptr<TClearCaseBaseAction> make()
{
    return std::make_unique<T>();
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
    const auto registerPagesOf = reinterpret_cast<TClearCasePagesEntry>(WFCompanionLibraries()->Resolve(
        reinterpret_cast<const void*>(&ClearCaseRegister), kClearCasePageLibrary, kClearCasePagesEntrySymbol));
    if (registerPagesOf)
        registerPagesOf();
    else
        WFWarning("the ClearCase property pages are unavailable");
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
