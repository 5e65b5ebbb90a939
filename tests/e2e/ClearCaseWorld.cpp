#include "ClearCaseWorld.h"

#include "WFVariables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace e2e {

namespace {

// A fixed clock keeps generated names and dates the same on every run.
constexpr const char* kNow = "2013-03-12T10:22:31";
constexpr const char* kBuilder = "builder";

struct Step {
    std::string place;
    std::vector<std::string> arguments;
};

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
    m_dir.write("setup.cs", "element * CHECKEDOUT\nelement * /main/LATEST\nload /vobs/main\n");

    const std::string store = dir() + "/store";
    const std::vector<Step> vobs{
        {"dir:", {"mkvob", "-tag", "/vobs/main", "-nc", store + "/main.vbs"}},
        {"dir:", {"mkvob", "-tag", "/vobs/pvob", "-ucmproject", "-nc", store + "/pvob.vbs"}},
        {"dir:", {"mkview", "-snapshot", "-tag", "setup_v", setupView()}},
        {"setup:", {"setcs", dir() + "/setup.cs"}},
        {"setup:vobs/main", {"checkout", "-nc", "."}},
        {"setup:vobs/main", {"mkdir", "-nc", "src"}},
    };
    for (const Step& step : vobs)
        mustCleartool(step.arguments, step.place);
    write("setup:vobs/main/Makefile", "VERSION = 1.0\n\nhello: src/main.c src/greet.c\n\tcc -o $@ $^\n");
    write("setup:vobs/main/README", "A small program that greets.\n");
    write("setup:vobs/main/src/main.c", "int main(void) { greet(); return 0; }\n");
    write("setup:vobs/main/src/greet.c", "void greet(void) {}\n");
    write("setup:vobs/main/src/version.h", "#define BUILD_NUMBER 0\n");
    const std::vector<Step> rest{
        {"setup:vobs/main", {"mkelem", "-nc", "-ci", "Makefile", "README"}},
        {"setup:vobs/main/src", {"mkelem", "-nc", "-ci", "main.c", "greet.c", "version.h"}},
        {"setup:vobs/main", {"checkin", "-nc", "src", "."}},
        {"dir:", {"mkcomp", "-nc", "-root", "/vobs/main", "main_comp@/vobs/pvob"}},
        {"dir:", {"mkproject", "-nc", "-in", "RootFolder@/vobs/pvob", "-modcomp", "main_comp@/vobs/pvob", "release_proj@/vobs/pvob"}},
        {"dir:", {"mkstream", "-nc", "-integration", "-in", "release_proj@/vobs/pvob", "-baseline", "main_comp_INITIAL@/vobs/pvob", "release_proj_int@/vobs/pvob"}},
        {"dir:", {"mkstream", "-nc", "-in", "release_proj@/vobs/pvob", "-baseline", "main_comp_INITIAL@/vobs/pvob", "release_dev@/vobs/pvob"}},
        {"dir:", {"mkview", "-snapshot", "-tag", "release_dev", "-stream", "release_dev@/vobs/pvob", view()}},
        {"vobs/main", {"mkactivity", "-nc", "-headline", "Prepare the release", "prepare_release"}},
    };
    for (const Step& step : rest)
        mustCleartool(step.arguments, step.place);
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

wftest::ProgramRun ClearCaseWorld::wfbuild(const std::string& project, std::vector<std::string> extra) const
{
    wftest::ProgramRequest request;
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
