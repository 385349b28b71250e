#include "platform/shared/browsers/level_db.h"

#include <cstdarg>

#include <leveldb/db.h>
#include <leveldb/env.h>
#include <leveldb/write_batch.h>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

void check(const leveldb::Status& status) {
  if (status.ok()) return;
  throw Error(status.IsIOError() ? ErrorNumber::permissionDenied : ErrorNumber::deviceIo,
              status.ToString());
}

std::string_view textOf(const leveldb::Slice& slice) { return {slice.data(), slice.size()}; }

}  // namespace

// Its log tells which keys it has at hand.
class LevelDb::NoLog : public leveldb::Logger {
 public:
  void Logv(const char*, va_list) override {}
};

LevelDb::LevelDb(const std::string& path, Open how) : log_(std::make_unique<NoLog>()) {
  leveldb::Options options;
  options.create_if_missing = how == Open::anew;
  options.error_if_exists = how == Open::anew;
  options.paranoid_checks = true;
  options.info_log = log_.get();
  leveldb::DB* database = nullptr;
  check(leveldb::DB::Open(options, path, &database));
  database_.reset(database);
}

LevelDb::~LevelDb() = default;

void LevelDb::forEach(const Use& use) const {
  leveldb::ReadOptions options;
  options.verify_checksums = true;
  options.fill_cache = false;
  const std::unique_ptr<leveldb::Iterator> entry(database_->NewIterator(options));
  for (entry->SeekToFirst(); entry->Valid(); entry->Next()) {
    use(textOf(entry->key()), textOf(entry->value()));
  }
  check(entry->status());
}

void LevelDb::addFrom(const LevelDb& other, const Which& which) const {
  constexpr std::size_t kPiece = std::size_t{1} << 20U;
  leveldb::WriteOptions durably;
  durably.sync = true;
  leveldb::WriteBatch piece;
  other.forEach([&](std::string_view key, std::string_view value) {
    if (!which(key, value)) return;
    piece.Put({key.data(), key.size()}, {value.data(), value.size()});
    if (piece.ApproximateSize() < kPiece) return;
    check(database_->Write(durably, &piece));
    piece.Clear();
  });
  check(database_->Write(durably, &piece));
}

}  // namespace zelvane::platform
