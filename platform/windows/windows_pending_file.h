// A file on its way into a folder: written aside, then named in one step.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/windows/handle.h"

namespace zelvane::platform {

// Windows has no files without names. This one waits under a random name in the folder of its
// target, marked to be deleted when it is closed, which also a kill does. Only a kill between its
// making and that mark, or between losing it and getting its name, leaves it there: empty, or
// whole.
class WindowsPendingFile : public PendingFile {
 public:
  // Who may use the file: its user alone, or whoever the rules of its folder say.
  enum class Rights { ofUserAlone, ofFolder };

  // In the open folder `folder`, to be published there as `name`.
  WindowsPendingFile(Handle folder, std::wstring name, Rights rights = Rights::ofUserAlone);
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
