// Which failures of something that is tried again and again are worth telling.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/error.h"
#include "platform/local_time.h"

namespace zelvane::scheduler {

// A schedule that cannot be understood fails a hundred times a second. Each failure told would put
// box after box over the page on which it could be mended. So a failure is told when it is new:
// none came before it, or another one, or there was a try in between that did not fail. One that
// goes on is told again a minute after its box was closed.
class RepeatedFailure {
 public:
  // Of a failure now: whether it is to be told. The caller tells it before it tries again.
  bool isNews(const platform::Error& failure, const platform::LocalTime& now);

  // A try did not fail.
  void over() { told_.clear(); }

 private:
  std::string told_;  // what the latest box said; empty while all is well
  // When it was first tried again after that box was closed.
  std::optional<std::chrono::local_seconds> triedAgain_;
};

}  // namespace zelvane::scheduler
