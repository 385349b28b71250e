// A database of another program's, opened with care.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/shared/browsers/browser_desktop.h"

struct sqlite3;

namespace zelvane::platform {

// A file in the format of SQLite (https://www.sqlite.org/fileformat2.html). Opening makes no file
// and refuses a link, a folder and a database without content. All failures are Errors whose text
// names the file.
class Database {
 public:
  enum class Use { reading, editing };

  // For editing nobody else may have it in use; until the end nobody else can.
  Database(const std::string& path, Use use, const BrowserDesktop& desktop);
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database();

  std::vector<std::string> tables() const;
  bool has(std::string_view table) const;
  // Those that are stored and can be written, in their order.
  std::vector<std::string> columns(std::string_view table) const;

  void run(const std::string& statements) const;
  // The first column of the first row, 0 where there is none.
  std::int64_t number(const std::string& query) const;
  // The first column of each row; an empty text for NULL.
  std::vector<std::string> texts(const std::string& query) const;
  // Runs the statement once for each text, as its only parameter.
  void runForEach(const std::string& statement, const std::vector<std::string>& texts) const;

  // All or none of what `change` does.
  void inOneStep(const std::function<void()>& change) const;

  // Writes the database anew without what is free in it, and empties what lies beside it.
  void compact() const;

  // The bytes of deleted rows stay in free pages until `compact`.
  bool hasFreePages() const { return number("PRAGMA main.freelist_count") > 0; }

 private:
  struct Closing {
    void operator()(sqlite3* connection) const;
  };

  class Statement;
  [[noreturn]] void fail(int code) const;
  void check(int code) const;

  std::string path_;
  std::unique_ptr<sqlite3, Closing> connection_;
};

// A name as statements take it.
std::string sqlName(std::string_view name);

}  // namespace zelvane::platform
