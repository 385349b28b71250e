#include "platform/memory/faults.h"

namespace zelvane::platform {

bool Faults::fails(const std::string& name, const std::string& subject) {
  calls_.push_back({name, subject, ++occurrences_[{name, subject}]});
  const bool failing = failing_.contains(calls_.size());
  if (failing) failed_.push_back(calls_.back());
  return failing;
}

void Faults::throwIfItFails(ErrorNumber how, const std::string& name, const std::string& subject) {
  if (fails(name, subject)) throw Error(how);
}

}  // namespace zelvane::platform
