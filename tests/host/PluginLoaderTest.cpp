#include "WFAction.h"
#include "RowName.h"
#include "WFLog.h"
#include "WFPluginLoader.h"
#include "WFServices.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

namespace {

TEST(PluginLoader, RegistersOnceUnderAnyNameAndRunsAnActionEndToEnd)
{
    WFActionServices().Clear();
    wftest::TempDir dir;
    const std::string copy = dir.write("copy.so", wftest::readFile(WF_TEST_PLUGIN_PATH));
    std::vector<std::string> warnings;
    const auto previous = SetWFWarningHandler([&](std::string_view text) { warnings.emplace_back(text); });
    std::string error;
    ASSERT_TRUE(WFLoadPlugin(WF_TEST_PLUGIN_PATH, true, error)) << error;
    // Loading the same package again, under its name or another, registers nothing twice.
    ASSERT_TRUE(WFLoadPlugin(WF_TEST_PLUGIN_PATH, true, error)) << error;
    EXPECT_TRUE(WFLoadPlugin(copy, false, error)) << error;
    SetWFWarningHandler(previous);
    EXPECT_EQ(warnings, std::vector<std::string>{copy + " is the same plug-in as " +
                                                 std::filesystem::canonical(WF_TEST_PLUGIN_PATH).string() + ": loaded once"});
    ASSERT_EQ(WFActionServices().Catalogue().size(), 1u);
    EXPECT_EQ(WFActionServices().Catalogue()[0].typeId, "T_ECHO");
    ASSERT_EQ(WFActionServices().PagesOf("TEchoAction").size(), 1u);

    auto action = WFActionServices().CreateAction("T_ECHO");
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->GetActionTypeID(), "T_ECHO");
    wftest::ScopedEnv record("WF_FAKE_RECORD", dir.file("record.txt"));
    wftest::RecordingLog log;
    TWFBuildVariables variables;
    variables.Set("WHO", TWFVariant("world"));
    TWFActionHost host{&log, &variables, dir.path(), false, 0, {}, {}};
    action->SetHost(&host);
    ASSERT_TRUE(action->SetPropertyText("Program", wftest::testAppPath()));
    ASSERT_TRUE(action->SetPropertyText("Arguments", "hello \"%WHO% again\""));
    ASSERT_TRUE(action->Execute());
    const auto runs = wftest::readInvocations(dir.file("record.txt"));
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"hello", "world again"}));
    WFActionServices().Clear();
}

/// A file a row loads, made in the test's folder; returns its path.
using MakeFile = std::string (*)(const wftest::TempDir& dir);

struct BadPluginCase {
    const char* name;
    MakeFile make;
    /// What the reason after "cannot load PATH: " starts with.
    std::string reason;
};

WF_ROW_PRINTER(BadPluginCase)

class BadPlugin : public testing::TestWithParam<BadPluginCase> {};

TEST_P(BadPlugin, IsRefusedBeforeMappingWithAReasonNamingTheFile)
{
    wftest::TempDir dir;
    wftest::ScopedEnv fault("WF_FAULTY_PLUGIN", "throw");
    const std::string path = GetParam().make(dir);
    std::string error;
    EXPECT_FALSE(WFLoadPlugin(path, false, error));
    const std::string expected = "cannot load " + path + ": " + GetParam().reason;
    EXPECT_EQ(error.substr(0, expected.size()), expected) << error;
}

std::string cutAt(const wftest::TempDir& dir, std::size_t size)
{
    return dir.write("cut.so", wftest::readFile(WF_TEST_PLUGIN_PATH).substr(0, size));
}

/// The test package with one byte of its ELF header changed (offsets of a 64-bit header).
std::string patchedAt(const wftest::TempDir& dir, std::size_t at, char byte)
{
    std::string bytes = wftest::readFile(WF_TEST_PLUGIN_PATH);
    bytes[at] = byte;
    return dir.write("patched.so", bytes);
}

INSTANTIATE_TEST_SUITE_P(
    PluginLoader, BadPlugin,
    testing::Values(
        BadPluginCase{"Missing", [](const wftest::TempDir& dir) { return dir.file("missing.so"); }, "no such file"},
        BadPluginCase{"NotALibrary", [](const wftest::TempDir& dir) { return dir.write("fake.so", "not a shared library"); },
                      "not a shared library (no ELF header)"},
        BadPluginCase{"CutInsideItsHeader", [](const wftest::TempDir& dir) { return cutAt(dir, 40); },
                      "truncated: 40 bytes hold no whole ELF header"},
        BadPluginCase{"BuiltForAnotherWordSize", [](const wftest::TempDir& dir) { return patchedAt(dir, 4, 1); },
                      "built for a 32-bit system"},
        BadPluginCase{"AnExecutable", [](const wftest::TempDir& dir) { return patchedAt(dir, 16, 2); },
                      "not a shared library (ELF type 2)"},
        BadPluginCase{"WithAnOddProgramHeaderSize", [](const wftest::TempDir& dir) { return patchedAt(dir, 54, 1); },
                      "malformed ELF header (program header size "},
        BadPluginCase{"WithProgramHeadersPastItsEnd", [](const wftest::TempDir& dir) { return patchedAt(dir, 38, 1); },
                      "truncated: its program headers end at byte "},
        // Past the headers, before the end of the loadable segments (debug sections follow them).
        BadPluginCase{"CutInsideItsSegments", [](const wftest::TempDir& dir) { return cutAt(dir, 0x2100); },
                      "truncated: segment "},
        BadPluginCase{"DanglingLink",
                      [](const wftest::TempDir& dir) {
                          std::filesystem::create_symlink(dir.file("gone.so"), dir.file("link.so"));
                          return dir.file("link.so");
                      },
                      "dangling link to "},
        BadPluginCase{"Fifo",
                      [](const wftest::TempDir& dir) {
                          ::mkfifo(dir.file("pipe.so").c_str(), 0600);
                          return dir.file("pipe.so");
                      },
                      "not a regular file"},
        BadPluginCase{"WithoutEntryPoint", [](const wftest::TempDir&) { return std::string(WF_NO_ENTRY_PLUGIN_PATH); },
                      "it exports no WFRegister entry point"},
        BadPluginCase{"WhoseRegistrationThrows", [](const wftest::TempDir&) { return std::string(WF_FAULTY_PLUGIN_PATH); },
                      "WFRegister failed: no licence for this host"}), wftest::byName);

TEST(PluginLoaderDeathTest, CrashInsideWFRegisterNamesThePlugin)
{
    wftest::ScopedEnv fault("WF_FAULTY_PLUGIN", "crash");
    std::string error;
    EXPECT_DEATH(WFLoadPlugin(WF_FAULTY_PLUGIN_PATH, false, error),
                 "plug-in " WF_FAULTY_PLUGIN_PATH " crashed in WFRegister \\(Segmentation fault\\)");
}

} // namespace
