#include "platform/shared/browsers/database.h"

#include <sqlite3.h>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

ErrorNumber numberOf(int code) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_AUTH:
      return ErrorNumber::permissionDenied;
    case SQLITE_FULL:
      return ErrorNumber::diskFull;
    case SQLITE_NOMEM:
      return ErrorNumber::outOfMemory;
    case SQLITE_CANTOPEN:
      return ErrorNumber::accessError;
    default:
      return ErrorNumber::deviceIo;
  }
}

}  // namespace

class Database::Statement {
 public:
  Statement(const Database& database, const std::string& text) : database_(database) {
    database.check(
        sqlite3_prepare_v2(database.connection_.get(), text.c_str(), -1, &statement_, nullptr));
  }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement() { sqlite3_finalize(statement_); }

  void bind(const std::string& text) {
    sqlite3_reset(statement_);
    database_.check(sqlite3_bind_text(statement_, 1, text.data(), static_cast<int>(text.size()),
                                      SQLITE_STATIC));
  }

  // False behind the last row.
  bool step() {
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE) database_.fail(code);
    return code == SQLITE_ROW;
  }

  std::int64_t number() const { return sqlite3_column_int64(statement_, 0); }

  std::vector<std::string> texts() {
    std::vector<std::string> texts;
    while (step()) {
      const unsigned char* text = sqlite3_column_text(statement_, 0);
      texts.emplace_back(text == nullptr ? "" : reinterpret_cast<const char*>(text));
    }
    return texts;
  }

 private:
  const Database& database_;
  sqlite3_stmt* statement_ = nullptr;
};

void Database::Closing::operator()(sqlite3* connection) const { sqlite3_close(connection); }

Database::Database(const std::string& path, Use use, const BrowserDesktop& desktop) : path_(path) {
  // Not all systems know what SQLITE_OPEN_NOFOLLOW asks for.
  if (desktop.kindOf(path) != PathKind::file) {
    throw Error(ErrorNumber::accessError, path + " is no file");
  }
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &connection,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW, nullptr);
  connection_.reset(connection);
  check(code);
  sqlite3_extended_result_codes(connection, 1);
  // Nothing that a stranger's file defines is trusted to be harmless.
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  if (number("PRAGMA main.page_count") == 0) throw Error(ErrorNumber::deviceIo, path + " is empty");
  if (use == Use::editing) {
    // Held from the first statement on; its index of the journal then is in memory and not in a
    // file. What is deleted is not written over: `compact` leaves nothing of it.
    run("PRAGMA locking_mode = EXCLUSIVE; PRAGMA secure_delete = OFF; BEGIN EXCLUSIVE; COMMIT");
  }
}

Database::~Database() = default;

std::vector<std::string> Database::tables() const {
  return texts("SELECT name FROM main.sqlite_master WHERE type = 'table'");
}

bool Database::has(std::string_view table) const { return !columns(table).empty(); }

std::vector<std::string> Database::columns(std::string_view table) const {
  Statement statement(*this, "SELECT name FROM pragma_table_info(?)");
  const std::string name(table);
  statement.bind(name);
  return statement.texts();
}

void Database::run(const std::string& statements) const {
  check(sqlite3_exec(connection_.get(), statements.c_str(), nullptr, nullptr, nullptr));
}

std::int64_t Database::number(const std::string& query) const {
  Statement statement(*this, query);
  return statement.step() ? statement.number() : 0;
}

std::vector<std::string> Database::texts(const std::string& query) const {
  return Statement(*this, query).texts();
}

void Database::runForEach(const std::string& statement,
                          const std::vector<std::string>& texts) const {
  Statement prepared(*this, statement);
  for (const std::string& one : texts) {
    prepared.bind(one);
    prepared.step();
  }
}

void Database::inOneStep(const std::function<void()>& change) const {
  run("BEGIN IMMEDIATE");
  try {
    change();
    run("COMMIT");
  } catch (...) {
    sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr,
                 nullptr);  // it may be over already
    throw;
  }
}

void Database::compact() const { run("VACUUM; PRAGMA wal_checkpoint(TRUNCATE)"); }

void Database::fail(int code) const {
  throw Error(numberOf(code), path_ + ": " + sqlite3_errmsg(connection_.get()));
}

void Database::check(int code) const {
  if (code != SQLITE_OK) fail(code);
}

std::string sqlName(std::string_view name) {
  std::string text = "\"";
  for (const char letter : name)
    text += letter == '"' ? std::string("\"\"") : std::string(1, letter);
  return text + "\"";
}

}  // namespace zelvane::platform
