// Which files were held open at one moment.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "platform/linux/file_identity.h"
#include "platform/linux/folder_entries.h"

namespace zelvane::platform {

// Linux deletes a file under the hands of the program that reads or writes it. So that nobody loses
// a file that way, the files of all processes whose open descriptors and memory maps can be read,
// this one's included, are written down. A process that cannot be read counts as holding nothing.
class OpenFilesSnapshot {
 public:
  // Taken now. A test may bring a folder of its own, laid out like the kernel's.
  explicit OpenFilesSnapshot(const std::string& processFolder = "/proc");

  bool contains(const FileIdentity& file) const { return files_.count(file) > 0; }

  // Whether there is a file with that number in it, on whatever device.
  bool containsInode(ino_t inode) const { return inodes_.count(inode) > 0; }

 private:
  void addProcess(const std::string& process);
  void addDescriptors(const std::string& process);
  void addMaps(const std::string& process);
  void addMap(std::string_view line);
  bool add(const FileIdentity& file);

  FolderReader descriptors_;
  std::unordered_set<FileIdentity, FileIdentity::Hash> files_;
  std::unordered_set<ino_t> inodes_;
};

}  // namespace zelvane::platform
