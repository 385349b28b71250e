// Programs that are not found, or do not start, when they are told so.
#pragma once

#include <optional>
#include <string>

#include "platform/memory/faults.h"
#include "platform/programs.h"

namespace zelvane::platform {

// The subject of a call is the file or the program.
class FaultyPrograms : public Programs {
 public:
  FaultyPrograms(Programs& programs, Faults& faults) : programs_(programs), faults_(faults) {}

  std::optional<std::string> programFor(const std::string& file) const override {
    if (faults_.fails("Programs::programFor", file)) return std::nullopt;
    return programs_.programFor(file);
  }

  bool executablesHaveSuffix() const override { return programs_.executablesHaveSuffix(); }

  bool start(const std::string& program, const std::string& argument) override {
    return !faults_.fails("Programs::start", program) && programs_.start(program, argument);
  }

 private:
  Programs& programs_;
  Faults& faults_;
};

}  // namespace zelvane::platform
