// The make-element page and the lock options page.
#include "PageScript.h"

#include "actions/WFClearCaseLockObjectsAction.h"
#include "actions/WFClearCaseLockPathNamesAction.h"
#include "actions/WFClearCaseMakeElementAction.h"

using namespace wfpage;
using namespace wfpage::script;

namespace {

class MakeElementPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(MakeElementPage, RoundTrip)
{
    TClearCaseMakeElementAction action;
    playPageCase("TClearCaseMakeElementFrame", "New Element", action, GetParam());
}

const PageCase kMakeElementCases[] = {
    {.name = "LiteWritesMasterFalse",
     .stored = {{"Master", "True"}},
     .steps = {},
     .shown = {{"boxMaster", "disabled"}, {"boxMaster", "off"}},
     .written = {{"Master", "False"}},
     .edition = ccLT},
    {.name = "FullEditionShowsMaster",
     .stored = {{"Master", "True"}},
     .steps = {},
     .shown = {{"boxMaster", "enabled"}, {"boxMaster", "on"}},
     .written = {{"Master", "True"}}},
    {.name = "NotCheckedOutGreysTimeButKeepsTick",
     .stored = {{"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}},
     .steps = {clickOn("btnNoCheckOut")},
     .shown = {{"boxPreserveTime", "disabled"}, {"boxPreserveTime", "on"}, {"btnCheckedIn", "off"}},
     .written = {{"Checkout", "ccNoCheckOut"}, {"PreserveTime", "True"}}},
    {.name = "CheckedInEnablesTime",
     .stored = {},
     .steps = {clickOn("btnCheckedIn"), clickOn("boxPreserveTime")},
     .shown = {{"boxPreserveTime", "enabled"}, {"btnCheckedOut", "off"}},
     .written = {{"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}}},
    {.name = "CheckedOutGreysTimeAgain",
     .stored = {{"Checkout", "ccCheckedOut"}, {"PreserveTime", "True"}},
     .steps = {clickOn("btnCheckedIn"), clickOn("btnCheckedOut")},
     .shown = {{"boxPreserveTime", "disabled"}, {"boxPreserveTime", "on"}},
     .written = {{"Checkout", "ccCheckedOut"}, {"PreserveTime", "True"}}},
    {.name = "ElementTypesQueriedOnceAndTypedFreely",
     .stored = {},
     .steps = {dropDownOf("txtElementType"), dropDownOf("txtElementType"), typeInto("txtElementType", "my_type"),
               clickOn("boxUseElementType")},
     .shown = {{"txtElementType", "items:binary_delta_file|compressed_file|text_file"},
               {"txtElementType", "text:my_type"}},
     .written = {{"UseElementType", "True"}, {"ElementType", "my_type"}},
     .responses = {{"lsvob -short", "/vobs/b\n/vobs/a\n"},
                   {"lstype -short -kind eltype -invob /vobs/a", "text_file\nbinary_delta_file\n"},
                   {"lstype -short -kind eltype -invob /vobs/b", "compressed_file\nTEXT_FILE\n"}},
     .calls = {"lsvob -short", "lstype -short -kind eltype -invob /vobs/a",
               "lstype -short -kind eltype -invob /vobs/b"}},
    {.name = "EmptyTypeListAsksAgain",
     .stored = {{"ElementType", "text_file"}},
     .steps = {dropDownOf("txtElementType"), dropDownOf("txtElementType")},
     .shown = {{"txtElementType", "items:"}, {"txtElementType", "text:text_file"}},
     .written = {{"ElementType", "text_file"}, {"UseElementType", "False"}},
     .responses = {},
     .calls = {"lsvob -short", "lsvob -short"}},
    {.name = "SwitchesRoundTrip",
     .stored = {{"MakePath", "True"}, {"NoWarnings", "True"}, {"UseElementType", "True"}, {"ElementType", "text_file"}},
     .steps = {clickOn("boxMakePath")},
     .shown = {{"boxNoWarn", "on"}, {"boxUseElementType", "on"}, {"txtElementType", "text:text_file"}},
     .written = {{"MakePath", "False"}, {"NoWarnings", "True"}, {"UseElementType", "True"}, {"ElementType", "text_file"}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, MakeElementPage, ::testing::ValuesIn(kMakeElementCases),
                         [](const auto& info) { return std::string(info.param.name); });

class LockPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(LockPage, RoundTrip)
{
    const PageCase& row = GetParam();
    std::unique_ptr<TCustomWFAction> action =
        row.makeAction ? row.makeAction() : std::make_unique<TClearCaseLockPathNamesAction>();
    playPageCase("TClearCaseLockFrame", "Options", *action, row);
}

const PageCase kLockCases[] = {
    {.name = "UsersShownOneALine",
     .stored = {{"UseNUsers", "True"}, {"NUsersList", "alice,bob"}},
     .steps = {},
     .shown = {{"txtNUsersList", "text:alice,\nbob\n"}, {"txtNUsersList", "enabled"}},
     .written = {{"UseNUsers", "True"}, {"NUsersList", "alice,bob"}}},
    {.name = "BlanksBesideCommasDropped",
     .stored = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice , bob , ")},
     .shown = {},
     .written = {{"NUsersList", "alice,bob"}}},
    {.name = "OneBlankLostPerPass",
     .stored = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice,  bob  ,carol")},
     .shown = {},
     .written = {{"NUsersList", "alice, bob ,carol"}}},
    {.name = "NamesOnLinesWithoutCommasRunTogether",
     .stored = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice\nbob\n")},
     .shown = {},
     .written = {{"NUsersList", "alicebob"}}},
    {.name = "TrailingCommasAndBlanksTrimmed",
     .stored = {{"UseNUsers", "True"}},
     .steps = {typeInto("txtNUsersList", "alice,\nbob, ,\n \n")},
     .shown = {},
     .written = {{"NUsersList", "alice,bob"}}},
    {.name = "EmptyListShowsEmptyMemo",
     .stored = {},
     .steps = {},
     .shown = {{"txtNUsersList", "text:"}, {"txtNUsersList", "disabled"}},
     .written = {{"NUsersList", ""}, {"UseNUsers", "False"}}},
    {.name = "ObsoleteClearsAndGreysUsers",
     .stored = {{"UseNUsers", "True"}, {"NUsersList", "alice"}},
     .steps = {clickOn("boxObsolete")},
     .shown = {{"boxUseNUsers", "off"}, {"txtNUsersList", "disabled"}},
     .written = {{"Obsolete", "True"}, {"UseNUsers", "False"}, {"NUsersList", "alice"}}},
    {.name = "UsersAfterObsoleteClearsObsolete",
     .stored = {{"Obsolete", "True"}},
     .steps = {clickOn("boxUseNUsers"), typeInto("txtNUsersList", "carol")},
     .shown = {{"boxObsolete", "off"}, {"txtNUsersList", "enabled"}},
     .written = {{"Obsolete", "False"}, {"UseNUsers", "True"}, {"NUsersList", "carol"}}},
    {.name = "UntickingUsersGreysList",
     .stored = {{"UseNUsers", "True"}, {"NUsersList", "alice"}},
     .steps = {clickOn("boxUseNUsers")},
     .shown = {{"txtNUsersList", "disabled"}, {"boxObsolete", "off"}},
     .written = {{"UseNUsers", "False"}, {"NUsersList", "alice"}}},
    // Opening the page is no click: a stored pair of both stays as it was stored.
    {.name = "BothStoredBothShown",
     .stored = {{"UseNUsers", "True"}, {"Obsolete", "True"}, {"Replace", "True"}},
     .steps = {},
     .shown = {{"boxUseNUsers", "on"}, {"boxObsolete", "on"}, {"boxReplace", "on"}, {"txtNUsersList", "enabled"}},
     .written = {{"UseNUsers", "True"}, {"Obsolete", "True"}, {"Replace", "True"}}},
    {.name = "ObjectLockSharesThePage",
     .stored = {{"Replace", "False"}, {"NUsersList", "dave,erin"}},
     .steps = {clickOn("boxReplace"), clickOn("boxUseNUsers")},
     .shown = {{"txtNUsersList", "text:dave,\nerin\n"}},
     .written = {{"Replace", "True"}, {"UseNUsers", "True"}, {"NUsersList", "dave,erin"}},
     .makeAction = [] { return std::make_unique<TClearCaseLockObjectsAction>(); }},
};
INSTANTIATE_TEST_SUITE_P(Cases, LockPage, ::testing::ValuesIn(kLockCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
