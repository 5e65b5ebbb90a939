#include "ExpectedCatalogue.h"

#include "WFAction.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFServices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace {

void clearServices()
{
    WFActionServices().Clear();
    WFOptionsServices().Clear();
    WFScriptingServices().Clear();
}

std::vector<std::string> pageNames(const std::vector<TWFPageClass>& pages)
{
    std::vector<std::string> names;
    for (const auto& page : pages)
        names.push_back(page.className);
    return names;
}

/// Registers the package afresh, with or without pages.
class RegisteredPackage {
public:
    explicit RegisteredPackage(bool registerPages)
    {
        clearServices();
        ClearCaseRegister(registerPages);
    }
    ~RegisteredPackage() { clearServices(); }
    RegisteredPackage(const RegisteredPackage&) = delete;
    RegisteredPackage& operator=(const RegisteredPackage&) = delete;
};

class CatalogueRowTest : public testing::TestWithParam<std::size_t> {};

TEST_P(CatalogueRowTest, RegisteredInPlaceWithNameCategoryAndHelp)
{
    RegisteredPackage package(false);
    const wftest::ExpectedAction& expected = wftest::expectedCatalogue()[GetParam()];
    const auto& catalogue = WFActionServices().Catalogue();
    ASSERT_EQ(catalogue.size(), wftest::expectedCatalogue().size());
    const TWFCatalogueEntry& entry = catalogue[GetParam()];

    EXPECT_EQ(entry.typeId, expected.typeId);
    EXPECT_EQ(entry.actionClass.className, expected.className);
    EXPECT_EQ(entry.displayName, expected.displayName);
    EXPECT_EQ(entry.category, "ClearCase");

    const auto action = WFActionServices().CreateAction(expected.typeId);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetActionName(), expected.displayName);
    EXPECT_EQ(action->GetHelpTopicID(), expected.helpTopic);
    EXPECT_EQ(WFClearCaseHelpTopic(expected.typeId), expected.helpTopic);
    EXPECT_EQ(action->GetQuickHelpFilename(), WFClearCaseHelpFileName());
    EXPECT_FALSE(WFClearCaseFindResource(expected.typeId).empty()) << "no bitmap for " << expected.typeId;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, CatalogueRowTest, testing::Range<std::size_t>(0, 24),
                         [](const testing::TestParamInfo<std::size_t>& info) {
                             return wftest::expectedCatalogue()[info.param].typeId;
                         });

TEST(RegistrationTest, EveryCataloguedClassHasPagesOnlyForADesignTimeHost)
{
    {
        RegisteredPackage package(false);
        for (const auto& row : ClearCaseCatalogue())
            EXPECT_TRUE(WFActionServices().PagesOf(row.actionClass.className).empty()) << row.actionClass.className;
    }
    RegisteredPackage package(true);
    for (const auto& row : ClearCaseCatalogue())
        EXPECT_FALSE(WFActionServices().PagesOf(row.actionClass.className).empty()) << row.actionClass.className;
}

TEST(RegistrationTest, PageTableCoversTheCatalogue)
{
    std::vector<std::string> registered;
    for (const auto& row : ClearCaseActionPages())
        registered.push_back(row.actionClassName);

    std::vector<std::string> catalogued;
    for (const auto& row : ClearCaseCatalogue())
        catalogued.push_back(row.actionClass.className);
    std::sort(registered.begin(), registered.end());
    std::sort(catalogued.begin(), catalogued.end());
    EXPECT_EQ(registered, catalogued);
}

TEST(RegistrationTest, OptionsAreRegisteredWithIconScriptsAndPageOnlyAtDesignTime)
{
    {
        RegisteredPackage package(false);
        TWFOptionsObject* options = WFOptionsServices().FindOptions("Version Control Systems", "ClearCase");
        ASSERT_NE(options, nullptr);
        EXPECT_EQ(WFOptionsServices().IconOf(*options), "CC_LOGO");
        EXPECT_FALSE(WFClearCaseFindResource(WFOptionsServices().IconOf(*options)).empty());
        EXPECT_TRUE(WFScriptingServices().HasFunction("ClearCaseOptions"));
        const auto& enumerations = WFScriptingServices().Enumerations();
        ASSERT_EQ(enumerations.size(), 1u);
        EXPECT_EQ(enumerations[0].first, "TClearCaseType");
        EXPECT_EQ(enumerations[0].second, (std::vector<std::string>{"ccUnknown", "ccLT", "ccFull"}));
        EXPECT_TRUE(WFOptionsServices().PagesOf("TWFClearCaseOptions").empty());
    }
    RegisteredPackage package(true);
    EXPECT_EQ(pageNames(WFOptionsServices().PagesOf("TWFClearCaseOptions")), std::vector<std::string>{"TClearCaseOptionsFrame"});
}

class IntermediateClassTest : public testing::TestWithParam<std::string> {};

TEST_P(IntermediateClassTest, IsNeitherCataloguedNorGivenPages)
{
    RegisteredPackage package(true);
    for (const auto& entry : WFActionServices().Catalogue())
        EXPECT_NE(entry.actionClass.className, GetParam());
    EXPECT_TRUE(WFActionServices().PagesOf(GetParam()).empty());
}

INSTANTIATE_TEST_SUITE_P(Bases, IntermediateClassTest,
                         testing::Values("TClearCaseBaseAction", "TClearCaseUCMAction", "TClearCaseCheckInGenericAction",
                                         "TClearCaseLockGenericAction", "TClearCaseBaseAttributeAction"),
                         [](const testing::TestParamInfo<std::string>& info) { return info.param; });

TEST(RegistrationTest, UnknownTypeHasNoHelpTopic)
{
    EXPECT_EQ(WFClearCaseHelpTopic("CC_NOSUCH"), 0);
    EXPECT_EQ(WFClearCaseHelpTopic("cc_checkout"), 0);
}

} // namespace
