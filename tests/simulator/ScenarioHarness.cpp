#include "ScenarioHarness.h"

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <grp.h>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace ccsim::test {

namespace {

std::string slurp(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

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

Result Scenario::run(const std::string& dir, const std::vector<std::string>& args, const std::string& user,
                     const std::string& input)
{
    return launch(CCSIM_CLEARTOOL, dir, args, user, input, {});
}

Result Scenario::launch(const std::string& program, const std::string& dir, const std::vector<std::string>& args,
                        const std::string& user, const std::string& input, const std::vector<std::string>& extraEnv)
{
    static std::atomic<int> counter{0};
    const std::string n = std::to_string(counter++);
    const fs::path io = root / "io";
    const fs::path outFile = io / ("out" + n), errFile = io / ("err" + n), inFile = io / ("in" + n);
    std::ofstream(inFile) << input;

    // The child's environment: ours without the simulator's variables, then the scenario's.
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e) {
        const std::string_view var(*e);
        if (!var.starts_with("CCSIM_") && !var.starts_with("USER="))
            env.emplace_back(var);
    }
    env.push_back("CCSIM_HOME=" + (root / "home").string());
    env.push_back("CCSIM_NOW=" + now);
    env.push_back("USER=" + (user.empty() ? std::string("builder") : user));
    if (!edition.empty())
        env.push_back("CCSIM_EDITION=" + edition);
    env.insert(env.end(), environment.begin(), environment.end());
    env.insert(env.end(), extraEnv.begin(), extraEnv.end());
    std::vector<char*> envp;
    for (std::string& e : env)
        envp.push_back(e.data());
    envp.push_back(nullptr);
    std::vector<std::string> words{program};
    words.insert(words.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (std::string& w : words)
        argv.push_back(w.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, (root / dir).c_str());
    posix_spawn_file_actions_addopen(&actions, 0, inFile.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, outFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, errFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = 0;
    const int rc = posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    if (rc != 0)
        return Result{};
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    return Result{WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1, slurp(outFile), slurp(errFile)};
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
    return slurp(root / rel);
}

void Scenario::fixture()
{
    const std::string fixtures = CCSIM_FIXTURE_DIR;
    const Result r = launch("/bin/bash", "",
                            {fixtures + "/replay.sh", fixtures + "/world.steps", "WORK=" + root.string(),
                             "VOB_STORAGE=" + root.string(), "CONFIG_SPEC=" + (root / "cs.txt").string(),
                             "TREE=" + fixtures + "/single", "SETUP_TAG=base_v", "SETUP_VIEW=" + (root / "base").string(),
                             "COMP=comp", "PROJECT=proj", "STREAM=dev", "VIEW_TAG=dev_v", "VIEW=" + (root / "dev").string()},
                            "", "", {std::string("CLEARTOOL=") + CCSIM_CLEARTOOL});
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
