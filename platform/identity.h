// Who the program is and where it runs: its version record, its executable, its folders.
#pragma once

#include <string>

#include "platform/port.h"

namespace zelvane::platform {

struct VersionRecord {
  std::string productName;   // in the version label and in message titles
  std::string title;         // application name of the stored settings
  int major = 0;             //
  int minor = 0;             //
  std::string companyName;   //
  std::string legalText;     //
  std::string makerAddress;  // the maker's web address
};

class Identity : public Port {
 public:
  virtual const VersionRecord& version() const = 0;

  // The folder of the running executable, absolute and without a closing separator, unless it is
  // the root of a file system, which is its separator.
  virtual std::string programFolder() const = 0;

  // The executable's file name without its folder and without an executable suffix.
  virtual std::string executableName() const = 0;

  // The folder of the files that belong to the program and that its user may change. Absolute,
  // without a closing separator; it need not exist yet.
  virtual std::string dataFolder() const = 0;

  // What parts a folder from a name in the paths of this desktop.
  virtual char separator() const = 0;
};

}  // namespace zelvane::platform
