#include "ClearCaseWorld.h"

#include "WFVariables.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace e2e {

namespace {

// A fixed clock keeps generated names and dates the same on every run.
constexpr const char* kNow = "2013-03-12T10:22:31";
constexpr const char* kBuilder = "builder";

std::string jsonString(const std::string& text)
{
    std::string out;
    appendJsonString(out, text);
    return out;
}

std::string lastLine(std::string text)
{
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    const auto newline = text.rfind('\n');
    return newline == std::string::npos ? text : text.substr(newline + 1);
}

} // namespace

void expectLooks(const ClearCaseWorld& world, const std::vector<Look>& looks)
{
    for (const Look& look : looks) {
        std::string seen;
        if (look.command.empty()) {
            seen = wftest::readFile(world.where(look.place));
        } else {
            const wftest::ProgramRun run = world.cleartool(look.command, look.place, look.user);
            EXPECT_EQ(run.status, look.status) << look.command[0] << ": " << run.out << run.err;
            seen = run.out + run.err;
        }
        const std::string what = look.command.empty() ? look.place : look.command[0] + " in \"" + look.place + "\"";
        for (const std::string& piece : look.holds)
            EXPECT_NE(seen.find(piece), std::string::npos) << what << " lacks \"" << piece << "\":\n" << seen;
        for (const std::string& piece : look.lacks)
            EXPECT_EQ(seen.find(piece), std::string::npos) << what << " holds \"" << piece << "\":\n" << seen;
    }
}

void expectSame(const ClearCaseWorld& world, const std::vector<SameAs>& sames, const std::string& wfbuildOut)
{
    for (const SameAs& same : sames) {
        const std::string expected = world.mustCleartool(same.command, same.place);
        EXPECT_FALSE(expected.empty()) << "the listing is empty, so the comparison would prove nothing";
        if (!same.variable.empty()) {
            EXPECT_NE(lastLine(wfbuildOut).find(jsonString(same.variable) + ":" + jsonString(expected)), std::string::npos)
                << lastLine(wfbuildOut) << "\nexpected " << same.variable << " = " << expected;
        }
        if (!same.file.empty()) {
            EXPECT_EQ(wftest::readFile(world.where("dir:" + same.file)), expected);
        }
    }
}

std::string cleartoolPath()
{
    return CLEARTOOL_PATH;
}

std::string wfbuildPath()
{
    return WFBUILD_PATH;
}

ClearCaseWorld::ClearCaseWorld()
{
    fs::create_directories(dir() + "/store");
    fs::create_directories(dir() + "/views");
    fs::create_directories(configDir());
    m_dir.write("config/options.ini", "[ClearCase]\nCleartoolPath=" + cleartoolPath() + "\nInstallationType=Auto\n");
    wftest::ProgramRequest replay;
    replay.program = "/bin/bash";
    replay.arguments = {std::string(WF_FIXTURE_DIR) + "/replay.sh", std::string(WF_FIXTURE_DIR) + "/world.steps",
                        "WORK=" + dir(), "VOB_STORAGE=" + dir() + "/store", "CONFIG_SPEC=" + dir() + "/setup.cs",
                        "TREE=" + std::string(WF_FIXTURE_DIR) + "/hello", "SETUP_TAG=setup_v", "SETUP_VIEW=" + setupView(),
                        "COMP=main_comp", "PROJECT=release_proj", "STREAM=release_dev", "VIEW_TAG=release_dev",
                        "VIEW=" + view(), "ACTIVITY=prepare_release"};
    replay.environment = environment("");
    replay.environment.emplace_back("CLEARTOOL", cleartoolPath());
    replay.workingDirectory = dir();
    replay.deadlineMs = 60000;
    const wftest::ProgramRun run = wftest::runProgram(replay);
    if (run.status != 0)
        throw std::runtime_error("fixture: replaying world.steps failed:\n" + run.err);
}

std::string ClearCaseWorld::where(const std::string& place) const
{
    if (place.starts_with("setup:"))
        return setupView() + (place.size() > 6 ? "/" + place.substr(6) : "");
    if (place.starts_with("dir:"))
        return dir() + (place.size() > 4 ? "/" + place.substr(4) : "");
    return view() + (place.empty() ? "" : "/" + place);
}

std::vector<std::pair<std::string, std::string>> ClearCaseWorld::environment(const std::string& user) const
{
    return {{"CCSIM_HOME", dir() + "/store"}, {"CCSIM_NOW", kNow}, {"USER", user.empty() ? kBuilder : user}};
}

void ClearCaseWorld::enter() const
{
    for (const auto& [name, value] : environment(""))
        ::setenv(name.c_str(), value.c_str(), 1);
}

wftest::ProgramRun ClearCaseWorld::cleartool(const std::vector<std::string>& arguments, const std::string& place,
                                             const std::string& user) const
{
    wftest::ProgramRequest request;
    request.program = cleartoolPath();
    request.arguments = arguments;
    request.environment = environment(user);
    request.workingDirectory = where(place);
    return wftest::runProgram(request);
}

std::string ClearCaseWorld::mustCleartool(const std::vector<std::string>& arguments, const std::string& place) const
{
    const wftest::ProgramRun run = cleartool(arguments, place);
    std::string line;
    for (const auto& argument : arguments)
        line += " " + argument;
    if (run.status != 0)
        throw std::runtime_error("fixture: cleartool" + line + " in " + where(place) + " failed:\n" + run.err);
    return run.out;
}

void ClearCaseWorld::write(const std::string& place, const std::string& bytes) const
{
    const fs::path path = where(place);
    fs::create_directories(path.parent_path());
    fs::remove(path);
    std::ofstream(path, std::ios::binary) << bytes;
}

wftest::ProgramRun ClearCaseWorld::wfbuild(const std::string& project, std::vector<std::string> extra,
                                           wftest::ProgramRequest request) const
{
    request.program = wfbuildPath();
    request.arguments = {"run", project, "--config-dir", configDir(), "--log", logFile(),
                         "--set", "VIEW=" + view(), "--set", "SETUP=" + setupView(), "--set", "DIR=" + dir(), "--set", "BUILD=7"};
    request.arguments.insert(request.arguments.end(), extra.begin(), extra.end());
    request.environment = environment("");
    request.environment.emplace_back("WF_CONFIG_DIR", dir() + "/no-such-config");
    request.workingDirectory = dir();
    request.deadlineMs = 20000;
    return wftest::runProgram(request);
}

} // namespace e2e
