#pragma once

#include <string>
#include <vector>

namespace wftest {

struct ExpectedAction {
    std::string typeId;
    std::string className;
    std::string displayName;
    int helpTopic;
};

/// The package's catalogue as its users know it, in registration order.
inline const std::vector<ExpectedAction>& expectedCatalogue()
{
    static const std::vector<ExpectedAction> rows = {
        {"CC_UPDATE", "TClearCaseUpdateAction", "ClearCase Update Snapshot View", 4440},
        {"CC_CHECKOUT", "TClearCaseCheckoutAction", "ClearCase Check Out", 4460},
        {"CC_CHECKIN", "TClearCaseCheckInPathAction", "ClearCase Check In", 4470},
        {"CC_UNCHECKOUT", "TClearCaseUnCheckOutAction", "ClearCase Undo Checkout", 4480},
        {"CC_FINDCHECKOUTS", "TClearCaseFindCheckoutsAction", "ClearCase Find Checkouts", 4490},
        {"CC_MKELEM", "TClearCaseMakeElementAction", "ClearCase Make Element", 4500},
        {"CC_MKLBTYPE", "TClearCaseMkLbTypeAction", "ClearCase Make Label Type", 4510},
        {"CC_LABEL", "TClearCaseApplyLabelAction", "ClearCase Apply Label", 4520},
        {"CC_MKATTRTYPE", "TClearCaseMakeAttributeTypeAction", "ClearCase Make Attribute Type", 4530},
        {"CC_APPLYATTR", "TClearCaseApplyAttributePathNamesAction", "ClearCase Apply Attribute (Paths)", 4540},
        {"CC_APPLYATTR_OBJ", "TClearCaseApplyAttributeObjectsAction", "ClearCase Apply Attribute (Objects)", 4540},
        {"CC_LOCK", "TClearCaseLockPathNamesAction", "ClearCase Lock (Paths)", 4560},
        {"CC_UNLOCK", "TClearCaseUnlockPathNamesAction", "ClearCase Unlock (Paths)", 4570},
        {"CC_LOCK_OBJ", "TClearCaseLockObjectsAction", "ClearCase Lock (Objects)", 4560},
        {"CC_UNLOCK_OBJ", "TClearCaseUnlockObjectsAction", "ClearCase Unlock (Objects)", 4570},
        {"CC_GENERIC", "TClearCaseCleartoolAction", "ClearCase Run Cleartool (Generic)", 4580},
        {"CC_GETCONFIGSPEC", "TClearCaseGetConfigSpecAction", "ClearCase Get Config Spec", 4590},
        {"CC_SETCONFIGSPEC", "TClearCaseSetConfigSpecAction", "ClearCase Set Config Spec", 4600},
        {"UCM_MAKEACTIVITY", "TClearCaseMakeActivityAction", "UCM Make Activity", 4610},
        {"UCM_SETACTIVITY", "TClearCaseSetActivityAction", "UCM Set Current Activity", 4620},
        {"UCM_CHECKIN", "TClearCaseCheckInActivityAction", "UCM Check In Files for Activity", 4630},
        {"UCM_UNCHECKOUT", "TClearCaseUnCheckOutActivityAction", "UCM Undo Checkouts for Activity", 4640},
        {"UCM_MAKEBL", "TClearCaseMakeBaselineAction", "UCM Make Baseline", 4650},
        {"UCM_MAKEBL_LABEL", "TClearCaseMakeBaselineFromLabelAction", "UCM Make Baseline from Label", 4660},
    };
    return rows;
}

} // namespace wftest
