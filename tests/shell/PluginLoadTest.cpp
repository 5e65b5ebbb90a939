#include "GoldenCatalogue.h"

#include "WFAction.h"
#include "WFPluginLoader.h"
#include "WFServices.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// This program links the host runtime only: it meets the package as a host does.

TEST(PluginLoadTest, TheBuiltPackageRegistersItselfThroughItsEntryPoint)
{
    std::string error;
    ASSERT_TRUE(WFLoadPlugin(WF_CC_PLUGIN_PATH, true, error)) << error;

    // The whole catalogue, each row in place, is the registration tests' concern.
    EXPECT_EQ(WFActionServices().Catalogue().size(), wftest::goldenCatalogue().size());
    const auto action = WFActionServices().CreateAction("CC_CHECKOUT");
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetActionName(), "ClearCase Check Out");
    EXPECT_EQ(WFActionServices().PagesOf("TClearCaseCheckoutAction").size(), 4u);
    EXPECT_NE(WFOptionsServices().FindOptions("Version Control Systems", "ClearCase"), nullptr);
    std::string text;
    EXPECT_TRUE(WFScriptingServices().Evaluate("ClearCaseOptions", "TestForClearCaseType", text, error)) << error;

    // A second load of the same file registers nothing twice.
    ASSERT_TRUE(WFLoadPlugin(WF_CC_PLUGIN_PATH, true, error)) << error;
    EXPECT_EQ(WFActionServices().Catalogue().size(), wftest::goldenCatalogue().size());

    const auto plugins = WFLoadedPlugins();
    ASSERT_EQ(plugins.size(), 1u);
    EXPECT_EQ(plugins[0].description, "Wrenfield 3.x clearcase Support");
}

} // namespace
