// The check-out, check-in, undo check-out and update pages, driven as a user drives them.
#include "PageCase.h"

#include "actions/WFClearCaseCheckInPathAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseUnCheckOutActivityAction.h"
#include "actions/WFClearCaseUnCheckOutAction.h"
#include "actions/WFClearCaseUpdateAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "pages/WFClearCaseViewContextSubFrame.h"

#include <QLineEdit>

using namespace wfpage;

namespace {

const auto isChecked = [](const char* control) { return Shown{control, true}; };

// ---------------------------------------------------------------------------------------------

const PageCase kCheckOutCases[] = {
    {.name = "LazyReservedStoresBothFlags", .given = {{"Reserved", "True"}}, .steps = clicks({"boxLazyReserved"}),
     .stored = {{"Reserved", "True"}, {"Unreserved", "True"}}},
    {.name = "UnreservedGreysOutTheBoxButKeepsItsMark", .given = {{"Reserved", "True"}, {"Unreserved", "True"}},
     .steps = clicks({"btnUnreserved"}), .shown = {{"boxLazyReserved", true, false}},
     .stored = {{"Reserved", "False"}, {"Unreserved", "True"}}},
    {.name = "ReservedAgainEnablesTheBox", .given = {{"Unreserved", "True"}}, .steps = clicks({"btnReserved"}),
     .shown = {{"boxLazyReserved", false, true}}, .stored = {{"Reserved", "True"}, {"Unreserved", "False"}}},
    {.name = "TypingAnExternalPathChoosesOut", .steps = {typeInto("txtExternalPath", "/tmp/out")},
     .shown = {isChecked("btnOut")}, .stored = {{"DataLocation", "coOut"}, {"OutExternalPath", "/tmp/out"}}},
    {.name = "StoredPathUnderViewLocationStaysView",
     .kept = {{"DataLocation", "coView"}, {"OutExternalPath", "/tmp/kept"}},
     .shown = {isChecked("btnViewDefault"), {"txtExternalPath", {}, {}, "/tmp/kept"}}},
    {.name = "NoDataKeepsThePathAndPreservesTime",
     .given = {{"DataLocation", "coOut"}, {"OutExternalPath", "/tmp/out"}}, .steps = clicks({"btnNData", "boxPTime"}),
     .stored = {{"DataLocation", "coNoData"}, {"OutExternalPath", "/tmp/out"}, {"PreserveTime", "True"}}},
    {.name = "BrowsingForTheLocationChoosesOut",
     .given = {{"OutExternalPath", "/tmp/old"}, {"DataLocation", "coNoData"}},
     .steps = clicks({"txtExternalPathButton"}), .shown = {isChecked("btnOut")},
     .stored = {{"DataLocation", "coOut"}, {"OutExternalPath", "/tmp/picked"}}, .answers = {"/tmp/picked"},
     .browsed = {{"/tmp/old", "Select Directory"}}},
    {.name = "CancelledBrowseChangesNothing", .given = {{"OutExternalPath", ""}, {"DataLocation", "coNoData"}},
     .steps = clicks({"txtExternalPathButton"}), .shown = {isChecked("btnNData")},
     .stored = {{"DataLocation", "coNoData"}, {"OutExternalPath", ""}}, .answers = {std::nullopt},
     .browsed = {{"", "Select Directory"}}},
    {.name = "TypingABranchChoosesBranchAndClearingKeepsIt",
     .steps = {typeInto("txtBranchName", "rel2"), typeInto("txtBranchName", "")},
     .shown = {isChecked("btnSelModeBranch")}, .stored = {{"SelectionMode", "coBranch"}, {"BranchSelector", ""}}},
    {.name = "TypingAVersionChoosesVersion", .given = {{"SelectionMode", "coBranch"}, {"BranchSelector", "rel2"}},
     .steps = {typeInto("txtVersionName", "/main/4")}, .shown = {isChecked("btnSelModeVersion")},
     .stored = {{"SelectionMode", "coVersion"}, {"VersionSelector", "/main/4"}, {"BranchSelector", "rel2"}}},
    {.name = "StoredSelectorsDoNotOverruleDefaultMode",
     .kept = {{"SelectionMode", "coDefault"}, {"BranchSelector", "rel2"}, {"VersionSelector", "/main/4"}},
     .shown = {isChecked("btnSelModeDefault"), {"txtBranchName", {}, true, "rel2"}, {"txtVersionName", {}, true, "/main/4"}}},
    {.name = "LightEditionOffersNoSelectionAndClearsTheSelectors",
     .given = {{"SelectionMode", "coBranch"}, {"BranchSelector", "rel2"}, {"VersionSelector", "/main/4"}},
     .shown = {{"btnSelModeDefault", true, false},
               {"btnSelModeBranch", false, false},
               {"btnSelModeVersion", false, false},
               {"txtBranchName", {}, false, ""},
               {"txtVersionName", {}, false, ""}},
     .stored = {{"SelectionMode", "coDefault"}, {"BranchSelector", ""}, {"VersionSelector", ""}}, .edition = ccLT},
};
WF_PAGE_TABLE(CheckOutPage, TClearCaseCheckoutAction, "TClearCaseCheckOutFrame", "Checkout Options", kCheckOutCases);

// ---------------------------------------------------------------------------------------------

const PageCase kCheckInCases[] = {
    {.name = "RemoveAfterKeepUnticksKeep", .steps = clicks({"boxKeep", "boxRemove"}),
     .shown = {{"boxKeep", false}, {"boxRemove", true}}, .stored = {{"Keep", "False"}, {"Remove", "True"}}},
    {.name = "KeepAfterRemoveUnticksRemove", .given = {{"Remove", "True"}}, .steps = clicks({"boxKeep"}),
     .shown = {{"boxKeep", true}, {"boxRemove", false}}, .stored = {{"Keep", "True"}, {"Remove", "False"}}},
    {.name = "BothStoredAreShownAsStored", .kept = {{"Keep", "True"}, {"Remove", "True"}},
     .shown = {{"boxKeep", true}, {"boxRemove", true}}},
    {.name = "UntickingWarningsOnly",
     .given = {{"NoWarnings", "True"}, {"PreserveTime", "True"}, {"IdenticalCheckin", "True"}},
     .steps = clicks({"boxNoWarn"}),
     .stored = {{"PreserveTime", "True"}, {"IdenticalCheckin", "True"}, {"NoWarnings", "False"}}},
};
WF_PAGE_TABLE(CheckInPage, TClearCaseCheckInPathAction, "TClearCaseCheckInFrame", "Checkin Options", kCheckInCases);

// ---------------------------------------------------------------------------------------------

const PageCase kUnCheckOutCases[] = {
    {.name = "StoredKeepShownAndUnticked", .given = {{"Keep", "True"}}, .steps = clicks({"boxKeep"}),
     .shown = {{"boxKeep", false}}, .stored = {{"Keep", "False"}}},
};
WF_PAGE_TABLE(UnCheckOutPage, TClearCaseUnCheckOutAction,
              "TClearCaseUnCheckOutFrame", "Uncheckout Options", kUnCheckOutCases);

const PageCase kUnCheckOutActivityCases[] = {
    {.name = "KeepAndTheViewContext", .given = {{"ViewContextPath", "/views/dev"}, {"UseDefaultViewContext", "False"}},
     .steps = clicks({"boxKeep"}),
     .shown = {isChecked("btnCustomView"), {"txtViewPath", {}, {}, "/views/dev"}},
     .stored = {{"Keep", "True"}, {"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/dev"}}},
};
WF_PAGE_TABLE(UnCheckOutActivityPage, TClearCaseUnCheckOutActivityAction,
              "TClearCaseUnCheckOutActivityFrame", "Uncheckout Options", kUnCheckOutActivityCases);

// ---------------------------------------------------------------------------------------------

const std::vector<const char*> kUpdateRadios = {"overwriteButton", "noOverwriteButton", "renameButton",
                                                "TSctimeButton",   "TSptimeButton",     "TSdefaultButton"};

std::vector<Shown> radiosEnabled(bool enabled, std::vector<Shown> more = {})
{
    for (const char* radio : kUpdateRadios)
        more.push_back({radio, {}, enabled});
    return more;
}

const PageCase kUpdateCases[] = {
    {.name = "StoredChoicesShown",
     .given = {{"HijackMode", "hmRename"}, {"UpdateTimestamp", "tbCheckin"}, {"UseDefaultViewContext", "True"}},
     .shown = radiosEnabled(true, {isChecked("renameButton"), isChecked("TSptimeButton"), {"checkPretend", false}}),
     .stored = {{"HijackMode", "hmRename"}, {"UpdateTimestamp", "tbCheckin"}, {"PretendOnly", "False"}}},
    {.name = "PretendGreysOutBothGroupsAndStillWritesThem",
     .given = {{"HijackMode", "hmNooverwrite"}, {"UpdateTimestamp", "tbCurrent"}}, .steps = clicks({"checkPretend"}),
     .shown = radiosEnabled(false, {isChecked("noOverwriteButton"), isChecked("TSctimeButton")}),
     .stored = {{"PretendOnly", "True"}, {"HijackMode", "hmNooverwrite"}, {"UpdateTimestamp", "tbCurrent"}}},
    {.name = "StoredPretendOpensGreyedAndUntickingEnables", .given = {{"PretendOnly", "True"}},
     .steps = clicks({"checkPretend", "noOverwriteButton", "TSctimeButton"}), .shown = radiosEnabled(true),
     .stored = {{"PretendOnly", "False"}, {"HijackMode", "hmNooverwrite"}, {"UpdateTimestamp", "tbCurrent"}}},
    {.name = "EachChoiceToItsValue", .given = {{"HijackMode", "hmRename"}, {"UpdateTimestamp", "tbCurrent"}},
     .steps = clicks({"overwriteButton", "TSdefaultButton"}),
     .stored = {{"HijackMode", "hmOverwrite"}, {"UpdateTimestamp", "tbDefault"}}},
    // The view-context part every view page shares.
    {.name = "CustomPathShownWithHintUnderItsCaptionAndKeptWhenDefaultChosen",
     .given = {{"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/rel"}},
     .steps = clicks({"btnDefaultView"}), .shown = {{"txtViewPath", {}, {}, "/views/rel"}},
     .stored = {{"UseDefaultViewContext", "True"}, {"ViewContextPath", "/views/rel"}},
     .check = [](const OpenPage& page) {
         EXPECT_EQ(page.control<QLineEdit>("txtViewPath")->toolTip(), "/views/rel");
         EXPECT_EQ(page.control<QLineEdit>("txtViewPath")->cursorPosition(), 10);
         EXPECT_EQ(page.control<TClearCaseViewContextSubFrame>("ClearCaseViewContextSubFrame1")->GetCaption(),
                   "Snapshot View to update");
     }},
    {.name = "BrowseStartsAtLastViewThenAtThePathAndChoosesCustomView", .given = {{"UseDefaultViewContext", "True"}},
     .steps = clicks({"txtViewPathButton", "txtViewPathButton"}),
     .shown = {isChecked("btnCustomView"), {"txtViewPath", {}, {}, "/views/picked"}},
     .stored = {{"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/picked"}},
     .answers = {"/views/picked", std::nullopt},
     .browsed = {{"/views/last", "Select View"}, {"/views/picked", "Select View"}},
     .setUp = [](wftest::FakeCleartool&) { CCSetLastViewDirectory("/views/last"); },
     .check = [](const OpenPage&) { EXPECT_EQ(CCGetLastViewDirectory(), "/views/picked"); }},
    {.name = "CancelledBrowseChangesNothing", .kept = {{"UseDefaultViewContext", "True"}},
     .steps = clicks({"txtViewPathButton"}), .shown = {isChecked("btnDefaultView"), {"txtViewPath", {}, {}, ""}},
     .answers = {std::nullopt},
     .browsed = {{"/views/last", "Select View"}},
     .setUp = [](wftest::FakeCleartool&) { CCSetLastViewDirectory("/views/last"); },
     .check = [](const OpenPage&) { EXPECT_EQ(CCGetLastViewDirectory(), "/views/last"); }},
};
WF_PAGE_TABLE(UpdatePage, TClearCaseUpdateAction, "TClearCaseUpdateFrame", "Update Options", kUpdateCases);

} // namespace
