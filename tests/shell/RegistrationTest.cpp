#include "GoldenCatalogue.h"
#include "RowName.h"

#include "environment/WFClearCaseQuerySession.h"
#include "resources/WFClearCaseResources.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFAction.h"
#include "WFLog.h"
#include "WFPluginLoader.h"
#include "WFServices.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
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

std::uint32_t readU32(std::span<const unsigned char> bytes, std::size_t at)
{
    return bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 | static_cast<std::uint32_t>(bytes[at + 3]) << 24;
}

std::uint16_t readU16(std::span<const unsigned char> bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

/// The named resource is a 16 by 16 bitmap of 8 bits a pixel with a full palette.
void expectBitmap(const std::string& name)
{
    const std::span<const unsigned char> bmp = WFClearCaseFindResource(name);
    ASSERT_GE(bmp.size(), 14u + 40u) << name;
    EXPECT_EQ(bmp[0], 'B');
    EXPECT_EQ(bmp[1], 'M');
    EXPECT_EQ(readU32(bmp, 2), bmp.size());
    const std::uint32_t pixelsAt = readU32(bmp, 10);
    EXPECT_EQ(readU32(bmp, 14), 40u) << "info header size";
    EXPECT_EQ(readU32(bmp, 18), 16u) << "width";
    EXPECT_EQ(readU32(bmp, 22), 16u) << "height";
    EXPECT_EQ(readU16(bmp, 26), 1u) << "planes";
    EXPECT_EQ(readU16(bmp, 28), 8u) << "bits per pixel";
    EXPECT_EQ(readU32(bmp, 30), 0u) << "compression";
    const std::uint32_t colours = readU32(bmp, 46);
    EXPECT_TRUE(colours == 0 || colours == 256) << colours;
    EXPECT_EQ(pixelsAt, 14u + 40u + 256u * 4u);
    EXPECT_EQ(bmp.size(), pixelsAt + 16u * 16u);
}

class CatalogueRowTest : public testing::TestWithParam<std::size_t> {};

// Each row is registered in place, and the action it makes runs its own sub-command and persists
// its properties in order with their defaults (enumerations by member name).
TEST_P(CatalogueRowTest, MatchesTheGoldenRowAndIsRegisteredInPlace)
{
    RegisteredPackage package(false);
    const wftest::GoldenAction& golden = wftest::goldenCatalogue()[GetParam()];
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
    expectBitmap(golden.typeId);

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
    RegisteredPackage package(false);
    TWFOptionsObject* options = WFOptionsServices().FindOptions("Version Control Systems", "ClearCase");
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(WFOptionsServices().IconOf(*options), "CC_LOGO");
    expectBitmap(WFOptionsServices().IconOf(*options));
    // Scripts reach the options through a function and read the edition by its members.
    EXPECT_TRUE(WFScriptingServices().HasFunction("ClearCaseOptions"));
    const auto& enumerations = WFScriptingServices().Enumerations();
    ASSERT_EQ(enumerations.size(), 1u);
    EXPECT_EQ(enumerations[0].second, (std::vector<std::string>{"ccUnknown", "ccLT", "ccFull"}));
}

TEST(RegistrationTest, ResourcesAreTheActionBitmapsAndTheLogoEachItsOwn)
{
    std::vector<std::string> names{"CC_LOGO"};
    for (const auto& row : wftest::goldenCatalogue())
        names.push_back(row.typeId);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(WFClearCaseResourceNames(), names);
    for (std::size_t a = 0; a < names.size(); ++a) {
        for (std::size_t b = a + 1; b < names.size(); ++b) {
            const auto first = WFClearCaseFindResource(names[a]);
            const auto second = WFClearCaseFindResource(names[b]);
            EXPECT_FALSE(std::equal(first.begin(), first.end(), second.begin(), second.end()))
                << names[a] << " and " << names[b] << " look the same";
        }
    }
}

TEST(RegistrationTest, UnknownTypeHasNoHelpTopicNorBitmap)
{
    for (const char* name : {"", "CC_NOSUCH", "cc_checkout", "CC_CHECKOUT.bmp"}) {
        EXPECT_EQ(WFClearCaseHelpTopic(name), 0) << name;
        EXPECT_TRUE(WFClearCaseFindResource(name).empty()) << name;
    }
}

} // namespace
