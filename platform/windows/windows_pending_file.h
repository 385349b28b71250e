// A file on its way into a folder: written aside, then named in one step.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/windows/handle.h"

namespace zelvane::platform {

// Windows has no files without names. This one waits under a random name in the folder of its
// target, marked to be deleted when it is closed, which also a kill does. Only between losing that
// mark and getting its name could it stay there.
class WindowsPendingFile : public PendingFile {
 public:
  // In the open folder `folder`, to be published there as `name`.
  WindowsPendingFile(Handle folder, std::wstring name);
  ~WindowsPendingFile() override;

  void write(std::string_view bytes) override;
  void publish() override;

 private:
  Handle folder_;
  std::wstring name_;
  Handle file_;
  bool published_ = false;
};

}  // namespace zelvane::platform
