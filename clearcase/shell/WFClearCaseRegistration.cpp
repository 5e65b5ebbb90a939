#include "WFClearCaseRegistration.h"

#include "WFAction.h"
#include "WFClearCaseApplyAttributeObjectsAction.h"
#include "WFClearCaseApplyAttributePathNamesAction.h"
#include "WFClearCaseApplyLabelAction.h"
#include "WFClearCaseCheckInActivityAction.h"
#include "WFClearCaseCheckInPathAction.h"
#include "WFClearCaseCheckOutAction.h"
#include "WFClearCaseCleartoolAction.h"
#include "WFClearCaseFindCheckoutsAction.h"
#include "WFClearCaseGetConfigSpecAction.h"
#include "WFClearCaseLockObjectsAction.h"
#include "WFClearCaseLockPathNamesAction.h"
#include "WFClearCaseMakeActivityAction.h"
#include "WFClearCaseMakeAttributeTypeAction.h"
#include "WFClearCaseMakeBaselineAction.h"
#include "WFClearCaseMakeBaselineFromLabelAction.h"
#include "WFClearCaseMakeElementAction.h"
#include "WFClearCaseMkLbTypeAction.h"
#include "WFClearCaseOptions.h"
#include "WFClearCaseQuerySession.h"
#include "WFClearCaseSetActivityAction.h"
#include "WFClearCaseSetConfigSpecAction.h"
#include "WFClearCaseUnCheckOutAction.h"
#include "WFClearCaseUnCheckOutActivityAction.h"
#include "WFClearCaseUnlockObjectsAction.h"
#include "WFClearCaseUnlockPathNamesAction.h"
#include "WFClearCaseUpdateAction.h"

#include <memory>

namespace {

constexpr const char* kCategory = "ClearCase";

TWFPageClass page(const char* className)
{
    return TWFPageClass{className};
}

} // namespace

const std::vector<TClearCaseCatalogueRow>& ClearCaseCatalogue()
{
    static const std::vector<TClearCaseCatalogueRow> catalogue = {
        {"CC_UPDATE", WFActionClassOf<TClearCaseUpdateAction>("TClearCaseUpdateAction"), 4440},
        {"CC_CHECKOUT", WFActionClassOf<TClearCaseCheckoutAction>("TClearCaseCheckoutAction"), 4460},
        {"CC_CHECKIN", WFActionClassOf<TClearCaseCheckInPathAction>("TClearCaseCheckInPathAction"), 4470},
        {"CC_UNCHECKOUT", WFActionClassOf<TClearCaseUnCheckOutAction>("TClearCaseUnCheckOutAction"), 4480},
        {"CC_FINDCHECKOUTS", WFActionClassOf<TClearCaseFindCheckoutsAction>("TClearCaseFindCheckoutsAction"), 4490},
        {"CC_MKELEM", WFActionClassOf<TClearCaseMakeElementAction>("TClearCaseMakeElementAction"), 4500},
        {"CC_MKLBTYPE", WFActionClassOf<TClearCaseMkLbTypeAction>("TClearCaseMkLbTypeAction"), 4510},
        {"CC_LABEL", WFActionClassOf<TClearCaseApplyLabelAction>("TClearCaseApplyLabelAction"), 4520},
        {"CC_MKATTRTYPE", WFActionClassOf<TClearCaseMakeAttributeTypeAction>("TClearCaseMakeAttributeTypeAction"), 4530},
        {"CC_APPLYATTR", WFActionClassOf<TClearCaseApplyAttributePathNamesAction>("TClearCaseApplyAttributePathNamesAction"), 4540},
        {"CC_APPLYATTR_OBJ", WFActionClassOf<TClearCaseApplyAttributeObjectsAction>("TClearCaseApplyAttributeObjectsAction"), 4540},
        {"CC_LOCK", WFActionClassOf<TClearCaseLockPathNamesAction>("TClearCaseLockPathNamesAction"), 4560},
        {"CC_UNLOCK", WFActionClassOf<TClearCaseUnlockPathNamesAction>("TClearCaseUnlockPathNamesAction"), 4570},
        {"CC_LOCK_OBJ", WFActionClassOf<TClearCaseLockObjectsAction>("TClearCaseLockObjectsAction"), 4560},
        {"CC_UNLOCK_OBJ", WFActionClassOf<TClearCaseUnlockObjectsAction>("TClearCaseUnlockObjectsAction"), 4570},
        {"CC_GENERIC", WFActionClassOf<TClearCaseCleartoolAction>("TClearCaseCleartoolAction"), 4580},
        {"CC_GETCONFIGSPEC", WFActionClassOf<TClearCaseGetConfigSpecAction>("TClearCaseGetConfigSpecAction"), 4590},
        {"CC_SETCONFIGSPEC", WFActionClassOf<TClearCaseSetConfigSpecAction>("TClearCaseSetConfigSpecAction"), 4600},
        {"UCM_MAKEACTIVITY", WFActionClassOf<TClearCaseMakeActivityAction>("TClearCaseMakeActivityAction"), 4610},
        {"UCM_SETACTIVITY", WFActionClassOf<TClearCaseSetActivityAction>("TClearCaseSetActivityAction"), 4620},
        {"UCM_CHECKIN", WFActionClassOf<TClearCaseCheckInActivityAction>("TClearCaseCheckInActivityAction"), 4630},
        {"UCM_UNCHECKOUT", WFActionClassOf<TClearCaseUnCheckOutActivityAction>("TClearCaseUnCheckOutActivityAction"), 4640},
        {"UCM_MAKEBL", WFActionClassOf<TClearCaseMakeBaselineAction>("TClearCaseMakeBaselineAction"), 4650},
        {"UCM_MAKEBL_LABEL", WFActionClassOf<TClearCaseMakeBaselineFromLabelAction>("TClearCaseMakeBaselineFromLabelAction"), 4660},
    };
    return catalogue;
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
    for (const auto& row : ClearCaseCatalogue()) {
        const std::unique_ptr<TCustomWFAction> action = row.actionClass.create();
        WFActionServices().RegisterAction(action->GetActionName(), kCategory, row.actionClass, row.typeId);
    }
    if (!registerPages)
        return;
    SetClearCaseDesignTime(true);
    WFOptionsServices().RegisterOptionsPages(ClearCaseOptionsClass(), {page("TClearCaseOptionsFrame")});
    // The host keys pages by class name alone.
    for (const auto& row : ClearCaseActionPages())
        WFActionServices().RegisterActionPages(TWFActionClass{row.actionClassName, {}}, row.pages);
}

std::string WFClearCasePackageDescription()
{
    return "Wrenfield 3.x clearcase Support";
}

std::string WFClearCaseHelpFileName()
{
    return "Plugins\\ClearCase.html";
}

int WFClearCaseHelpTopic(const std::string& typeId)
{
    for (const auto& row : ClearCaseCatalogue())
        if (row.typeId == typeId)
            return row.helpTopic;
    return 0;
}
