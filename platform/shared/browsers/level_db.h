// A folder in the format of LevelDB, opened without its log.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace leveldb {
class DB;
}

namespace zelvane::platform {

// github.com/google/leveldb. Opening one that is there brings it up to date, which whoever opens it
// does. Nobody else can have it open. All failures are Errors.
class LevelDb {
 public:
  enum class Open { present, anew };

  LevelDb(const std::string& path, Open how);
  LevelDb(const LevelDb&) = delete;
  LevelDb& operator=(const LevelDb&) = delete;
  ~LevelDb();

  using Use = std::function<void(std::string_view key, std::string_view value)>;
  void forEach(const Use& use) const;

  // Durably adds those entries of another one that `which` wants.
  using Which = std::function<bool(std::string_view key, std::string_view value)>;
  void addFrom(const LevelDb& other, const Which& which) const;

 private:
  class NoLog;

  std::unique_ptr<NoLog> log_;
  std::unique_ptr<leveldb::DB> database_;
};

}  // namespace zelvane::platform
