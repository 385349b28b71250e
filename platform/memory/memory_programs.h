// Programs that a test registers for types of files, and that only write down that they started.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/programs.h"

namespace zelvane::platform {

class MemoryPrograms : public Programs {
 public:
  std::optional<std::string> programFor(const std::string& file) const override;
  bool executablesHaveSuffix() const override { return haveSuffix; }
  bool start(const std::string& program, const std::string& argument) override;

  // The program for a type: `use("htm", "/usr/bin/browser")`.
  void use(const std::string& extension, const std::string& program) {
    programs_[extension] = program;
  }
  void uninstall(const std::string& program) { uninstalled_.insert(program); }

  // What happens when the next file is asked about, while it still exists.
  void whileAsked(std::function<void(const std::string& file)> action) {
    whileAsked_ = std::move(action);
  }

  bool haveSuffix = false;

  struct Started {
    std::string program;
    std::string argument;

    friend bool operator==(const Started&, const Started&) = default;
  };
  const std::vector<Started>& started() const { return started_; }

 private:
  std::map<std::string, std::string> programs_;  // by extension
  std::set<std::string> uninstalled_;
  std::function<void(const std::string&)> whileAsked_ = [](const std::string&) {};
  std::vector<Started> started_;
};

}  // namespace zelvane::platform
