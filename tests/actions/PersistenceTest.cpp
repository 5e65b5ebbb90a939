// What each action persists: its property names in persistence order with their defaults
// (enumerations by member name), the list storage strings, and enumeration member names.
#include "ActionTestSupport.h"

#include "actions/WFClearCaseUCMAction.h"
#include "WFPersistence.h"

#include <gtest/gtest.h>

namespace wftest {
namespace {

class RecordingWriter final : public IZTXMLWriter {
public:
    void WriteValue(const std::string& name, const std::string& value) override { values.push_back(name + "=" + value); }
    std::vector<std::string> values;
};

struct DefaultsCase {
    std::string className;
    std::vector<std::string> properties;
};

void PrintTo(const DefaultsCase& row, std::ostream* out)
{
    *out << row.className;
}

class PersistedDefaultsTest : public testing::TestWithParam<DefaultsCase> {};

TEST_P(PersistedDefaultsTest, WritesPropertiesInOrder)
{
    auto action = createAction(GetParam().className);
    ASSERT_TRUE(action);
    RecordingWriter writer;
    action->WriteState(writer);
    EXPECT_EQ(writer.values, GetParam().properties);
}

const std::vector<DefaultsCase> kDefaults = {
    {"TClearCaseCheckoutAction",
     {"NoComment=True", "Comment=", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False",
      "Reserved=False", "Unreserved=False", "PreserveTime=False", "DataLocation=coView", "SelectionMode=coDefault",
      "OutExternalPath=", "VersionSelector=", "BranchSelector="}},
    {"TClearCaseUnCheckOutAction",
     {"Keep=False", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
    {"TClearCaseCheckInGenericAction",
     {"PathNameStorageString=", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
      "NoWarnings=False", "Keep=False", "Remove=False", "PreserveTime=False", "IdenticalCheckin=False"}},
    {"TClearCaseCheckInPathAction",
     {"PathNameStorageString=", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
      "NoWarnings=False", "Keep=False", "Remove=False", "PreserveTime=False", "IdenticalCheckin=False"}},
    {"TClearCaseMakeElementAction",
     {"PathNameStorageString=", "Comment=", "NoComment=True", "Checkout=ccCheckedOut", "UseElementType=False",
      "ElementType=", "PreserveTime=False", "MakePath=False", "Master=False", "NoWarnings=False"}},
    {"TClearCaseUpdateAction",
     {"PretendOnly=False", "UpdateTimestamp=tbDefault", "HijackMode=hmOverwrite", "ViewContextPath=",
      "UseDefaultViewContext=False"}},
    {"TClearCaseSetConfigSpecAction",
     {"ViewContextPath=", "UseDefaultViewContext=False", "CSpecChoice=csCurrent", "CSFilePath="}},
    {"TClearCaseGetConfigSpecAction",
     {"ViewContextPath=", "UseDefaultViewContext=False", "OutputToFile=False", "OutputFilePath="}},
    {"TClearCaseFindCheckoutsAction",
     {"ViewContextPath=", "UseDefaultViewContext=False", "WriteToVariable=False", "VariableName=", "UseShort=True"}},
    {"TClearCaseCleartoolAction", {"ViewContextPath=", "UseDefaultViewContext=False", "Arguments=", "Command="}},
    {"TClearCaseMkLbTypeAction",
     {"MakeGlobal=False", "Acquire=False", "PBranch=False", "Shared=False", "Replace=False", "Comment=",
      "NoComment=True", "LabelTypeName=", "VOBSelector="}},
    {"TClearCaseApplyLabelAction",
     {"Replace=False", "Recurse=False", "FollowLinks=False", "Comment=", "NoComment=True", "LabelTypeName=",
      "PathNameStorageString=", "VOBSelector=", "VersionSelector=", "UseVersionSelector=False", "ViewContextPath=",
      "UseDefaultViewContext=False"}},
    {"TClearCaseLockGenericAction",
     {"Replace=False", "Obsolete=False", "UseNUsers=False", "NUsersList=", "Comment=", "NoComment=True"}},
    {"TClearCaseLockPathNamesAction",
     {"Replace=False", "Obsolete=False", "UseNUsers=False", "NUsersList=", "Comment=", "NoComment=True",
      "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
    {"TClearCaseLockObjectsAction",
     {"Replace=False", "Obsolete=False", "UseNUsers=False", "NUsersList=", "Comment=", "NoComment=True",
      "ObjectsStorageString="}},
    {"TClearCaseUnlockPathNamesAction",
     {"PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False", "Comment=", "NoComment=True"}},
    {"TClearCaseUnlockObjectsAction", {"ObjectsStorageString=", "Comment=", "NoComment=True"}},
    {"TClearCaseApplyAttributePathNamesAction",
     {"NoComment=True", "Comment=", "AttributeName=", "AttributeValue=", "UseDefaultAttributeValue=False",
      "PathNameStorageString=", "VersionSelector=", "UseVersionSelector=False", "VOBSelector=", "Replace=False",
      "Recurse=False"}},
    {"TClearCaseApplyAttributeObjectsAction",
     {"NoComment=True", "Comment=", "AttributeName=", "AttributeValue=", "UseDefaultAttributeValue=False",
      "ObjectsStorageString=", "VOBSelector=", "Replace=False"}},
    {"TClearCaseMakeAttributeTypeAction",
     {"Comment=", "NoComment=True", "AttributeName=", "VOBSelector=", "Constraints=lcDefault", "Global=False",
      "Acquire=False", "NewAttributeType=atString", "DefaultValue=", "UseDefaultValue=False", "Replace=False",
      "Shared=False", "MinValue=", "MaxValue=", "MinInclusive=False", "MaxInclusive=False", "UseMin=False",
      "UseMax=False"}},
    {"TClearCaseSetActivityAction",
     {"ActivityName=", "VOBSelector=", "UseCurrentActivity=False", "ViewContextPath=", "UseDefaultViewContext=False",
      "SetActivityToNone=False"}},
    {"TClearCaseCheckInActivityAction",
     {"PathNameStorageString=", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
      "NoWarnings=False", "Keep=False", "Remove=False", "PreserveTime=False", "IdenticalCheckin=False",
      "ActivityName=", "VOBSelector=", "UseCurrentActivity=False"}},
    {"TClearCaseUnCheckOutActivityAction",
     {"Keep=False", "PathNameStorageString=", "ViewContextPath=", "UseDefaultViewContext=False"}},
    {"TClearCaseMakeActivityAction",
     {"ActivityName=", "VOBSelector=", "ViewContextPath=", "UseDefaultViewContext=False", "Comment=", "NoComment=True",
      "AutoGenerateName=False", "DontSetAsCurrent=False", "Headline="}},
    {"TClearCaseMakeBaselineAction",
     {"SelectionType=slAll", "SelectIdenticalComponents=False", "Labelling=lbIncremental", "BaselineRootName=",
      "UseBaselineNameTemplate=False", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
      "ActivitySelectorStorageString=", "ComponentSelectorStorageString="}},
    {"TClearCaseMakeBaselineFromLabelAction",
     {"SpecifyComponents=False", "Comment=", "NoComment=True", "ViewContextPath=", "UseDefaultViewContext=False",
      "ComponentSelectorStorageString=", "LabelTypeName=", "VOBSelector="}},
};

INSTANTIATE_TEST_SUITE_P(Actions, PersistedDefaultsTest, testing::ValuesIn(kDefaults),
                         [](const auto& info) { return info.param.className; });

TEST(PersistedDefaults, EveryActionClassHasARow)
{
    std::vector<std::string> rows;
    for (const auto& row : kDefaults)
        rows.push_back(row.className);
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, actionClassNames());
}

struct StorageCase {
    std::string name;
    std::string className;
    std::string property;
    std::string stored;
    std::string readBack;
};

void PrintTo(const StorageCase& row, std::ostream* out)
{
    *out << row.name;
}

class StorageStringTest : public testing::TestWithParam<StorageCase> {};

TEST_P(StorageStringTest, ReadsBack)
{
    const StorageCase& row = GetParam();
    auto action = createAction(row.className);
    ASSERT_TRUE(action->SetPropertyText(row.property, row.stored));
    EXPECT_EQ(action->GetPropertyText(row.property), row.readBack);
}

const std::vector<StorageCase> kStorage = {
    {"PlainPathsMoveBeforeExtendedOnes", "TClearCaseCheckoutAction", "PathNameStorageString",
     "x.c@@/main/1\r\na.c\r\n", "a.c\r\nx.c@@/main/1\r\n"},
    {"AnyLineBreakSplits", "TClearCaseCheckoutAction", "PathNameStorageString", "a.c\nb.c\rc.c\r\n",
     "a.c\r\nb.c\r\nc.c\r\n"},
    {"LastLineWithoutBreakIsKept", "TClearCaseUnCheckOutAction", "PathNameStorageString", "a.c\r\nb.c",
     "a.c\r\nb.c\r\n"},
    {"EmptyLinesAreEntries", "TClearCaseUnCheckOutAction", "PathNameStorageString", "a@@x\r\n\r\nb.c\r\n",
     "\r\nb.c\r\na@@x\r\n"},
    {"EmptyStaysEmpty", "TClearCaseCheckoutAction", "PathNameStorageString", "", ""},
    {"ObjectsKeepTheirOrder", "TClearCaseLockObjectsAction", "ObjectsStorageString", "vob:b@@x\r\nvob:a\nlast",
     "vob:b@@x\r\nvob:a\r\nlast\r\n"},
    {"ActivitiesList", "TClearCaseMakeBaselineAction", "ActivitySelectorStorageString", "a1\r\n\r\na2",
     "a1\r\n\r\na2\r\n"},
    {"ComponentsList", "TClearCaseMakeBaselineFromLabelAction", "ComponentSelectorStorageString", "c1\rc2\r\n",
     "c1\r\nc2\r\n"},
    {"ActivityNameIsTheFirstEntry", "TClearCaseSetActivityAction", "ActivityName", "x", "x"},
};

INSTANTIATE_TEST_SUITE_P(Lists, StorageStringTest, testing::ValuesIn(kStorage),
                         [](const auto& info) { return info.param.name; });

struct EnumCase {
    std::string className;
    std::string property;
    std::vector<std::string> members;
};

void PrintTo(const EnumCase& row, std::ostream* out)
{
    *out << row.className << "." << row.property;
}

class EnumerationTest : public testing::TestWithParam<EnumCase> {};

TEST_P(EnumerationTest, PersistsByMemberName)
{
    const EnumCase& row = GetParam();
    auto action = createAction(row.className);
    for (const auto& member : row.members) {
        EXPECT_TRUE(action->SetPropertyText(row.property, member)) << member;
        EXPECT_EQ(action->GetPropertyText(row.property), member);
    }
    std::string error;
    EXPECT_FALSE(action->SetPropertyText(row.property, "noSuchMember", &error));
    EXPECT_EQ(action->GetPropertyText(row.property), row.members.back());
}

const std::vector<EnumCase> kEnums = {
    {"TClearCaseCheckoutAction", "DataLocation", {"coView", "coOut", "coNoData"}},
    {"TClearCaseCheckoutAction", "SelectionMode", {"coDefault", "coVersion", "coBranch"}},
    {"TClearCaseMakeElementAction", "Checkout", {"ccCheckedOut", "ccCheckedIn", "ccNoCheckOut"}},
    {"TClearCaseUpdateAction", "UpdateTimestamp", {"tbDefault", "tbCurrent", "tbCheckin"}},
    {"TClearCaseUpdateAction", "HijackMode", {"hmOverwrite", "hmNooverwrite", "hmRename"}},
    {"TClearCaseSetConfigSpecAction", "CSpecChoice", {"csCurrent", "csDefault", "csFile", "csStream"}},
    {"TClearCaseMakeAttributeTypeAction", "NewAttributeType", {"atString", "atInteger", "atReal", "atDate", "atOpaque"}},
    {"TClearCaseMakeAttributeTypeAction", "Constraints", {"lcDefault", "lcVPelement", "lcVPbranch", "lcVPversion"}},
    {"TClearCaseMakeBaselineAction", "SelectionType", {"slAll", "slComponents", "slActivities"}},
    {"TClearCaseMakeBaselineAction", "Labelling", {"lbIncremental", "lbAll", "lbNone"}},
};

INSTANTIATE_TEST_SUITE_P(Members, EnumerationTest, testing::ValuesIn(kEnums),
                         [](const auto& info) { return info.param.className.substr(10) + "_" + info.param.property; });

} // namespace
} // namespace wftest

namespace wftest {
namespace {

// ActivityName and ActivitySelectorStorageString are two views of one list.
TEST(ActivityList, NameAndStorageStringShareOneList)
{
    auto action = createAction("TClearCaseMakeBaselineAction");
    ASSERT_TRUE(action->SetPropertyText("ActivitySelectorStorageString", "a1\r\na2\r\n"));
    auto& ucm = dynamic_cast<TClearCaseUCMAction&>(*action);
    EXPECT_EQ(ucm.GetActivityName(), "a1");
    ucm.SetActivityName("x");
    EXPECT_EQ(action->GetPropertyText("ActivitySelectorStorageString"), "x\r\n");
    ucm.SetActivityName("");
    EXPECT_EQ(action->GetPropertyText("ActivitySelectorStorageString"), "\r\n");
}

struct IdentityCase {
    std::string className;
    std::string displayName;
    std::string command;
    int helpTopic;
};

void PrintTo(const IdentityCase& row, std::ostream* out)
{
    *out << row.className;
}

class IdentityTest : public testing::TestWithParam<IdentityCase> {};

TEST_P(IdentityTest, MatchesTheCatalogue)
{
    auto action = createAction(GetParam().className);
    ASSERT_TRUE(action);
    EXPECT_EQ(action->GetActionName(), GetParam().displayName);
    EXPECT_EQ(action->GetCommand(), GetParam().command);
    EXPECT_EQ(action->GetHelpTopicID(), GetParam().helpTopic);
    EXPECT_EQ(action->GetQuickHelpFilename(), "Plugins\\ClearCase.html");
}

// The catalogue, in registration order.
const std::vector<IdentityCase> kIdentities = {
    {"TClearCaseUpdateAction", "ClearCase Update Snapshot View", "update", 4440},
    {"TClearCaseCheckoutAction", "ClearCase Check Out", "checkout", 4460},
    {"TClearCaseCheckInPathAction", "ClearCase Check In", "checkin", 4470},
    {"TClearCaseUnCheckOutAction", "ClearCase Undo Checkout", "uncheckout", 4480},
    {"TClearCaseFindCheckoutsAction", "ClearCase Find Checkouts", "lscheckout", 4490},
    {"TClearCaseMakeElementAction", "ClearCase Make Element", "mkelem", 4500},
    {"TClearCaseMkLbTypeAction", "ClearCase Make Label Type", "mklbtype", 4510},
    {"TClearCaseApplyLabelAction", "ClearCase Apply Label", "mklabel", 4520},
    {"TClearCaseMakeAttributeTypeAction", "ClearCase Make Attribute Type", "mkattype", 4530},
    {"TClearCaseApplyAttributePathNamesAction", "ClearCase Apply Attribute (Paths)", "mkattr", 4540},
    {"TClearCaseApplyAttributeObjectsAction", "ClearCase Apply Attribute (Objects)", "mkattr", 4540},
    {"TClearCaseLockPathNamesAction", "ClearCase Lock (Paths)", "lock", 4560},
    {"TClearCaseUnlockPathNamesAction", "ClearCase Unlock (Paths)", "unlock", 4570},
    {"TClearCaseLockObjectsAction", "ClearCase Lock (Objects)", "lock", 4560},
    {"TClearCaseUnlockObjectsAction", "ClearCase Unlock (Objects)", "unlock", 4570},
    {"TClearCaseCleartoolAction", "ClearCase Run Cleartool (Generic)", "", 4580},
    {"TClearCaseGetConfigSpecAction", "ClearCase Get Config Spec", "catcs", 4590},
    {"TClearCaseSetConfigSpecAction", "ClearCase Set Config Spec", "setcs", 4600},
    {"TClearCaseMakeActivityAction", "UCM Make Activity", "mkactivity", 4610},
    {"TClearCaseSetActivityAction", "UCM Set Current Activity", "setactivity", 4620},
    {"TClearCaseCheckInActivityAction", "UCM Check In Files for Activity", "checkin", 4630},
    {"TClearCaseUnCheckOutActivityAction", "UCM Undo Checkouts for Activity", "uncheckout", 4640},
    {"TClearCaseMakeBaselineAction", "UCM Make Baseline", "mkbl", 4650},
    {"TClearCaseMakeBaselineFromLabelAction", "UCM Make Baseline from Label", "mkbl", 4660},
};

INSTANTIATE_TEST_SUITE_P(Catalogue, IdentityTest, testing::ValuesIn(kIdentities),
                         [](const auto& info) { return info.param.className; });

} // namespace
} // namespace wftest
