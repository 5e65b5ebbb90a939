// The make-element page and the lock options page.
#include "PageCase.h"

#include "actions/WFClearCaseLockPathNamesAction.h"
#include "actions/WFClearCaseMakeElementAction.h"

using namespace wfpage;

namespace {

const PageCase kMakeElementCases[] = {
    {.name = "LiteWritesMasterFalse", .given = {{"Master", "True"}}, .shown = {{"boxMaster", false, false}},
     .stored = {{"Master", "False"}}, .edition = ccLT},
    {.name = "NotCheckedOutGreysTimeButKeepsTick", .given = {{"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}},
     .steps = {clickOn("btnNoCheckOut")}, .shown = {{"boxPreserveTime", true, false}, {"btnCheckedIn", false}},
     .stored = {{"Checkout", "ccNoCheckOut"}, {"PreserveTime", "True"}}},
    {.name = "CheckedInEnablesTime", .steps = {clickOn("btnCheckedIn"), clickOn("boxPreserveTime")},
     .shown = {{"boxPreserveTime", {}, true}, {"btnCheckedOut", false}},
     .stored = {{"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}}},
    {.name = "CheckedOutGreysTimeAgain", .kept = {{"Checkout", "ccCheckedOut"}, {"PreserveTime", "True"}},
     .steps = {clickOn("btnCheckedIn"), clickOn("btnCheckedOut")}, .shown = {{"boxPreserveTime", true, false}}},
    {.name = "ElementTypesQueriedOnceAndTypedFreely",
     .steps = {dropDownOf("txtElementType"), dropDownOf("txtElementType"), typeInto("txtElementType", "my_type"),
               clickOn("boxUseElementType")},
     .shown = {{.control = "txtElementType", .text = "my_type", .items = "binary_delta_file|compressed_file|text_file"}},
     .stored = {{"UseElementType", "True"}, {"ElementType", "my_type"}},
     .responses = {{"lsvob -short", "/vobs/b\n/vobs/a\n"},
                   {"lstype -short -kind eltype -invob /vobs/a", "text_file\nbinary_delta_file\n"},
                   {"lstype -short -kind eltype -invob /vobs/b", "compressed_file\nTEXT_FILE\n"}},
     .calls = {"lsvob -short", "lstype -short -kind eltype -invob /vobs/a",
               "lstype -short -kind eltype -invob /vobs/b"}},
    {.name = "EmptyTypeListAsksAgain", .given = {{"ElementType", "text_file"}},
     .steps = {dropDownOf("txtElementType"), dropDownOf("txtElementType")},
     .shown = {{.control = "txtElementType", .text = "text_file", .items = ""}},
     .stored = {{"ElementType", "text_file"}, {"UseElementType", "False"}}, .calls = {"lsvob -short", "lsvob -short"}},
    {.name = "SwitchesRoundTrip",
     .given = {{"MakePath", "True"}, {"NoWarnings", "True"}, {"UseElementType", "True"}, {"ElementType", "text_file"}},
     .kept = {{"Master", "True"}}, .steps = {clickOn("boxMakePath")},
     .shown = {{"boxNoWarn", true}, {"boxUseElementType", true}, {"txtElementType", {}, {}, "text_file"}, {"boxMaster", true, true}},
     .stored = {{"MakePath", "False"}, {"NoWarnings", "True"}, {"UseElementType", "True"}, {"ElementType", "text_file"}}},
};
WF_PAGE_TABLE(MakeElementPage, TClearCaseMakeElementAction,
              "TClearCaseMakeElementFrame", "New Element", kMakeElementCases);

const PageCase kLockCases[] = {
    {.name = "UsersShownOneALine", .kept = {{"UseNUsers", "True"}, {"NUsersList", "alice,bob"}},
     .shown = {{"txtNUsersList", {}, true, "alice,\nbob\n"}}},
    {.name = "OneBlankLostPerPass", .given = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice,  bob  ,carol")}, .stored = {{"NUsersList", "alice, bob ,carol"}}},
    {.name = "TrailingCommasAndBlanksTrimmed", .given = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice,\nbob, ,\n \n")}, .stored = {{"NUsersList", "alice,bob"}}},
    {.name = "EmptyListShowsEmptyMemo", .shown = {{"txtNUsersList", {}, false, ""}},
     .stored = {{"NUsersList", ""}, {"UseNUsers", "False"}}},
    {.name = "ObsoleteClearsAndGreysUsers", .given = {{"UseNUsers", "True"}, {"NUsersList", "alice"}},
     .steps = {clickOn("boxObsolete")}, .shown = {{"boxUseNUsers", false}, {"txtNUsersList", {}, false}},
     .stored = {{"Obsolete", "True"}, {"UseNUsers", "False"}, {"NUsersList", "alice"}}},
    {.name = "UsersAfterObsoleteClearsObsolete", .given = {{"Obsolete", "True"}},
     .steps = {clickOn("boxUseNUsers"), typeInto("txtNUsersList", "carol")},
     .shown = {{"boxObsolete", false}, {"txtNUsersList", {}, true}},
     .stored = {{"Obsolete", "False"}, {"UseNUsers", "True"}, {"NUsersList", "carol"}}},
    // Opening the page is no click: a stored pair of both stays as it was stored.
    {.name = "BothStoredBothShown", .kept = {{"UseNUsers", "True"}, {"Obsolete", "True"}, {"Replace", "True"}},
     .shown = {{"boxUseNUsers", true}, {"boxObsolete", true}, {"boxReplace", true}, {"txtNUsersList", {}, true}}},
};
WF_PAGE_TABLE(LockPage, TClearCaseLockPathNamesAction, "TClearCaseLockFrame", "Options", kLockCases);

} // namespace
