#include "GoldenCatalogue.h"
#include "RowName.h"

#include "environment/WFClearCaseQuerySession.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFAction.h"
#include "WFLog.h"
#include "WFPluginLoader.h"
#include "WFServices.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
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

/// Stands in for the host's companion-library service: records what the package asks for and
/// answers with the entry point a row gives.
class FakeCompanions final : public IWFCompanionLibraries {
public:
    explicit FakeCompanions(void* answer) : m_answer(answer) {}
    void* Resolve(const void*, const std::string& relativePath, const std::string& symbol) override
    {
        asked.push_back(relativePath + " " + symbol);
        return m_answer;
    }
    std::vector<std::string> asked;

private:
    void* m_answer;
};

int g_pageRegistrations = 0;
void countPageRegistration()
{
    ++g_pageRegistrations;
}

struct PageLibraryCase {
    const char* name;
    bool registerPages;
    bool libraryLoads;
    std::vector<std::string> asked;
    int registrations;
    std::vector<std::string> warnings;
};

WF_ROW_PRINTER(PageLibraryCase)

class PageLibraryTest : public testing::TestWithParam<PageLibraryCase> {};

TEST_P(PageLibraryTest, IsAskedOfTheHostOnlyByADesignTimeHost)
{
    const PageLibraryCase& row = GetParam();
    auto fake = std::make_shared<FakeCompanions>(row.libraryLoads ? reinterpret_cast<void*>(&countPageRegistration) : nullptr);
    const auto previous = SetWFCompanionLibrariesFactory([fake] { return fake; });
    std::vector<std::string> warnings;
    const auto previousWarnings = SetWFWarningHandler([&](std::string_view text) { warnings.emplace_back(text); });
    g_pageRegistrations = 0;
    {
        RegisteredPackage package(row.registerPages);
        EXPECT_EQ(GetClearCaseDesignTime(), row.registerPages);
        // The shell itself names no page.
        EXPECT_TRUE(WFActionServices().PagesOf("TClearCaseCheckoutAction").empty());
    }
    SetClearCaseDesignTime(false);
    SetWFWarningHandler(previousWarnings);
    SetWFCompanionLibrariesFactory(previous);
    EXPECT_EQ(fake->asked, row.asked);
    EXPECT_EQ(g_pageRegistrations, row.registrations);
    EXPECT_EQ(warnings, row.warnings);
}

const std::vector<std::string> kAskedForPages{"clearcase/WF30ClearCasePages.so WFClearCaseRegisterPages"};

INSTANTIATE_TEST_SUITE_P(
    Registration, PageLibraryTest,
    testing::Values(PageLibraryCase{"HeadlessHostLoadsNoPageLibrary", false, true, {}, 0, {}},
                    PageLibraryCase{"DesignTimeHostRegistersThePagesThroughTheLibrarysEntryPoint", true, true,
                                    kAskedForPages, 1, {}},
                    PageLibraryCase{"MissingPageLibraryLeavesTheActionsWithAWarning", true, false, kAskedForPages, 0,
                                    {"the ClearCase property pages are unavailable"}}), wftest::byName);

TEST(RegistrationTest, OptionsAreRegisteredWithIconAndScripts)
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
    }
}

class IntermediateClassTest : public testing::TestWithParam<std::string> {};

TEST_P(IntermediateClassTest, IsNotCatalogued)
{
    RegisteredPackage package(false);
    for (const auto& entry : WFActionServices().Catalogue())
        EXPECT_NE(entry.actionClass.className, GetParam());
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
