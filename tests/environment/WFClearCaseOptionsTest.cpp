#include "FakeCleartool.h"
#include "RowName.h"

#include "environment/WFClearCaseOptions.h"
#include "WFFiles.h"
#include "WFServices.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct PathCase {
    std::string name;
    std::string stored; // "$T" is the temporary folder
    std::string expected;
};

WF_ROW_PRINTER(PathCase)

class CleartoolPathTest : public testing::TestWithParam<PathCase> {};

TEST_P(CleartoolPathTest, AFolderGetsTheExecutableAppended)
{
    wftest::TempDir temp;
    temp.write("tools/cleartool.real", "");
    auto expand = [&](std::string text) {
        if (const auto at = text.find("$T"); at != std::string::npos)
            text.replace(at, 2, temp.path());
        return text;
    };
    // Relative paths are read from the current folder; cleartool later runs elsewhere.
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(temp.path());
    TWFClearCaseOptions options;
    options.SetClearToolPath(expand(GetParam().stored));
    std::filesystem::current_path(temp.file("tools"));
    EXPECT_EQ(options.GetCleartoolPath(), expand(GetParam().expected));
    std::filesystem::current_path(previous);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, CleartoolPathTest,
    testing::Values(PathCase{"Folder", "$T/tools", "$T/tools/" + cleartoolExecutableName()},
                    PathCase{"FolderWithDelimiter", "$T/tools/", "$T/tools/" + cleartoolExecutableName()},
                    PathCase{"File", "$T/tools/cleartool.real", "$T/tools/cleartool.real"},
                    PathCase{"RelativeFile", "tools/cleartool.real", "$T/tools/cleartool.real"},
                    PathCase{"RelativeFolder", "tools", "$T/tools/" + cleartoolExecutableName()},
                    PathCase{"BareNameForThePathSearch", "cleartool", "cleartool"}), wftest::byName);

/// What the store holds before and after a load and a save, with the edition on the way.
struct StoreCase {
    std::string name;
    std::string before; // empty: no store file
    TClearCaseType loadedType;
    bool loadedDetection;
    std::string after;
};

WF_ROW_PRINTER(StoreCase)

class OptionsStoreTest : public testing::TestWithParam<StoreCase> {};

TEST_P(OptionsStoreTest, LoadThenSaveWritesTheStore)
{
    wftest::TempDir temp;
    wftest::ScopedEnv path("PATH", temp.path());
    const std::string store = temp.file("options.ini");
    if (!GetParam().before.empty())
        temp.write("options.ini", GetParam().before);
    WFOptionsServices().Clear();
    RegisterOptions();
    std::string error;
    ASSERT_TRUE(WFOptionsServices().Load(store, error)) << error;

    IWFClearCaseOptions* options = ClearCaseOptions();
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(options->GetTestForClearCaseType(), GetParam().loadedDetection);
    if (!GetParam().loadedDetection) {
        EXPECT_EQ(options->GetClearCaseType(), GetParam().loadedType);
    }

    ASSERT_TRUE(WFOptionsServices().Save(store, error)) << error;
    EXPECT_EQ(wftest::readFile(store), GetParam().after);
    WFOptionsServices().Clear();
}

INSTANTIATE_TEST_SUITE_P(
    Stores, OptionsStoreTest,
    testing::Values(
        StoreCase{"FreshStoreDetects", "", ccUnknown, true,
                  "[ClearCase]\nCleartoolPath=\nDefaultView=\nInstallationType=Auto\n"},
        StoreCase{"Lt", "[ClearCase]\nCleartoolPath=/cc/bin\nDefaultView=/views/dev\nInstallationType=ClearCaseLT\n", ccLT,
                  false, "[ClearCase]\nCleartoolPath=/cc/bin\nDefaultView=/views/dev\nInstallationType=ClearCaseLT\n"},
        StoreCase{"Full", "[ClearCase]\nInstallationType=ClearCase\n", ccFull, false,
                  "[ClearCase]\nInstallationType=ClearCase\nCleartoolPath=\nDefaultView=\n"},
        StoreCase{"UnknownKeepsTheStoredValue", "[ClearCase]\nInstallationType=Manual\n", ccUnknown, false,
                  "[ClearCase]\nInstallationType=Manual\nCleartoolPath=\nDefaultView=\n"}),
    wftest::byName);

