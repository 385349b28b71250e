// A program of any version in any folder.
#pragma once

#include <string>

#include "platform/identity.h"

namespace zelvane::platform {

class MemoryIdentity : public Identity {
 public:
  // What the port answers; a test changes what it cares about.
  struct Facts {
    VersionRecord version{.productName = "Zelvane",
                          .title = "Zelvane",
                          .major = 1,
                          .minor = 0,
                          .companyName = "Zelvane",
                          .legalText = "Copyright 2026",
                          .makerAddress = "https://www.zelvane.example/"};
    std::string programFolder = "/opt/zelvane";
    std::string executableName = "zelvane";
    std::string dataFolder = "/home/user/.local/share/zelvane";
    char separator = '/';
  };
  Facts facts;

  const VersionRecord& version() const override { return facts.version; }
  std::string programFolder() const override { return facts.programFolder; }
  std::string executableName() const override { return facts.executableName; }
  std::string dataFolder() const override { return facts.dataFolder; }
  char separator() const override { return facts.separator; }
};

}  // namespace zelvane::platform
