#pragma once

#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ccsim::test {

namespace fs = std::filesystem;

/// The exit status (128 + the signal when one ended it) and both outputs.
using Result = wftest::ProgramRun;

/// One command: where it runs (relative to the scenario root), its argv, and what must come back.
/// An expected text starting with '~' need only occur in the output; otherwise it must match exactly.
struct Step {
    std::string dir;
    std::vector<std::string> args;
    int status = 0;
    std::string out = "~";
    std::string err = "";
    std::string user = "";
};

/// Drives the built cleartool program as a user would, each test with its own store and a fixed clock.
class Scenario : public ::testing::Test {
protected:
    using Environment = std::vector<std::pair<std::string, std::string>>;

    void SetUp() override;
    void TearDown() override;

    /// Runs one command line in `dir`; safe to call from several threads at once.
    Result run(const std::string& dir, const std::vector<std::string>& args, const std::string& user = "",
               const std::string& input = "");
    void play(const std::vector<Step>& steps);
    /// Runs any program as run() runs the simulator, with `extraEnv` added.
    Result launch(const std::string& program, const std::string& dir, const std::vector<std::string>& args,
                  const std::string& user, const std::string& input, const Environment& extraEnv);

    void write(const std::string& rel, const std::string& text);
    std::string read(const std::string& rel) const;

    /// The shared world (tests/fixtures/world) with src/a.c at /main/1: a base VOB, a project VOB with
    /// component "comp", project "proj" with streams "proj_int" and "dev", a plain view "base_v" in
    /// base/ and a UCM view "dev_v" in dev/.
    void fixture();

    /// How listings name the creator `user` on this machine: "builder (builder.users@host)".
    static std::string creator(const std::string& user = "builder");
    static std::string groupName();

    /// The store as its own listings show it: VOBs, types, check-outs, histories, UCM objects, views.
    std::string storeState();

    fs::path root;
    std::string edition;
    /// Extra variables for the program's environment.
    Environment environment;
    std::string now = "2013-03-12T10:22:31";
};

/// A Scenario that starts from the shared world (fixture()); `src` and `devSrc` hold a.c in each view.
class World : public Scenario {
protected:
    void SetUp() override;

    const std::string src = "base/vobs/main/src";
    const std::string devSrc = "dev/vobs/main/src";
};

} // namespace ccsim::test
