#include "Store.h"

#include <sqlite3.h>

namespace ccsim {

namespace {

constexpr int kSchemaVersion = 4;

constexpr std::string_view kSchema = R"SQL(
CREATE TABLE vobs(id INTEGER PRIMARY KEY, tag TEXT UNIQUE NOT NULL, storage TEXT NOT NULL,
  ucm INTEGER NOT NULL, created INTEGER, user TEXT, grp TEXT, comment TEXT);
CREATE TABLE types(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, kind TEXT NOT NULL, name TEXT NOT NULL,
  created INTEGER, user TEXT, grp TEXT, comment TEXT, global INTEGER DEFAULT 0, per_branch INTEGER DEFAULT 0,
  vtype TEXT, attach TEXT, lo TEXT, lo_incl INTEGER, hi TEXT, hi_incl INTEGER, defval TEXT, enums TEXT,
  UNIQUE(vob_id, kind, name));
CREATE TABLE elements(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, parent_id INTEGER, name TEXT NOT NULL,
  eltype TEXT NOT NULL, is_dir INTEGER NOT NULL, created INTEGER, user TEXT, comment TEXT);
CREATE INDEX elements_parent ON elements(vob_id, parent_id, name);
CREATE TABLE branches(id INTEGER PRIMARY KEY, element_id INTEGER NOT NULL, path TEXT NOT NULL,
  from_version INTEGER, created INTEGER, user TEXT, UNIQUE(element_id, path));
CREATE TABLE versions(id INTEGER PRIMARY KEY, element_id INTEGER NOT NULL, branch_id INTEGER NOT NULL,
  num INTEGER NOT NULL, data BLOB, created INTEGER, user TEXT, comment TEXT, pred_id INTEGER,
  UNIQUE(branch_id, num));
CREATE TABLE labels(type_id INTEGER NOT NULL, version_id INTEGER NOT NULL, element_id INTEGER NOT NULL,
  created INTEGER, user TEXT, PRIMARY KEY(type_id, version_id));
CREATE TABLE attrs(obj_kind TEXT NOT NULL, obj_id INTEGER NOT NULL, type_id INTEGER NOT NULL, value TEXT NOT NULL,
  PRIMARY KEY(obj_kind, obj_id, type_id));
CREATE TABLE locks(obj_kind TEXT NOT NULL, obj_id INTEGER NOT NULL, nusers TEXT, obsolete INTEGER NOT NULL,
  created INTEGER, user TEXT, comment TEXT, PRIMARY KEY(obj_kind, obj_id));
CREATE TABLE events(id INTEGER PRIMARY KEY, element_id INTEGER NOT NULL, kind TEXT NOT NULL, vext TEXT NOT NULL,
  created INTEGER, user TEXT, comment TEXT, label TEXT);
CREATE TABLE views(id INTEGER PRIMARY KEY, tag TEXT UNIQUE NOT NULL, dir TEXT NOT NULL, cs TEXT NOT NULL,
  stream_id INTEGER, activity_id INTEGER, created INTEGER, user TEXT);
CREATE TABLE checkouts(id INTEGER PRIMARY KEY, element_id INTEGER NOT NULL, view_id INTEGER NOT NULL,
  branch_id INTEGER NOT NULL, pred_id INTEGER NOT NULL, reserved INTEGER NOT NULL, created INTEGER, user TEXT,
  comment TEXT, activity_id INTEGER, UNIQUE(element_id, view_id));
CREATE TABLE loaded(view_id INTEGER NOT NULL, element_id INTEGER NOT NULL, version_id INTEGER NOT NULL,
  PRIMARY KEY(view_id, element_id));
CREATE TABLE folders(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL, parent_id INTEGER,
  created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
CREATE TABLE projects(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL, folder_id INTEGER,
  created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
CREATE TABLE project_comps(project_id INTEGER NOT NULL, component_id INTEGER NOT NULL,
  PRIMARY KEY(project_id, component_id));
CREATE TABLE components(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL,
  root_vob_id INTEGER, root_elem_id INTEGER, created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
CREATE TABLE streams(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL, project_id INTEGER NOT NULL,
  integration INTEGER NOT NULL, created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
CREATE TABLE foundations(stream_id INTEGER NOT NULL, baseline_id INTEGER NOT NULL,
  PRIMARY KEY(stream_id, baseline_id));
CREATE TABLE activities(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL, stream_id INTEGER NOT NULL,
  headline TEXT, created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
CREATE TABLE changeset(activity_id INTEGER NOT NULL, version_id INTEGER NOT NULL, PRIMARY KEY(activity_id, version_id));
CREATE TABLE baselines(id INTEGER PRIMARY KEY, vob_id INTEGER NOT NULL, name TEXT NOT NULL, component_id INTEGER NOT NULL,
  stream_id INTEGER, kind TEXT NOT NULL, label_vob INTEGER, last_version INTEGER NOT NULL,
  created INTEGER, user TEXT, comment TEXT, UNIQUE(vob_id, name));
)SQL";

constexpr std::string_view kFileChanges = R"SQL(
CREATE TABLE file_changes(id INTEGER PRIMARY KEY, op INTEGER NOT NULL, path TEXT NOT NULL, data BLOB,
  writable INTEGER NOT NULL, mtime INTEGER);
)SQL";

void check(int rc, sqlite3* db)
{
    if (rc != SQLITE_OK && rc != SQLITE_ROW && rc != SQLITE_DONE)
        throw StoreError(sqlite3_errmsg(db));
}

} // namespace

Stmt::Stmt(sqlite3* db, std::string_view sql)
    : m_db(db)
{
    check(sqlite3_prepare_v2(db, sql.data(), static_cast<int>(sql.size()), &m_stmt, nullptr), db);
}

Stmt::Stmt(Stmt&& other) noexcept
    : m_db(other.m_db)
    , m_stmt(other.m_stmt)
{
    other.m_stmt = nullptr;
}

Stmt::~Stmt()
{
    sqlite3_finalize(m_stmt);
}

void Stmt::bindInteger(int index, std::int64_t value)
{
    check(sqlite3_bind_int64(m_stmt, index, value), m_db);
}

void Stmt::bind(int index, std::string_view value)
{
    check(sqlite3_bind_text(m_stmt, index, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT), m_db);
}

void Stmt::bind(int index, Null)
{
    check(sqlite3_bind_null(m_stmt, index), m_db);
}

bool Stmt::step()
{
    const int rc = sqlite3_step(m_stmt);
    check(rc, m_db);
    return rc == SQLITE_ROW;
}

std::int64_t Stmt::integer(int col) const
{
    return sqlite3_column_int64(m_stmt, col);
}

std::string Stmt::text(int col) const
{
    const auto* p = static_cast<const char*>(sqlite3_column_blob(m_stmt, col));
    const int n = sqlite3_column_bytes(m_stmt, col);
    return p ? std::string(p, static_cast<size_t>(n)) : std::string();
}

bool Stmt::isNull(int col) const
{
    return sqlite3_column_type(m_stmt, col) == SQLITE_NULL;
}

std::optional<std::int64_t> Stmt::optInteger(int col) const
{
    if (isNull(col))
        return std::nullopt;
    return integer(col);
}

Store::Store(const std::string& path)
{
    if (sqlite3_open_v2(path.c_str(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        std::string why = m_db ? sqlite3_errmsg(m_db) : "out of memory";
        sqlite3_close(m_db);
        m_db = nullptr;
        throw StoreError("cannot open " + path + ": " + why);
    }
    sqlite3_busy_timeout(m_db, 30000);
    exec("PRAGMA foreign_keys=OFF");
    auto version = scalar("PRAGMA user_version");
    if (version.value_or(0) < kSchemaVersion) {
        exec("PRAGMA journal_mode=WAL");
        exec("BEGIN IMMEDIATE");
        // Another process may have created the schema while we waited for the lock.
        const std::int64_t found = scalar("PRAGMA user_version").value_or(0);
        if (found == 0)
            exec(kSchema);
        if (found < 4) // stores made before view files changed with the store's transaction
            exec(kFileChanges);
        if (found == 1) // stores made before attribute types kept their -enum list
            exec("ALTER TABLE types ADD COLUMN enums TEXT");
        if (found == 1 || found == 2) // stores made before label events kept the label's name
            exec("ALTER TABLE events ADD COLUMN label TEXT");
        if (found < kSchemaVersion)
            exec("PRAGMA user_version=" + std::to_string(kSchemaVersion));
        exec("COMMIT");
    }
    exec("PRAGMA synchronous=NORMAL");
}

Store::~Store()
{
    sqlite3_close(m_db);
}

void Store::exec(std::string_view sql)
{
    std::string text(sql);
    char* err = nullptr;
    if (sqlite3_exec(m_db, text.c_str(), nullptr, nullptr, &err) != SQLITE_OK) {
        std::string msg = err ? err : "unknown error";
        sqlite3_free(err);
        throw StoreError(msg);
    }
}

std::int64_t Store::lastId() const
{
    return sqlite3_last_insert_rowid(m_db);
}

int Store::changes() const
{
    return sqlite3_changes(m_db);
}

Transaction::Transaction(Store& store)
    : m_store(store)
{
    m_store.exec("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (!m_done) {
        try {
            m_store.exec("ROLLBACK");
        } catch (...) {
        }
    }
}

void Transaction::commit()
{
    m_store.exec("COMMIT");
    m_done = true;
}

Savepoint::Savepoint(Store& store)
    : m_store(store)
{
    m_store.exec("SAVEPOINT operand");
}

Savepoint::~Savepoint()
{
    if (!m_done) {
        try {
            m_store.exec("ROLLBACK TO operand");
            m_store.exec("RELEASE operand");
        } catch (...) {
        }
    }
}

void Savepoint::release()
{
    m_store.exec("RELEASE operand");
    m_done = true;
}

} // namespace ccsim
