#pragma once

#include "ProgramRun.h"
#include "WFTestSupport.h"

#include <string>
#include <vector>

namespace e2e {

/// A fresh cleartool simulator store in a folder of its own, laid out as the demo and the
/// examples expect: VOB /vobs/main holding Makefile, README and src/{main.c,greet.c,version.h};
/// project VOB /vobs/pvob with component main_comp, project release_proj and its streams
/// release_proj_int and release_dev; a base snapshot view (views/setup, tag setup_v, loads
/// /vobs/main) and the UCM snapshot view views/release_dev on release_dev, whose current
/// activity is prepare_release. options.ini in config/ points at the simulator.
class ClearCaseWorld {
public:
    ClearCaseWorld();
    ClearCaseWorld(const ClearCaseWorld&) = delete;
    ClearCaseWorld& operator=(const ClearCaseWorld&) = delete;

    const std::string& dir() const { return m_dir.path(); }
    std::string view() const { return dir() + "/views/release_dev"; }
    std::string setupView() const { return dir() + "/views/setup"; }
    std::string configDir() const { return dir() + "/config"; }
    std::string logFile() const { return dir() + "/build.log"; }

    /// A folder named as the tables name them: "setup:" and a path in the base view,
    /// "dir:" and a path in the world's folder, anything else a path in the release view.
    std::string where(const std::string& place) const;

    /// Runs the simulator in a folder (see where) as a user (empty: the builder).
    wftest::ProgramRun cleartool(const std::vector<std::string>& arguments, const std::string& place = "",
                                 const std::string& user = "") const;
    /// Runs the simulator and fails the test unless it succeeds; returns its standard output.
    std::string mustCleartool(const std::vector<std::string>& arguments, const std::string& place = "") const;
    /// Replaces a file (see where) with these bytes, read-only or not.
    void write(const std::string& place, const std::string& bytes) const;

    /// Runs wfbuild on a project with the world's options and variables VIEW, SETUP, DIR and BUILD (7),
    /// its log in logFile(), in the world's folder; request may ask for a signal.
    wftest::ProgramRun wfbuild(const std::string& project, std::vector<std::string> extra = {},
                               wftest::ProgramRequest request = {}) const;

    /// Points this process, and what it starts, at the world's store as the builder: for hosts
    /// that ask the simulator from inside the test program (the page gallery, the designer).
    void enter() const;

private:
    /// What the simulator needs to find the world's store, as a user (empty: the builder).
    std::vector<std::pair<std::string, std::string>> environment(const std::string& user) const;

    wftest::TempDir m_dir;
};

/// A look at a world after a run: a simulator command in a folder (see ClearCaseWorld::where)
/// as a user, or the bytes of a file there when `command` is empty. Its standard output and error
/// together must hold every `holds` piece and none of the `lacks` pieces, and it must end with `status`.
struct Look {
    std::string place;
    std::vector<std::string> command;
    std::vector<std::string> holds;
    std::vector<std::string> lacks = {};
    int status = 0;
    std::string user = {};
};
void expectLooks(const ClearCaseWorld& world, const std::vector<Look>& looks);

/// A build variable, or a file in the world's folder, that must hold exactly what a simulator
/// listing prints, so that the expectation comes from the simulator and not from a table.
struct SameAs {
    std::string variable;
    std::string file;
    std::string place;
    std::vector<std::string> command;
};
/// `wfbuildOut` is wfbuild's standard output of a run with --print-variables.
void expectSame(const ClearCaseWorld& world, const std::vector<SameAs>& sames, const std::string& wfbuildOut);

/// The simulator and wfbuild as built next to the tests.
std::string cleartoolPath();
std::string wfbuildPath();

} // namespace e2e
