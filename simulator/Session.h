#pragma once

#include "Dates.h"
#include "FileChanges.h"
#include "Messages.h"
#include "Store.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace ccsim {

namespace fs = std::filesystem;

/// An operand that failed: its error lines (cause, then "Unable to ..."). Only that operand's work is undone.
struct Failure {
    std::vector<std::string> lines;
};

[[noreturn]] void fail(std::string cause);
[[noreturn]] void fail(std::string cause, std::string unable);

/// Who runs the command, where, and when: read once from the environment.
struct Environment {
    fs::path home;       ///< $CCSIM_HOME, default ~/.ccsim
    std::string user;    ///< $USER, else the password entry
    std::string group;
    std::string fullName;
    std::string host;
    Time now = 0;
    bool lt = false;     ///< $CCSIM_EDITION=lt
};

struct Vob {
    std::int64_t id = 0;
    std::string tag;
    bool ucm = false;
};

struct View {
    std::int64_t id = 0;
    std::string tag;
    fs::path root;
    std::string configSpec;
    std::optional<std::int64_t> stream;
    std::optional<std::int64_t> activity;
};

/// A pathname as the user gave it, placed in the VOB namespace.
struct Target {
    std::string given;
    fs::path abs;                          ///< absolute file-system path (without any "@@" part)
    std::optional<Vob> vob;
    std::string vobPath;                   ///< path inside the VOB, "" for its root directory
    std::optional<std::int64_t> element;   ///< the element at vobPath, if one exists
    bool extended = false;                 ///< the name carried "@@"
    std::string extension;                 ///< what follows "@@" ("/main/3", "", ...)
    std::optional<View> view;              ///< the snapshot view whose directory holds abs

    std::string elementName() const;       ///< "/vobs/main/src/a.c"
};

/// One invocation: the store, the streams, the environment, the view around the working directory.
class Session {
public:
    Session(Store& store, Environment env, fs::path cwd, std::ostream& out, std::ostream& err, std::istream& in);

    Store& store;
    Environment env;
    fs::path cwd;
    std::ostream& out;
    std::ostream& err;
    std::istream& in;
    /// View files this command changes; they change when the store commits.
    FileChanges files;

    void error(const std::string& text);
    void warning(const std::string& text);
    void print(const std::string& line);
    void printLines(const std::vector<std::string>& lines);
    int status() const { return m_status; }
    void setFailed() { m_status = 1; }

    /// The view whose directory holds the working directory.
    const std::optional<View>& view() const { return m_view; }
    /// The current view, or a failure with the "no view info" message.
    const View& requireView();
    /// The snapshot view whose directory holds `path`: the nearest view.dat marker above it.
    std::optional<View> viewAt(const fs::path& path);
    std::optional<View> viewTagged(const std::string& tag);

    std::vector<Vob> vobs();
    std::optional<Vob> vobByTag(std::string_view tag);
    /// The VOB a "-invob" argument or "@vob" names, or a failure.
    Vob vobFor(const std::string& selector);
    /// The VOB of the working directory, or a failure.
    Vob currentVob();

    Target resolve(const std::string& given);
    /// A file-system path printed relative to the working directory when it lies below it.
    std::string display(const fs::path& abs) const;

    /// "Build Engineer (builder.users@host)"
    std::string creator(const std::string& user) const;

    /// Runs `body` for each operand; a failing operand prints its error lines and is undone alone.
    template <class F>
    void forEach(const std::vector<std::string>& operands, F body)
    {
        for (const std::string& operand : operands)
            guarded([&] { body(operand); });
    }
    template <class F>
    bool guarded(F body)
    {
        Savepoint sp(store);
        const size_t mark = files.mark();
        try {
            body();
            sp.release();
            return true;
        } catch (const Failure& f) {
            files.undoTo(mark);
            for (const std::string& line : f.lines)
                error(line);
            return false;
        }
    }

private:
    int m_status = 0;
    std::optional<View> m_view;
    std::optional<std::vector<Vob>> m_vobs;
};

Environment readEnvironment();

} // namespace ccsim
