#include "GoldenCatalogue.h"

#include "shell/WFClearCaseRegistration.h"
#include "WFAction.h"
#include "WFServices.h"
#include "WFTestSupport.h"

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

// Each row is registered in place, and the action it makes runs its own sub-command and persists
// its properties in order with their defaults (enumerations by member name).
TEST_P(CatalogueRowTest, MatchesTheGoldenRowAndIsRegisteredInPlace)
{
    RegisteredPackage package(false);
    const wftest::GoldenAction& golden = wftest::goldenCatalogue()[GetParam()];
    ASSERT_EQ(ClearCaseCatalogue().size(), wftest::goldenCatalogue().size());
    const TClearCaseActionIdentity& row = ClearCaseCatalogue()[GetParam()].identity;
    EXPECT_EQ(row.typeId, golden.typeId);
    EXPECT_EQ(row.className, golden.className);
    EXPECT_EQ(row.displayName, golden.displayName);
    EXPECT_EQ(row.helpTopic, golden.helpTopic);

    const auto& catalogue = WFActionServices().Catalogue();
    ASSERT_EQ(catalogue.size(), wftest::goldenCatalogue().size());
    const TWFCatalogueEntry& entry = catalogue[GetParam()];
    EXPECT_EQ(entry.typeId, golden.typeId);
    EXPECT_EQ(entry.actionClass.className, golden.className);
    EXPECT_EQ(entry.displayName, golden.displayName);
    EXPECT_EQ(entry.category, "ClearCase");

    const auto action = WFActionServices().CreateAction(golden.typeId);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetActionName(), golden.displayName);
    EXPECT_EQ(action->GetHelpTopicID(), golden.helpTopic);
    EXPECT_EQ(WFClearCaseHelpTopic(golden.typeId), golden.helpTopic);
    EXPECT_EQ(action->GetQuickHelpFilename(), wftest::goldenHelpFile);
    EXPECT_EQ(WFClearCaseHelpFileName(), wftest::goldenHelpFile);
    EXPECT_FALSE(WFClearCaseFindResource(golden.typeId).empty()) << "no bitmap for " << golden.typeId;

    auto made = ClearCaseCreateAction(ClearCaseCatalogue()[GetParam()]);
    EXPECT_EQ(made->GetCommand(), golden.command);
    wftest::RecordingWriter writer;
    made->WriteState(writer);
    EXPECT_EQ(writer.values, golden.defaults);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, CatalogueRowTest, testing::Range<std::size_t>(0, 24),
                         [](const testing::TestParamInfo<std::size_t>& info) {
                             return wftest::goldenCatalogue()[info.param].typeId;
                         });

TEST(RegistrationTest, EveryCataloguedClassHasPagesOnlyForADesignTimeHost)
{
    {
        RegisteredPackage package(false);
        for (const auto& row : ClearCaseCatalogue())
            EXPECT_TRUE(WFActionServices().PagesOf(row.identity.className).empty()) << row.identity.className;
    }
    RegisteredPackage package(true);
    for (const auto& row : ClearCaseCatalogue())
        EXPECT_FALSE(WFActionServices().PagesOf(row.identity.className).empty()) << row.identity.className;

    std::vector<std::string> withPages;
    for (const auto& row : ClearCaseActionPages())
        withPages.push_back(row.actionClassName);
    std::vector<std::string> catalogued;
    for (const auto& row : ClearCaseCatalogue())
        catalogued.push_back(row.identity.className);
    std::sort(withPages.begin(), withPages.end());
    std::sort(catalogued.begin(), catalogued.end());
    EXPECT_EQ(withPages, catalogued);
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
