#include "platform/memory/faulty_files.h"

#include <string_view>
#include <utility>

namespace zelvane::platform {
namespace {

class FaultyReadStream : public ReadStream {
 public:
  FaultyReadStream(std::unique_ptr<ReadStream> stream, std::string path, Faults& faults)
      : stream_(std::move(stream)), path_(std::move(path)), faults_(faults) {}

  std::string read(std::size_t limit) override {
    faults_.throwIfItFails(ErrorNumber::deviceIo, "ReadStream::read", path_);
    return stream_->read(limit);
  }

 private:
  std::unique_ptr<ReadStream> stream_;
  std::string path_;
  Faults& faults_;
};

class FaultyPendingFile : public PendingFile {
 public:
  FaultyPendingFile(std::unique_ptr<PendingFile> file, std::string target, Faults& faults)
      : file_(std::move(file)), target_(std::move(target)), faults_(faults) {}

  void write(std::string_view bytes) override {
    faults_.throwIfItFails(ErrorNumber::diskFull, "PendingFile::write", target_);
    file_->write(bytes);
  }

  void publish() override {
    faults_.throwIfItFails(ErrorNumber::permissionDenied, "PendingFile::publish", target_);
    file_->publish();
  }

 private:
  std::unique_ptr<PendingFile> file_;
  std::string target_;
  Faults& faults_;
};

}  // namespace

bool FaultyFiles::exists(const std::string& path) const {
  return !faults_.fails("Files::exists", path) && files_.exists(path);
}

std::unique_ptr<ReadStream> FaultyFiles::open(const std::string& path) const {
  faults_.throwIfItFails(ErrorNumber::fileNotFound, "Files::open", path);
  return std::make_unique<FaultyReadStream>(files_.open(path), path, faults_);
}

std::string FaultyFiles::readWhole(const std::string& path, std::uint64_t limit) const {
  faults_.throwIfItFails(ErrorNumber::deviceIo, "Files::readWhole", path);
  return files_.readWhole(path, limit);
}

void FaultyFiles::remove(const std::string& path) {
  faults_.throwIfItFails(ErrorNumber::permissionDenied, "Files::remove", path);
  files_.remove(path);
}

std::unique_ptr<PendingFile> FaultyFiles::createBeside(const std::string& target) {
  faults_.throwIfItFails(ErrorNumber::permissionDenied, "Files::createBeside", target);
  return std::make_unique<FaultyPendingFile>(files_.createBeside(target), target, faults_);
}

std::unique_ptr<PendingFile> FaultyFiles::createInPlaceOf(const std::string& target) {
  faults_.throwIfItFails(ErrorNumber::permissionDenied, "Files::createInPlaceOf", target);
  return std::make_unique<FaultyPendingFile>(files_.createInPlaceOf(target), target, faults_);
}

}  // namespace zelvane::platform
