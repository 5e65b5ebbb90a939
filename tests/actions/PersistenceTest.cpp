// What each action persists: its property names in persistence order with their defaults
// (enumerations by member name), the list storage strings, and enumeration member names.
#include "ActionTestSupport.h"

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
};

INSTANTIATE_TEST_SUITE_P(Members, EnumerationTest, testing::ValuesIn(kEnums),
                         [](const auto& info) { return info.param.className.substr(10) + "_" + info.param.property; });

} // namespace
} // namespace wftest
