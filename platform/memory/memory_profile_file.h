// An initialisation file that exists as its text alone.
#pragma once

#include <optional>
#include <string>

#include "platform/profile_file.h"

namespace zelvane::platform {

class MemoryProfileFile : public ProfileFile {
 public:
  std::optional<std::string> find(const std::string& section,
                                  const std::string& key) const override;
  bool write(const std::string& section, const std::string& key, const std::string& text) override;

  // The whole file; empty at first.
  const std::string& content() const { return content_; }
  void setContent(const std::string& content) { content_ = content; }

  // From now on every write fails.
  void refuseWrites() { refusesWrites_ = true; }

 private:
  std::string content_;
  bool refusesWrites_ = false;
};

}  // namespace zelvane::platform
