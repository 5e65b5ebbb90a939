// The list storage strings. Each action's defaults (its intermediate classes' with them) are
// checked with its registration; enumeration members are persisted by name in the command line
// tables.
#include "ActionTestSupport.h"
#include "RowName.h"

#include "actions/WFClearCaseUCMAction.h"

#include <gtest/gtest.h>

namespace wftest {
namespace {

struct StorageCase {
    std::string name;
    std::string className;
    std::string property;
    std::string stored;
    std::string readBack;
};

WF_ROW_PRINTER(StorageCase)

class StorageStringTest : public testing::TestWithParam<StorageCase> {};

TEST_P(StorageStringTest, ReadsBack)
{
    const StorageCase& row = GetParam();
    auto action = createAction(row.className);
    ASSERT_TRUE(action->SetPropertyText(row.property, row.stored));
    EXPECT_EQ(action->GetPropertyText(row.property), row.readBack);
}

const std::vector<StorageCase> kStorage = {
    // Splitting itself is the string list's; here plain paths, the empty one too, go first.
    {"EmptyLinesAreEntries", "TClearCaseUnCheckOutAction", "PathNameStorageString", "a@@x\r\n\r\nb.c\r\n",
     "\r\nb.c\r\na@@x\r\n"},
    {"ObjectsKeepTheirOrder", "TClearCaseLockObjectsAction", "ObjectsStorageString", "vob:b@@x\r\nvob:a\nlast",
     "vob:b@@x\r\nvob:a\r\nlast\r\n"},
    {"ActivitiesList", "TClearCaseMakeBaselineAction", "ActivitySelectorStorageString", "a1\r\n\r\na2",
     "a1\r\n\r\na2\r\n"},
    {"ComponentsList", "TClearCaseMakeBaselineFromLabelAction", "ComponentSelectorStorageString", "c1\rc2\r\n",
     "c1\r\nc2\r\n"},
    {"ActivityNameIsTheFirstEntry", "TClearCaseSetActivityAction", "ActivityName", "x", "x"},
};

INSTANTIATE_TEST_SUITE_P(Lists, StorageStringTest, testing::ValuesIn(kStorage), wftest::byName);

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

} // namespace
} // namespace wftest
