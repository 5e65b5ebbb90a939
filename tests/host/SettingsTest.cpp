#include "WFIniFile.h"
#include "RowName.h"
#include "WFServices.h"

#include "WFTestSupport.h"

#include "WFFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

TEST(IniFile, WritingOneValueKeepsEverythingElseAndMakesMissingFolders)
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
    EXPECT_EQ(TWFIniFile(dir.file("a/b/user.ini")).ReadString("S", "K", "d"), "d");
    ASSERT_TRUE(TWFIniFile(dir.file("a/b/user.ini")).WriteString("S", "K", "v"));
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

TEST(OptionsServices, LoadSaveKeepsCommentsForeignSectionsAndUnwrittenKeysAndRefusesLineBreaks)
{
    wftest::TempDir dir;
    const std::string text = "; written by hand\n[Foreign]\nX=1\n\n[Demo]\n# the tool\nPath=/a\nMode=fast\nExtra=kept\n";
    const std::string ini = dir.write("options.ini", text);
    WFOptionsServices().Clear();
    WFOptionsServices().RegisterOptionsClass({"TDemoOptions", [] { return std::unique_ptr<TWFOptionsObject>(new TDemoOptions); }}, "LOGO");
    std::string error;
    ASSERT_TRUE(WFOptionsServices().Load(ini, error)) << error;
    auto* options = dynamic_cast<TDemoOptions*>(WFOptionsServices().FindOptions("Tests", "Demo"));
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(options->path, "/a");
    EXPECT_EQ(WFOptionsServices().IconOf(*options), "LOGO");
    EXPECT_EQ(WFOptionsServices().FindOptions("Tests", "Other"), nullptr);
    options->path = "/b";
    options->mode.clear();
    ASSERT_TRUE(WFOptionsServices().Save(ini, error)) << error;
    const std::string saved = "; written by hand\n[Foreign]\nX=1\n\n[Demo]\n# the tool\nPath=/b\nMode=fast\nExtra=kept\n";
    EXPECT_EQ(wftest::readFile(ini), saved);
    options->path = "/c\nMode=injected";
    EXPECT_FALSE(WFOptionsServices().Save(ini, error));
    EXPECT_NE(error.find("line break"), std::string::npos) << error;
    EXPECT_EQ(wftest::readFile(ini), saved);
    // A package registered after the load reads its section from the file at once, and keeps its own icon.
    WFOptionsServices().RegisterOptionsClass({"TLateOptions", [] { return std::unique_ptr<TWFOptionsObject>(new TDemoOptions); }}, "LATE");
    const auto all = WFOptionsServices().AllOptions();
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(dynamic_cast<TDemoOptions*>(all[1])->path, "/b");
    EXPECT_EQ(WFOptionsServices().IconOf(*all[1]), "LATE");
    EXPECT_TRUE(WFOptionsServices().PagesFor(*all[1]).empty());
    WFOptionsServices().Clear();
}

// Entries that would not read back as written; plain ones are stored in the tests above.
struct IniEntryCase {
    const char* name;
    const char* section;
    const char* key;
    const char* value;
};
WF_ROW_PRINTER(IniEntryCase)

class IniEntries : public testing::TestWithParam<IniEntryCase> {};

TEST_P(IniEntries, AreRefusedLeavingTheFileAsItWas)
{
    const auto& row = GetParam();
    wftest::TempDir dir;
    const std::string path = dir.write("user.ini", "[S]\nK=old\n");
    std::string error;
    EXPECT_FALSE(TWFIniFile(path).WriteString(row.section, row.key, row.value, &error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(wftest::readFile(path), "[S]\nK=old\n");
}

INSTANTIATE_TEST_SUITE_P(IniFile, IniEntries,
    testing::Values(IniEntryCase{"keyWithEquals", "S", "K=x", "v"},
                    IniEntryCase{"keyWithLineFeed", "S", "K\nX", "v"},
                    IniEntryCase{"keyWithCarriageReturn", "S", "K\r", "v"},
                    IniEntryCase{"emptyKey", "S", "", "v"},
                    IniEntryCase{"commentKey", "S", ";K", "v"},
                    IniEntryCase{"valueWithLineFeed", "S", "K", "a\n[T]"},
                    IniEntryCase{"sectionWithBracket", "S]x", "K", "v"},
                    IniEntryCase{"sectionWithLineFeed", "S\nT", "K", "v"}), wftest::byName);

TEST(IniFile, ConcurrentWritersOnDifferentKeysAllKeepTheirChange)
{
    wftest::TempDir dir;
    const std::string path = dir.file("cfg/options.ini");
    constexpr int kWriters = 20;
    std::vector<pid_t> children;
    for (int i = 0; i < kWriters; ++i) {
        const pid_t pid = ::fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            const bool ok = TWFIniFile(path).WriteString("S", "K" + std::to_string(i), std::to_string(i));
            ::_exit(ok ? 0 : 1);
        }
        children.push_back(pid);
    }
    for (const pid_t pid : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(pid, &status, 0), pid);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    const TWFIniFile ini(path);
    for (int i = 0; i < kWriters; ++i)
        EXPECT_EQ(ini.ReadString("S", "K" + std::to_string(i), "lost"), std::to_string(i)) << "K" << i;
}

TEST(AtomicWrite, WritesThroughLinksAndRefusesReadOnlyFiles)
{
    wftest::TempDir dir;
    const std::string target = dir.write("real/project.wfp", "old\n");
    ASSERT_EQ(::symlink("real/project.wfp", dir.file("link.wfp").c_str()), 0);
    ASSERT_EQ(::symlink("link.wfp", dir.file("chain.wfp").c_str()), 0);
    std::string error;
    ASSERT_TRUE(writeFileAtomically(dir.file("chain.wfp"), "new\n", error)) << error;
    struct stat info {};
    ASSERT_EQ(::lstat(dir.file("chain.wfp").c_str(), &info), 0);
    EXPECT_TRUE(S_ISLNK(info.st_mode));
    ASSERT_EQ(::lstat(dir.file("link.wfp").c_str(), &info), 0);
    EXPECT_TRUE(S_ISLNK(info.st_mode));
    EXPECT_EQ(wftest::readFile(target), "new\n");
    EXPECT_TRUE(sameFile(dir.file("chain.wfp"), target));

    ASSERT_EQ(::chmod(target.c_str(), 0444), 0);
    EXPECT_FALSE(writeFileAtomically(dir.file("link.wfp"), "newer\n", error));
    EXPECT_NE(error.find("read-only"), std::string::npos) << error;
    EXPECT_EQ(wftest::readFile(target), "new\n");
    ::chmod(target.c_str(), 0644);
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
