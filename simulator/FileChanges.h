#pragma once

#include "Dates.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ccsim {

class Store;

/// What a command does to files in snapshot views, held back until its store changes commit.
/// The changes are recorded in the store inside the command's transaction and applied after the
/// commit, so a run killed at any point leaves either neither or both; what a killed run recorded
/// but did not apply, the next run applies first. Every change is idempotent (whole contents and
/// absolute modes), so applying a list twice is harmless.
class FileChanges {
public:
    /// Replaces `file` with `data`, mode 0644 or 0444, its modification time set when `mtime` is given.
    void write(const std::filesystem::path& file, std::string data, bool writable, std::optional<Time> mtime = {});
    void setWritable(const std::filesystem::path& file, bool writable);
    void remove(const std::filesystem::path& file);
    /// Moves a view-private file aside: `to` gets its data, writable; `from` goes.
    void moveAside(const std::filesystem::path& from, const std::filesystem::path& to);

    /// What `file` holds once the changes are applied; nullopt when it will not exist.
    std::optional<std::string> contents(const std::filesystem::path& file) const;

    /// Marks and undoes to a mark: a failing operand drops its own changes.
    size_t mark() const { return m_changes.size(); }
    void undoTo(size_t mark) { m_changes.resize(mark); }

    /// Records the changes in the store; call inside the command's transaction.
    void record(Store& store) const;
    /// Applies the recorded changes in order and forgets them, under the store's write lock.
    static void applyRecorded(Store& store);

private:
    enum class Op { Write, Mode, Remove };
    struct Change {
        Op op;
        std::filesystem::path file;
        std::string data;
        bool writable = false;
        std::optional<Time> mtime;
    };
    std::vector<Change> m_changes;
};

} // namespace ccsim