TEST(CleartoolDiscoveryTest, FirstMatchOnPathWhenNothingIsStored)
{
    // Discovery tries the standard install folder before PATH: such a machine cannot show what PATH alone finds.
    if (fileExists("/opt/rational/clearcase/bin/" + cleartoolExecutableName()))
        GTEST_SKIP() << "a cleartool is installed in the standard folder";
    wftest::TempDir temp;
    std::filesystem::create_directories(temp.file("empty"));
    const std::string first = wftest::installFakeProgram(temp.file("first"), cleartoolExecutableName());
    wftest::installFakeProgram(temp.file("second"), cleartoolExecutableName());
    {
        wftest::ScopedEnv path("PATH", temp.file("missing") + ":" + temp.file("empty") + "::" + temp.file("first") + ":" +
                                           temp.file("second"));
        TWFClearCaseOptions options;
        EXPECT_FALSE(options.IsModified());
        EXPECT_EQ(options.GetCleartoolPath(), first);
        EXPECT_TRUE(options.IsModified());
    }
    wftest::ScopedEnv path("PATH", temp.file("empty"));
    EXPECT_EQ(defaultClearToolPath(), "");
    EXPECT_EQ(TWFClearCaseOptions().GetCleartoolPath(), "");
}

TEST(OptionsScriptingTest, ScriptsReadTheLiveOptions)
{
    wftest::FakeCleartool cleartool;
    cleartool.options().SetDefaultViewPath("/views/dev");
    cleartool.options().SetClearCaseType(ccLT);
    std::string text, error;
    ASSERT_TRUE(WFScriptingServices().Evaluate("ClearCaseOptions", "DefaultViewPath", text, error)) << error;
    EXPECT_EQ(text, "/views/dev");
    ASSERT_TRUE(WFScriptingServices().Evaluate("ClearCaseOptions", "ClearCaseType", text, error)) << error;
    EXPECT_EQ(text, "ccLT");
    ASSERT_TRUE(WFScriptingServices().Evaluate("ClearCaseOptions", "CleartoolPath", text, error)) << error;
    EXPECT_EQ(text, cleartool.program());
}

/// Edition detection from the version text: how often cleartool runs across three asks.
struct DetectionCase {
    std::string name;
    bool detect;
    std::string version;
    int exitCode;
    TClearCaseType expected;
    std::size_t runs;
};

WF_ROW_PRINTER(DetectionCase)

class DetectionTest : public testing::TestWithParam<DetectionCase> {};

TEST_P(DetectionTest, RunsUntilItSucceedsOnce)
{
    wftest::FakeCleartool cleartool;
    cleartool.respond("-version", GetParam().version, GetParam().exitCode);
    cleartool.options().SetClearCaseType(ccFull);
    cleartool.options().SetTestForClearCaseType(GetParam().detect);

    for (int ask = 0; ask < 3; ++ask)
        EXPECT_EQ(cleartool.options().GetClearCaseType(), GetParam().expected) << "ask " << ask;
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>(GetParam().runs, cleartool.folder() + "|-version"));
}

INSTANTIATE_TEST_SUITE_P(
    Detection, DetectionTest,
    testing::Values(DetectionCase{"Off", false, "Rational ClearCase LT\n", 0, ccFull, 0},
                    DetectionCase{"LtOnce", true, "ClearCase version 7.0\nRational ClearCase LT 7.0.1 (Wed Jan 1)\n", 0, ccLT, 1},
                    DetectionCase{"FullOnce", true, "Rational ClearCase 7.0.1 (Wed Jan 1)\ncleartool 7.0.1\n", 0, ccFull, 1},
                    DetectionCase{"SomethingElseRetried", true, "cleartool: Error: unknown\n", 0, ccUnknown, 3}),
    wftest::byName);

} // namespace
