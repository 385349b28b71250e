// A small world with a folder to erase in it, and with others who are at work there meanwhile.
#pragma once

#include <filesystem>
#include <functional>
#include <list>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/linux/descriptor.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/linux/private_mounts.h"

namespace zelvane::test {

// This system cannot make what a case needs.
class CannotBuild : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// All names are paths below the world's folder; folders that are missing above them are made. All
// calls that build throw CannotBuild or what the standard library throws.
class ZooWorld {
 public:
  // Fills a folder that is there and empty with what every world has: "root", which is to be
  // erased, with "root/plain" in it; and "outside", which is not.
  explicit ZooWorld(std::filesystem::path folder);
  ZooWorld(const ZooWorld&) = delete;
  ZooWorld& operator=(const ZooWorld&) = delete;
  ~ZooWorld();  // ends the others, and takes the mounts away

  std::string folder() const { return folder_.string(); }
  std::string path(const std::string& name) const { return (folder_ / name).string(); }

  void file(const std::string& name, const std::string& content);
  void file(const std::string& name) { file(name, "content of " + name); }
  void folder(const std::string& name) { std::filesystem::create_directories(path(name)); }
  void link(const std::string& name, const std::string& target);
  void hardLink(const std::string& name, const std::string& existing);
  void pipe(const std::string& name);
  void socket(const std::string& name);
  void permissions(const std::string& name, unsigned mode);

  // A chain of folders below `name`, one in another and all of the same name, each with a file "f".
  void deepFolders(const std::string& name, const std::string& each, int levels);

  void mountVolume(const std::string& name);
  void mountAgain(const std::string& existing, const std::string& name);  // a file or a folder
  void mountDevice(const std::string& device, const std::string& name);
  void makeReadOnly(const std::string& mounted);
  // `name` shows the folder `upper` of this world over the folder `lower` of the system; the kernel
  // needs a folder "work" for it.
  void mountOver(const std::string& lower, const std::string& upper, const std::string& name);

  // This process holds the file open, or mapped and closed, as long as the world exists.
  void hold(const std::string& name);
  void map(const std::string& name);

  // Has to stay, with everything below it, in addition to what the case says.
  void keep(const std::string& name) { kept_.push_back(name); }
  const std::vector<std::string>& kept() const { return kept_; }

  // Another process that is at work from meetOthers() on. It says something once it has begun.
  void other(std::function<void(const Say&)> body) { bodies_.push_back(std::move(body)); }
  // To be done when the erasure is over and the others have ended.
  void atTheEnd(std::function<void()> action) { atTheEnd_ = std::move(action); }

  void meetOthers();
  void endOthers();

 private:
  std::string makeRoomFor(const std::string& name) const;
  void mount(const std::string& source, const std::string& name, const char* type,
             unsigned long flags, const char* options = nullptr);

  std::filesystem::path folder_;
  std::vector<std::string> kept_;
  std::vector<platform::Descriptor> held_;
  std::vector<void*> mapped_;  // a byte of each
  std::optional<PrivateMounts> mounts_;
  std::vector<std::string> mountPoints_;
  std::vector<std::function<void(const Say&)>> bodies_;
  std::list<ChildProcess> others_;
  std::function<void()> atTheEnd_;
};

// For another process: swaps two names of a folder. False where one of them is gone.
bool swapNames(int folder, const std::string& one, const std::string& other);

// For another process, twice: prepares to see the first file go from the folder, and waits for it.
class FirstErasure {
 public:
  explicit FirstErasure(const std::string& folder);
  void wait() const;

 private:
  platform::Descriptor events_;
};

}  // namespace zelvane::test
