#include "platform/memory/memory_programs.h"

namespace zelvane::platform {

std::optional<std::string> MemoryPrograms::programFor(const std::string& file) const {
  if (file.find('\0') != std::string::npos) return std::nullopt;
  whileAsked_(file);
  const auto program = programs_.find(file.substr(file.rfind('.') + 1));
  return program == programs_.end() ? std::nullopt : std::optional(program->second);
}

bool MemoryPrograms::start(const std::string& program, const std::string& argument) {
  if (uninstalled_.contains(program) || argument.find('\0') != std::string::npos) return false;
  started_.push_back({program, argument});
  return true;
}

}  // namespace zelvane::platform
