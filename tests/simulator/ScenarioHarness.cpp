#include "ScenarioHarness.h"

#include "WFTestSupport.h"

#include <atomic>
#include <grp.h>
#include <fstream>
#include <unistd.h>

namespace ccsim::test {

namespace {

void expectText(const std::string& actual, const std::string& expected, const std::string& what,
                const std::string& line)
{
    if (!expected.empty() && expected[0] == '~')
        EXPECT_NE(actual.find(expected.substr(1)), std::string::npos)
            << line << "\n" << what << " lacks:\n" << expected.substr(1) << "\nactual:\n" << actual;
    else
        EXPECT_EQ(actual, expected) << line << " (" << what << ")";
}

} // namespace

void Scenario::SetUp()
{
    char tmpl[] = "/tmp/ccsim-test-XXXXXX";
    root = fs::path(mkdtemp(tmpl));
    fs::create_directories(root / "home");
    fs::create_directories(root / "io");
}

void Scenario::TearDown()
{
    std::error_code ec;
    for (auto it = fs::recursive_directory_iterator(root, ec); it != fs::recursive_directory_iterator(); ++it)
        fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(root, ec);
}

void World::SetUp()
{
    Scenario::SetUp();
    fixture();
}

Result Scenario::run(const std::string& dir, const std::vector<std::string>& args, const std::string& user,
                     const std::string& input)
{
    return launch(CCSIM_CLEARTOOL, dir, args, user, input, {});
}

Result Scenario::launch(const std::string& program, const std::string& dir, const std::vector<std::string>& args,
                        const std::string& user, const std::string& input, const Environment& extraEnv)
{
    static std::atomic<int> counter{0};
    const fs::path inFile = root / "io" / ("in" + std::to_string(counter++));
    std::ofstream(inFile) << input;
    wftest::ProgramRequest request;
    request.program = program;
    request.arguments = args;
    request.workingDirectory = (root / dir).string();
    request.stdinFile = inFile.string();
    // Replaces whatever the test's own environment holds of these.
    request.environment = {{"CCSIM_HOME", (root / "home").string()}, {"CCSIM_NOW", now},
                           {"USER", user.empty() ? std::string("builder") : user}};
    if (!edition.empty())
        request.environment.emplace_back("CCSIM_EDITION", edition);
    request.environment.insert(request.environment.end(), environment.begin(), environment.end());
    request.environment.insert(request.environment.end(), extraEnv.begin(), extraEnv.end());
    return wftest::runProgram(request);
}

void Scenario::play(const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        std::string line = "[" + step.dir + "]$ cleartool";
        for (const std::string& a : step.args)
            line += " " + a;
        Result r = run(step.dir, step.args, step.user);
        EXPECT_EQ(r.status, step.status) << line << "\n" << r.out << r.err;
        expectText(r.out, step.out, "stdout", line);
        expectText(r.err, step.err, "stderr", line);
    }
}

void Scenario::write(const std::string& rel, const std::string& text)
{
    std::ofstream(root / rel) << text;
}

std::string Scenario::read(const std::string& rel) const
{
    return wftest::readFile((root / rel).string());
}

void Scenario::fixture()
{
    const std::string fixtures = CCSIM_FIXTURE_DIR;
    const Result r = launch("/bin/bash", "",
                            {fixtures + "/replay.sh", fixtures + "/world.steps", "WORK=" + root.string(),
                             "VOB_STORAGE=" + root.string(), "CONFIG_SPEC=" + (root / "cs.txt").string(),
                             "TREE=" + fixtures + "/single", "SETUP_TAG=base_v", "SETUP_VIEW=" + (root / "base").string(),
                             "COMP=comp", "PROJECT=proj", "STREAM=dev", "VIEW_TAG=dev_v", "VIEW=" + (root / "dev").string()},
                            "", "", {{"CLEARTOOL", CCSIM_CLEARTOOL}});
    ASSERT_EQ(r.status, 0) << r.out << r.err;
    expectText(r.out, "~Done loading \"/vobs/main\" (1 objects, copied 0 KB).\n", "setcs", "fixture");
    expectText(r.out, "~Loading \"vobs/main/src/a.c\" (7 bytes).\n", "mkview", "fixture");
}

std::string Scenario::groupName()
{
    const group* gr = getgrgid(getgid());
    return gr ? gr->gr_name : "users";
}

std::string Scenario::creator(const std::string& user)
{
    char host[256] = {};
    gethostname(host, sizeof host - 1);
    return user + " (" + user + "." + groupName() + "@" + host + ")";
}

std::string Scenario::storeState()
{
    const std::vector<std::pair<std::string, std::vector<std::string>>> listings = {
        {"", {"lsvob", "-long"}},
        {"", {"lsview", "-long"}},
        {"", {"lstype", "-obsolete", "-kind", "lbtype", "-invob", "/vobs/main"}},
        {"", {"lstype", "-kind", "lbtype", "-invob", "/vobs/main"}},
        {"", {"lstype", "-kind", "attype", "-invob", "/vobs/main"}},
        {"", {"lstype", "-kind", "brtype", "-invob", "/vobs/main"}},
        {"", {"describe", "vob:/vobs/main", "lbtype:REL1@/vobs/main", "attype:Build@/vobs/main"}},
        {"base/vobs/main", {"lscheckout", "-all"}},
        {"base/vobs/main", {"ls", "-recurse", "-long"}},
        {"base/vobs/main", {"lshistory", ".", "src", "src/a.c"}},
        {"base/vobs/main", {"describe", "src/a.c", "src/a.c@@/main", "src/a.c@@"}},
        {"base", {"catcs"}},
        {"dev", {"catcs"}},
        {"dev/vobs/main", {"ls", "-recurse", "-long"}},
        {"", {"lsstream", "-long", "-invob", "/vobs/pvob"}},
        {"", {"lsactivity", "-long", "-invob", "/vobs/pvob"}},
        {"", {"lsbl", "-short", "-component", "comp@/vobs/pvob"}},
        {"", {"lscomp", "-long", "-invob", "/vobs/pvob"}},
        {"", {"lsfolder", "-long", "-invob", "/vobs/pvob"}},
        {"", {"lsproject", "-long", "-invob", "/vobs/pvob"}},
    };
    std::string state;
    for (const auto& [dir, args] : listings) {
        Result r = run(dir, args);
        state += "[" + dir + "]$";
        for (const std::string& a : args)
            state += " " + a;
        state += "\n" + r.out + r.err;
    }
    return state;
}

} // namespace ccsim::test
