#include "WFAction.h"
#include "WFPluginLoader.h"
#include "WFServices.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

namespace {

TEST(PluginLoader, RegistersAndRunsAnActionEndToEnd)
{
    WFActionServices().Clear();
    std::string error;
    ASSERT_TRUE(WFLoadPlugin(WF_TEST_PLUGIN_PATH, true, error)) << error;
    // Loading the same package again registers nothing twice.
    ASSERT_TRUE(WFLoadPlugin(WF_TEST_PLUGIN_PATH, true, error)) << error;
    ASSERT_EQ(WFActionServices().Catalogue().size(), 1u);
    EXPECT_EQ(WFActionServices().Catalogue()[0].typeId, "T_ECHO");
    ASSERT_EQ(WFActionServices().PagesOf("TEchoAction").size(), 1u);

    auto action = WFActionServices().CreateAction("T_ECHO");
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetActionTypeID(), "T_ECHO");
    wftest::TempDir dir;
    wftest::ScopedEnv record("WF_FAKE_RECORD", dir.file("record.txt"));
    wftest::RecordingLog log;
    TWFBuildVariables variables;
    variables.Set("WHO", TWFVariant("world"));
    TWFActionHost host{&log, &variables, dir.path(), false, 0, {}};
    action->SetHost(&host);
    ASSERT_TRUE(action->SetPropertyText("Program", wftest::testAppPath()));
    ASSERT_TRUE(action->SetPropertyText("Arguments", "hello \"%WHO% again\""));
    ASSERT_TRUE(action->Execute());
    const auto runs = wftest::readInvocations(dir.file("record.txt"));
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"hello", "world again"}));
    WFActionServices().Clear();
}

TEST(PluginLoader, ExplainsWhatIsWrong)
{
    wftest::TempDir dir;
    std::string error;
    EXPECT_FALSE(WFLoadPlugin(dir.file("missing.so"), false, error));
    EXPECT_NE(error.find("does not exist"), std::string::npos) << error;

    const std::string notALibrary = dir.write("fake.so", "not a shared library");
    EXPECT_FALSE(WFLoadPlugin(notALibrary, false, error));
    EXPECT_NE(error.find("cannot load plug-in"), std::string::npos) << error;

    EXPECT_FALSE(WFLoadPlugin(WF_NO_ENTRY_PLUGIN_PATH, false, error));
    EXPECT_NE(error.find("no WFRegister"), std::string::npos) << error;
}

} // namespace
