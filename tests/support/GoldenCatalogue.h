#pragma once

#include "RowName.h"

#include <ostream>
#include <string>
#include <vector>

namespace wftest {

/// The help file every action points to.
inline const std::string goldenHelpFile = "Plugins\\ClearCase.html";

/// One action as its users know it.
struct GoldenAction {
    std::string typeId;
    std::string className;
    std::string displayName;
    int helpTopic;
    /// The cleartool sub-command.
    std::string command;
    /// The persisted properties of a new action, in persistence order, as "Name=text".
    std::vector<std::string> defaults;
};

WF_ROW_PRINTER_AS(GoldenAction, row.typeId)

/// The package's catalogue, written out by hand in registration order: the catalogue, the
/// registered host catalogue and the actions made from them are checked against it.
inline const std::vector<GoldenAction>& goldenCatalogue()
{
    static const std::vector<GoldenAction> rows = {
        {"CC_UPDATE", "TClearCaseUpdateAction", "ClearCase Update Snapshot View", 4440, "update",
         {"PretendOnly=False", "UpdateTimestamp=tbDefault", "HijackMode=hmOverwrite", "ViewContextPath=",
          "UseDefaultViewContext=False"}},
        {"CC_CHECKOUT", "TClearCaseCheckoutAction", "ClearCase Check Out", 4460, "checkout",
         {"NoComment=True", "Comment=", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False",
          "Reserved=False", "Unreserved=False", "PreserveTime=False", "DataLocation=coView",
          "SelectionMode=coDefault", "OutExternalPath=", "VersionSelector=", "BranchSelector="}},
        {"CC_CHECKIN", "TClearCaseCheckInPathAction", "ClearCase Check In", 4470, "checkin",
         {"PathNameStorageString=", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
          "NoWarnings=False", "Keep=False", "Remove=False", "PreserveTime=False", "IdenticalCheckin=False"}},
        {"CC_UNCHECKOUT", "TClearCaseUnCheckOutAction", "ClearCase Undo Checkout", 4480, "uncheckout",
         {"Keep=False", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
        {"CC_FINDCHECKOUTS", "TClearCaseFindCheckoutsAction", "ClearCase Find Checkouts", 4490, "lscheckout",
         {"ViewContextPath=", "UseDefaultViewContext=False", "WriteToVariable=False", "VariableName=", "UseShort=True"}},
        {"CC_MKELEM", "TClearCaseMakeElementAction", "ClearCase Make Element", 4500, "mkelem",
         {"PathNameStorageString=", "Comment=", "NoComment=True", "Checkout=ccCheckedOut", "UseElementType=False",
          "ElementType=", "PreserveTime=False", "MakePath=False", "Master=False", "NoWarnings=False"}},
        {"CC_MKLBTYPE", "TClearCaseMkLbTypeAction", "ClearCase Make Label Type", 4510, "mklbtype",
         {"MakeGlobal=False", "Acquire=False", "PBranch=False", "Shared=False", "Replace=False", "Comment=",
          "NoComment=True", "LabelTypeName=", "VOBSelector="}},
        {"CC_LABEL", "TClearCaseApplyLabelAction", "ClearCase Apply Label", 4520, "mklabel",
         {"Replace=False", "Recurse=False", "FollowLinks=False", "Comment=", "NoComment=True", "LabelTypeName=",
          "PathNameStorageString=", "VOBSelector=", "VersionSelector=", "UseVersionSelector=False",
          "ViewContextPath=", "UseDefaultViewContext=False"}},
        {"CC_MKATTRTYPE", "TClearCaseMakeAttributeTypeAction", "ClearCase Make Attribute Type", 4530, "mkattype",
         {"Comment=", "NoComment=True", "AttributeName=", "VOBSelector=", "Constraints=lcDefault", "Global=False",
          "Acquire=False", "NewAttributeType=atString", "DefaultValue=", "UseDefaultValue=False", "Replace=False",
          "Shared=False", "MinValue=", "MaxValue=", "MinInclusive=False", "MaxInclusive=False", "UseMin=False",
          "UseMax=False"}},
        {"CC_APPLYATTR", "TClearCaseApplyAttributePathNamesAction", "ClearCase Apply Attribute (Paths)", 4540, "mkattr",
         {"NoComment=True", "Comment=", "AttributeName=", "AttributeValue=", "UseDefaultAttributeValue=False",
          "PathNameStorageString=", "VersionSelector=", "UseVersionSelector=False", "VOBSelector=", "Replace=False",
          "Recurse=False"}},
        {"CC_APPLYATTR_OBJ", "TClearCaseApplyAttributeObjectsAction", "ClearCase Apply Attribute (Objects)", 4540, "mkattr",
         {"NoComment=True", "Comment=", "AttributeName=", "AttributeValue=", "UseDefaultAttributeValue=False",
          "ObjectsStorageString=", "VOBSelector=", "Replace=False"}},
        {"CC_LOCK", "TClearCaseLockPathNamesAction", "ClearCase Lock (Paths)", 4560, "lock",
         {"Replace=False", "Obsolete=False", "UseNUsers=False", "NUsersList=", "Comment=", "NoComment=True",
          "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
        {"CC_UNLOCK", "TClearCaseUnlockPathNamesAction", "ClearCase Unlock (Paths)", 4570, "unlock",
         {"PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False", "Comment=", "NoComment=True"}},
        {"CC_LOCK_OBJ", "TClearCaseLockObjectsAction", "ClearCase Lock (Objects)", 4560, "lock",
         {"Replace=False", "Obsolete=False", "UseNUsers=False", "NUsersList=", "Comment=", "NoComment=True",
          "ObjectsStorageString="}},
        {"CC_UNLOCK_OBJ", "TClearCaseUnlockObjectsAction", "ClearCase Unlock (Objects)", 4570, "unlock",
         {"ObjectsStorageString=", "Comment=", "NoComment=True"}},
        {"CC_GENERIC", "TClearCaseCleartoolAction", "ClearCase Run Cleartool (Generic)", 4580, "",
         {"ViewContextPath=", "UseDefaultViewContext=False", "Arguments=", "Command="}},
        {"CC_GETCONFIGSPEC", "TClearCaseGetConfigSpecAction", "ClearCase Get Config Spec", 4590, "catcs",
         {"ViewContextPath=", "UseDefaultViewContext=False", "OutputToFile=False", "OutputFilePath="}},
        {"CC_SETCONFIGSPEC", "TClearCaseSetConfigSpecAction", "ClearCase Set Config Spec", 4600, "setcs",
         {"ViewContextPath=", "UseDefaultViewContext=False", "CSpecChoice=csCurrent", "CSFilePath="}},
        {"UCM_MAKEACTIVITY", "TClearCaseMakeActivityAction", "UCM Make Activity", 4610, "mkactivity",
         {"ActivityName=", "VOBSelector=", "ViewContextPath=", "UseDefaultViewContext=False", "Comment=",
          "NoComment=True", "AutoGenerateName=False", "DontSetAsCurrent=False", "Headline="}},
        {"UCM_SETACTIVITY", "TClearCaseSetActivityAction", "UCM Set Current Activity", 4620, "setactivity",
         {"ActivityName=", "VOBSelector=", "UseCurrentActivity=False", "ViewContextPath=",
          "UseDefaultViewContext=False", "SetActivityToNone=False"}},
        {"UCM_CHECKIN", "TClearCaseCheckInActivityAction", "UCM Check In Files for Activity", 4630, "checkin",
         {"PathNameStorageString=", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
          "NoWarnings=False", "Keep=False", "Remove=False", "PreserveTime=False", "IdenticalCheckin=False",
          "ActivityName=", "VOBSelector=", "UseCurrentActivity=False"}},
        {"UCM_UNCHECKOUT", "TClearCaseUnCheckOutActivityAction", "UCM Undo Checkouts for Activity", 4640, "uncheckout",
         {"Keep=False", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
        {"UCM_MAKEBL", "TClearCaseMakeBaselineAction", "UCM Make Baseline", 4650, "mkbl",
         {"SelectionType=slAll", "SelectIdenticalComponents=False", "Labelling=lbIncremental", "BaselineRootName=",
          "UseBaselineNameTemplate=False", "Comment=", "NoComment=True", "ViewContextPath=",
          "UseDefaultViewContext=False", "ActivitySelectorStorageString=", "ComponentSelectorStorageString="}},
        {"UCM_MAKEBL_LABEL", "TClearCaseMakeBaselineFromLabelAction", "UCM Make Baseline from Label", 4660, "mkbl",
         {"SpecifyComponents=False", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
          "ComponentSelectorStorageString=", "LabelTypeName=", "VOBSelector="}},
    };
    return rows;
}

} // namespace wftest
