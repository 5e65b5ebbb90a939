#include "FileChanges.h"

#include "Store.h"

#include <chrono>
#include <fstream>
#include <sstream>

namespace ccsim {

namespace fs = std::filesystem;

namespace {

fs::perms modeOf(bool writable)
{
    return writable ? fs::perms(0644) : fs::perms(0444);
}

void setTime(const fs::path& file, Time t)
{
    std::error_code ec;
    const auto now = fs::file_time_type::clock::now();
    const auto sys = std::chrono::system_clock::now();
    const auto target = std::chrono::system_clock::from_time_t(static_cast<std::time_t>(t));
    fs::last_write_time(file, now + std::chrono::duration_cast<fs::file_time_type::duration>(target - sys), ec);
}

/// The new contents go to a neighbour first, so `file` is never seen half written.
void replaceFile(const fs::path& file, const std::string& data, bool writable, std::optional<Time> mtime)
{
    std::error_code ec;
    fs::create_directories(file.parent_path(), ec);
    const fs::path temp = file.string() + ".ccsim-new";
    fs::remove(temp, ec);
    {
        std::ofstream out(temp, std::ios::binary);
        out << data;
        out.flush();
        if (!out)
            throw StoreError("cannot write \"" + temp.string() + "\"");
    }
    fs::permissions(temp, modeOf(writable), ec);
    if (mtime)
        setTime(temp, *mtime);
    fs::rename(temp, file, ec);
    if (ec)
        throw StoreError("cannot replace \"" + file.string() + "\": " + ec.message());
}

std::string slurp(const fs::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

} // namespace

void FileChanges::write(const fs::path& file, std::string data, bool writable, std::optional<Time> mtime)
{
    m_changes.push_back(Change{Op::Write, file, std::move(data), writable, mtime});
}

void FileChanges::setWritable(const fs::path& file, bool writable)
{
    m_changes.push_back(Change{Op::Mode, file, {}, writable, std::nullopt});
}

void FileChanges::remove(const fs::path& file)
{
    m_changes.push_back(Change{Op::Remove, file, {}, false, std::nullopt});
}

void FileChanges::moveAside(const fs::path& from, const fs::path& to)
{
    std::optional<std::string> data = contents(from);
    if (!data)
        return;
    write(to, std::move(*data), true);
    remove(from);
}

std::optional<std::string> FileChanges::contents(const fs::path& file) const
{
    for (auto it = m_changes.rbegin(); it != m_changes.rend(); ++it) {
        if (it->file != file)
            continue;
        if (it->op == Op::Write)
            return it->data;
        if (it->op == Op::Remove)
            return std::nullopt;
    }
    std::error_code ec;
    if (!fs::is_regular_file(file, ec))
        return std::nullopt;
    return slurp(file);
}

void FileChanges::record(Store& store) const
{
    for (const Change& c : m_changes) {
        store.run("INSERT INTO file_changes(op, path, data, writable, mtime) VALUES(?,?,?,?,?)", static_cast<int>(c.op),
                  c.file.string(), c.data, c.writable, c.mtime);
    }
}

void FileChanges::applyRecorded(Store& store)
{
    if (!store.scalar("SELECT 1 FROM file_changes LIMIT 1"))
        return;
    Transaction tx(store);
    Stmt q = store.query("SELECT op, path, data, writable, mtime FROM file_changes ORDER BY id");
    while (q.step()) {
        const fs::path file = q.text(1);
        std::error_code ec;
        switch (static_cast<Op>(q.integer(0))) {
        case Op::Write:
            replaceFile(file, q.text(2), q.integer(3) != 0, q.optInteger(4));
            break;
        case Op::Mode:
            fs::permissions(file, modeOf(q.integer(3) != 0), ec);
            break;
        case Op::Remove:
            fs::remove(file, ec);
            break;
        }
    }
    store.run("DELETE FROM file_changes");
    tx.commit();
}

} // namespace ccsim
