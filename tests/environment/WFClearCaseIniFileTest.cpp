#include "environment/WFClearCaseIniFile.h"
#include "RowName.h"

#include "WFBrowse.h"
#include "environment/WFClearCaseOptions.h"
#include "WFIniFile.h"
#include "WFServices.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace {

/// Per-user settings in a fresh configuration folder, with a folder picker that answers as told.
class UserSettingsTest : public testing::Test {
protected:
    void SetUp() override
    {
        SetWFConfigDirectory(m_config.path());
        WFOptionsServices().Clear();
        RegisterOptions();
        SetWFBrowseForDirectoryHook([this](const std::string& initialDir, std::string& dir, const std::string& caption) {
            ++browses;
            browseStart = initialDir;
            browseCaption = caption;
            if (!answer)
                return false;
            dir = *answer;
            return true;
        });
    }
    void TearDown() override
    {
        SetWFBrowseForDirectoryHook({});
        WFOptionsServices().Clear();
        SetWFConfigDirectory("");
    }

    std::string userIni() const { return wftest::readFile(m_config.file("user.ini")); }
    void writeUserIni(const std::string& bytes) const { m_config.write("user.ini", bytes); }

    std::optional<std::string> answer;
    int browses = 0;
    std::string browseStart;
    std::string browseCaption;

private:
    wftest::TempDir m_config;
};

TEST_F(UserSettingsTest, UnwritableSettingsReportFailure)
{
    SetWFConfigDirectory("/proc/wf-no-such-folder");
    EXPECT_FALSE(CCSetLastViewDirectory("/views/dev"));
    EXPECT_FALSE(CCSetUsingCustomObjectSelector(true));
}

struct SelectCase {
    std::string name;
    std::string current;
    std::optional<std::string> storedLast; // none: no user file
    std::string defaultView;
    std::optional<std::string> answer;
    std::string expectedStart;
    std::string expectedResult;
    std::string expectedUserIni;
};

WF_ROW_PRINTER(SelectCase)

class SelectViewPathTest : public UserSettingsTest, public testing::WithParamInterface<SelectCase> {};

TEST_P(SelectViewPathTest, StartsWhereExpectedAndRemembersOnlyAChoice)
{
    const SelectCase& row = GetParam();
    if (row.storedLast)
        writeUserIni("[ClearCase]\nLastViewDirectory=" + *row.storedLast + "\n");
    ClearCaseOptions()->SetDefaultViewPath(row.defaultView);
    answer = row.answer;

    EXPECT_EQ(CCSelectViewPath(row.current), row.expectedResult);
    EXPECT_EQ(browses, 1);
    EXPECT_EQ(browseStart, row.expectedStart);
    EXPECT_EQ(browseCaption, "Select View");
    EXPECT_EQ(userIni(), row.expectedUserIni);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, SelectViewPathTest,
    testing::Values(
        SelectCase{"CurrentConfirmed", "/views/a", "/views/last", "", "/views/b", "/views/a", "/views/b",
                   "[ClearCase]\nLastViewDirectory=/views/b\n"},
        SelectCase{"EmptyCurrentStartsAtTheLast", "", "/views/last", "/views/default", "/views/c", "/views/last",
                   "/views/c", "[ClearCase]\nLastViewDirectory=/views/c\n"},
        SelectCase{"DefaultViewWhenNothingRemembered", "", std::nullopt, "/views/default", std::nullopt, "/views/default",
                   "", ""},
        SelectCase{"NothingAtAll", "", std::nullopt, "", std::nullopt, "", "", ""}), wftest::byName);

struct FlagCase {
    std::string name;
    std::string userIni;
    bool expected;
};

WF_ROW_PRINTER(FlagCase)

class CustomObjectSelectorTest : public UserSettingsTest, public testing::WithParamInterface<FlagCase> {};

TEST_P(CustomObjectSelectorTest, ReadsTheStoredFlag)
{
    writeUserIni(GetParam().userIni);
    EXPECT_EQ(CCGetUsingCustomObjectSelector(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, CustomObjectSelectorTest,
    testing::Values(FlagCase{"TrueWord", "[ClearCase]\nUsingCustomObjectSelector=True\n", true},
                    FlagCase{"Garbage", "[ClearCase]\nUsingCustomObjectSelector=maybe\n", false}), wftest::byName);

TEST_F(UserSettingsTest, CustomObjectSelectorSharesTheSectionWithTheViewDirectory)
{
    ASSERT_TRUE(CCSetLastViewDirectory("/views/dev"));
    ASSERT_TRUE(CCSetUsingCustomObjectSelector(true));
    EXPECT_EQ(userIni(), "[ClearCase]\nLastViewDirectory=/views/dev\nUsingCustomObjectSelector=1\n");
    EXPECT_TRUE(CCGetUsingCustomObjectSelector());
    ASSERT_TRUE(CCSetUsingCustomObjectSelector(false));
    EXPECT_EQ(userIni(), "[ClearCase]\nLastViewDirectory=/views/dev\nUsingCustomObjectSelector=0\n");
    EXPECT_FALSE(CCGetUsingCustomObjectSelector());
}

} // namespace
