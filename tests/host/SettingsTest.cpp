#include "WFIniFile.h"
#include "WFServices.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

namespace {

TEST(IniFile, WritingOneValueKeepsEverythingElse)
{
    wftest::TempDir dir;
    const std::string path = dir.write("user.ini", "; settings\n[Other]\nKey=keep me\n\n[ClearCase]\nLastViewDirectory=/old\nUsingCustomObjectSelector=1\n\n[Tail]\nA=1\n");
    TWFIniFile ini(path);
    ASSERT_TRUE(ini.WriteString("ClearCase", "LastViewDirectory", "/views/new dir"));
    ASSERT_TRUE(ini.WriteString("ClearCase", "Added", "x=y"));
    ASSERT_TRUE(ini.WriteString("New", "K", "v"));
    EXPECT_EQ(wftest::readFile(path), "; settings\n[Other]\nKey=keep me\n\n[ClearCase]\nLastViewDirectory=/views/new dir\n"
                                      "UsingCustomObjectSelector=1\nAdded=x=y\n\n[Tail]\nA=1\n\n[New]\nK=v\n");
    EXPECT_EQ(ini.ReadString("ClearCase", "Added", ""), "x=y");
    EXPECT_EQ(ini.ReadString("ClearCase", "Missing", "default"), "default");
    EXPECT_EQ(TWFIniFile(dir.file("absent/user.ini")).ReadString("S", "K", "d"), "d");
}

TEST(IniFile, CreatesItsFolder)
{
    wftest::TempDir dir;
    TWFIniFile ini(dir.file("a/b/user.ini"));
    ASSERT_TRUE(ini.WriteString("S", "K", "v"));
    EXPECT_EQ(wftest::readFile(dir.file("a/b/user.ini")), "[S]\nK=v\n");
}

TEST(ConfigDirectory, FollowsOverrideThenEnvironment)
{
    wftest::ScopedEnv wf("WF_CONFIG_DIR", "/cfg/wf");
    wftest::ScopedEnv xdg("XDG_CONFIG_HOME", "/cfg/xdg");
    EXPECT_EQ(GetWFUserIniFileName(), "/cfg/wf/user.ini");
    {
        wftest::ScopedEnv unset("WF_CONFIG_DIR", "");
        EXPECT_EQ(GetWFOptionsFileName(), "/cfg/xdg/wrenfield/options.ini");
    }
    SetWFConfigDirectory("/given");
    EXPECT_EQ(GetWFOptionsFileName(), "/given/options.ini");
    SetWFConfigDirectory("");
}

class TDemoOptions final : public TWFOptionsObject {
public:
    TDemoOptions()
    {
        PublishString("Path", [this] { return path; }, [this](const std::string& v) { path = v; });
    }
    void SaveOptions(IWFOptionsWriter& writer) override
    {
        writer.WriteString("Path", path);
        if (!mode.empty())
            writer.WriteString("Mode", mode);
    }
    void LoadOptions(IWFOptionsReader& reader) override
    {
        path = reader.ReadString("Path", "none");
        mode = reader.ReadString("Mode", "");
    }
    std::string GetName() const override { return "Demo"; }
    std::string GetCategory() const override { return "Tests"; }
    std::string GetOptionKey() const override { return "Demo"; }
    std::string path;
    std::string mode;
};

TEST(OptionsServices, LoadSaveKeepsForeignSectionsAndUnwrittenKeys)
{
    wftest::TempDir dir;
    const std::string ini = dir.write("options.ini", "[Foreign]\nX=1\n\n[Demo]\nPath=/a\nMode=fast\nExtra=kept\n");
    WFOptionsServices().Clear();
    WFOptionsServices().RegisterOptionsClass({"TDemoOptions", [] { return std::unique_ptr<TWFOptionsObject>(new TDemoOptions); }}, "LOGO");
    std::string error;
    ASSERT_TRUE(WFOptionsServices().Load(ini, error)) << error;
    auto* options = dynamic_cast<TDemoOptions*>(WFOptionsServices().FindOptions("Tests", "Demo"));
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(options->path, "/a");
    EXPECT_EQ(WFOptionsServices().IconOf(*options), "LOGO");
    options->path = "/b";
    options->mode.clear();
    ASSERT_TRUE(WFOptionsServices().Save(ini, error)) << error;
    EXPECT_EQ(wftest::readFile(ini), "[Foreign]\nX=1\n\n[Demo]\nPath=/b\nMode=fast\nExtra=kept\n");
    EXPECT_EQ(WFOptionsServices().FindOptions("Tests", "Other"), nullptr);
    WFOptionsServices().Clear();
}

TEST(ScriptingServices, FunctionsReachObjectProperties)
{
    TDemoOptions options;
    options.path = "/opt/x";
    WFScriptingServices().Clear();
    WFScriptingServices().RegisterFunction("DemoOptions", "Variant", {}, [&] { return WFScriptingServices().ObjectToVariant(&options); });
    std::string text, error;
    ASSERT_TRUE(WFScriptingServices().Evaluate("DemoOptions", "Path", text, error)) << error;
    EXPECT_EQ(text, "/opt/x");
    EXPECT_FALSE(WFScriptingServices().Evaluate("DemoOptions", "Nope", text, error));
    EXPECT_NE(error.find("Nope"), std::string::npos);
    WFScriptingServices().Clear();
}

} // namespace
