// The desktop entry with which the user's session starts Zelvane.
#pragma once

#include <optional>
#include <string>

#include "platform/identity.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/environment.h"
#include "platform/shared/ledger.h"

namespace zelvane::platform {

//     $XDG_CONFIG_HOME/autostart/zelvane.desktop
//
// It is Zelvane's where it is a plain file of this user's that holds the line
// "X-Zelvane-Entry=startup", whatever else a desktop's settings have put into it. A link, another
// user's file, or one without that line is somebody else's: it is neither read any further,
// replaced nor deleted. An "autostart" that is a link itself is not entered.
class AutostartEntry {
 public:
  // `identity` and `ledger` are borrowed.
  AutostartEntry(const Environment& environment, const Identity& identity, Ledger& ledger);

  // Lets the session start the running program, in the state in which the entry was first written.
  // Notes the entry before. Throws where that is refused, or the name is somebody else's
  // (fileExists), or the program's path cannot be written in such an entry (accessError).
  void write();

  // Deletes it, if it is Zelvane's, and strikes it out.
  void erase();

 private:
  std::optional<Descriptor> folderIfThere() const;
  bool isSomebodyElses(const Descriptor& folder) const;
  std::string text() const;
  Ledger::Entry note() const;

  std::string folder_;
  const Identity& identity_;
  Ledger& ledger_;
};

}  // namespace zelvane::platform
