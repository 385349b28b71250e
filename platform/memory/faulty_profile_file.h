// An initialisation file that fails when it is told to.
#pragma once

#include <optional>
#include <string>

#include "platform/memory/faults.h"
#include "platform/profile_file.h"

namespace zelvane::platform {

class FaultyProfileFile : public ProfileFile {
 public:
  FaultyProfileFile(ProfileFile& file, Faults& faults) : file_(file), faults_(faults) {}

  std::optional<std::string> find(const std::string& section,
                                  const std::string& key) const override {
    if (faults_.fails("ProfileFile::find", section + "/" + key)) return std::nullopt;
    return file_.find(section, key);
  }

  bool write(const std::string& section, const std::string& key, const std::string& text) override {
    return !faults_.fails("ProfileFile::write", section + "/" + key) &&
           file_.write(section, key, text);
  }

 private:
  ProfileFile& file_;
  Faults& faults_;
};

}  // namespace zelvane::platform
