#include "scheduler/repeated_failure.h"

namespace zelvane::scheduler {

bool RepeatedFailure::isNews(const platform::Error& failure, const platform::LocalTime& now) {
  const std::string text = std::to_string(static_cast<int>(failure.number())) + failure.text();
  if (text != told_) {
    told_ = text;
    triedAgain_.reset();
    return true;
  }
  const auto present = std::chrono::local_days(now.date) + now.timeOfDay;
  if (!triedAgain_) {
    triedAgain_ = present;
  }
  // A clock that was set back must not make it silent for longer.
  const bool quiet = present >= *triedAgain_ && present < *triedAgain_ + std::chrono::minutes(1);
  if (!quiet) {
    triedAgain_.reset();
  }
  return !quiet;
}

}  // namespace zelvane::scheduler
