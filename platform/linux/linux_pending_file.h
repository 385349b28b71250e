// A file on its way into a folder: written out of sight, then named in one step.
#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

#include "platform/files.h"
#include "platform/linux/descriptor.h"

namespace zelvane::platform {

class LinuxPendingFile : public PendingFile {
 public:
  enum class Kind { unnamed, hidden };

  // Whether a file waits under such a name; after a kill just then it has it for good.
  static bool isHiddenName(std::string_view name);

  // Deletes such files in a folder in which nobody is at work on one.
  static void sweepAwayWhatKillsLeft(const Descriptor& folder);

  // In the open folder `folder`, to be published there as `name`. An unnamed file is what one
  // wants; a hidden one is made instead where the file system has no unnamed ones, or when asked
  // for.
  LinuxPendingFile(Descriptor folder, std::string name, Kind kind = Kind::unnamed);
  ~LinuxPendingFile() override;

  // Readable by its user alone otherwise.
  void setPermissions(mode_t permissions);

  void write(std::string_view bytes) override;
  void publish() override;

 private:
  void createHidden();
  // False when the name is taken.
  bool linkAs(const std::string& name) const;
  void replaceTarget();
  void removeHidden();

  Descriptor folder_;
  std::string name_;
  std::string hiddenName_;  // empty while the file has no name in the folder
  Descriptor file_;
  bool published_ = false;
};

}  // namespace zelvane::platform
