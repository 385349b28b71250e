// Single files by path: reading whole, deleting, and writing whole or not at all.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/port.h"

namespace zelvane::platform {

// A new file that nobody sees under the target's name until it is published. Destroying it
// unpublished leaves nothing behind, not even after a kill where the desktop has unnamed files.
class PendingFile {
 public:
  PendingFile() = default;
  PendingFile(const PendingFile&) = delete;
  PendingFile& operator=(const PendingFile&) = delete;
  virtual ~PendingFile() = default;

  // Appends. Throws diskFull or deviceIo.
  virtual void write(std::string_view bytes) = 0;

  // Makes the content durable, then gives the file its name, replacing whatever file or link was
  // there in one step, and makes that durable. To be called once. A folder in the target's place
  // is refused.
  virtual void publish() = 0;
};

// A file opened for reading from its beginning to its end.
class ReadStream {
 public:
  ReadStream() = default;
  ReadStream(const ReadStream&) = delete;
  ReadStream& operator=(const ReadStream&) = delete;
  virtual ~ReadStream() = default;

  // Up to `limit` bytes, fewer only at the end; empty at the end.
  virtual std::string read(std::size_t limit) = 0;
};

class Files : public Port {
 public:
  // True for a file or a link to one; a folder is not a file.
  virtual bool exists(const std::string& path) const = 0;

  // Throws fileNotFound where there is none; accessError for a folder, a pipe or a device.
  virtual std::unique_ptr<ReadStream> open(const std::string& path) const = 0;

  // The whole content. A file of more than `limit` bytes is refused with accessError rather than
  // cut. Otherwise like `open`.
  virtual std::string readWhole(const std::string& path, std::uint64_t limit) const = 0;

  // Deletes the file or the link of that name, never what a link leads to, never a folder. The name
  // is no pattern. Throws fileNotFound, permissionDenied, or accessError for a folder.
  virtual void remove(const std::string& path) = 0;

  // A new file in the folder of `target`, readable by its user alone. The folder has to exist.
  virtual std::unique_ptr<PendingFile> createBeside(const std::string& target) = 0;

  // A new file in place of one that is there, with that one's permissions, or with its folder's on
  // a desktop where files have theirs from there. Throws fileNotFound where there is none, and
  // accessError where it is a link or no file.
  virtual std::unique_ptr<PendingFile> createInPlaceOf(const std::string& target) = 0;
};

}  // namespace zelvane::platform
