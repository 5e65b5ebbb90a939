// Times the all-components query against the cleartool the options name, and the same command
// lines started directly, so the share of time spent outside cleartool shows.
#include "environment/WFClearCaseOptions.h"
#include "environment/WFClearCaseUtils.h"
#include "WFCommandLine.h"
#include "WFServices.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace {

double seconds(std::chrono::steady_clock::time_point since)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

void runDirectly(const std::string& program, const std::string& parameters)
{
    std::vector<std::string> args = splitCommandLine(parameters);
    args.insert(args.begin(), program);
    std::vector<char*> argv;
    for (auto& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 1, 0);
    pid_t pid = 0;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        waitpid(pid, &status, 0);
    }
    posix_spawn_file_actions_destroy(&actions);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_queries CLEARTOOL REPEATS\n");
        return 2;
    }
    RegisterOptions();
    ClearCaseOptions()->SetClearToolPath(argv[1]);
    ClearCaseOptions()->SetTestForClearCaseType(false);
    const int repeats = std::atoi(argv[2]);

    const std::string vobs = CCGetVOBNames();
    std::vector<std::string> vobList;
    for (std::size_t start = 0, end; (end = vobs.find("\r\n", start)) != std::string::npos; start = end + 2)
        vobList.push_back(vobs.substr(start, end - start));

    double viaQuery = 0;
    std::size_t lines = 0;
    for (int r = 0; r < repeats; ++r) {
        const auto start = std::chrono::steady_clock::now();
        const std::string all = CCGetAllUCMComponents();
        viaQuery += seconds(start);
        lines = 0;
        for (char c : all)
            lines += c == '\n';
    }
    double direct = 0;
    for (int r = 0; r < repeats; ++r) {
        const auto start = std::chrono::steady_clock::now();
        runDirectly(argv[1], "lsvob -short");
        for (const auto& vob : vobList)
            runDirectly(argv[1], "lscomp -short -invob " + vob);
        direct += seconds(start);
    }
    const double starts = 1.0 + static_cast<double>(vobList.size());
    std::printf("%zu %zu %.6f %.6f %.6f\n", vobList.size(), lines, viaQuery / repeats, direct / repeats,
                viaQuery / repeats / starts);
    return 0;
}
