#include "tests/browsers/fixture_database.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include <leveldb/db.h>
#include <sqlite3.h>

#include "tests/support/source_folder.h"

namespace zelvane::test {
namespace {

int addRow(void* rows, int columns, char** texts, char**) {
  std::string row;
  for (int column = 0; column < columns; ++column) {
    row += (column > 0 ? "|" : "") + std::string(texts[column] == nullptr ? "NULL" : texts[column]);
  }
  static_cast<std::vector<std::string>*>(rows)->push_back(row);
  return 0;
}

std::vector<std::string> run(const std::string& path, const std::string& statements, int flags) {
  sqlite3* database = nullptr;
  std::vector<std::string> rows;
  int code = sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
  if (code == SQLITE_OK) code = sqlite3_exec(database, statements.c_str(), addRow, &rows, nullptr);
  const std::string error = path + ": " + sqlite3_errmsg(database);
  sqlite3_close(database);
  if (code != SQLITE_OK) throw std::runtime_error(error);
  return rows;
}

std::unique_ptr<leveldb::DB> openLevelDb(const std::string& folder) {
  leveldb::Options options;
  options.create_if_missing = true;
  leveldb::DB* database = nullptr;
  const leveldb::Status status = leveldb::DB::Open(options, folder, &database);
  if (!status.ok()) throw std::runtime_error(status.ToString());
  return std::unique_ptr<leveldb::DB>(database);
}

}  // namespace

void makeDatabase(const std::string& path, std::string_view schema, const std::string& statements) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ifstream file(inSources("tests/browsers/schemas/" + std::string(schema) + ".sql"));
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (text.empty()) throw std::runtime_error("no schema " + std::string(schema));
  run(path, "BEGIN;" + text + statements + ";COMMIT", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

void runIn(const std::string& path, const std::string& statements) {
  run(path, statements, SQLITE_OPEN_READWRITE);
}

std::vector<std::string> rowsOf(const std::string& path, const std::string& query) {
  return run(path, query, SQLITE_OPEN_READWRITE);
}

void makeLevelDb(const std::string& folder, const std::map<std::string, std::string>& entries) {
  std::filesystem::create_directories(folder);
  const auto database = openLevelDb(folder);
  for (const auto& [key, value] : entries) database->Put({}, key, value);
  database->CompactRange(nullptr, nullptr);
}

std::map<std::string, std::string> entriesOf(const std::string& folder) {
  std::map<std::string, std::string> entries;
  const auto database = openLevelDb(folder);
  const std::unique_ptr<leveldb::Iterator> entry(database->NewIterator({}));
  for (entry->SeekToFirst(); entry->Valid(); entry->Next()) {
    entries[entry->key().ToString()] = entry->value().ToString();
  }
  return entries;
}

}  // namespace zelvane::test
