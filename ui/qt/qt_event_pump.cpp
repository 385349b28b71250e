#include "ui/qt/qt_event_pump.h"

#include <QCoreApplication>

#include <time.h>

namespace zelvane::qt {

namespace {

constexpr std::int64_t kPause = 8;  // milliseconds

// The clock that the kernel updates at each of its ticks: reading it takes nanoseconds, where
// asking the toolkit for events takes a microsecond, a fifth of the time of erasing a file.
std::int64_t coarseTime() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

}  // namespace

// The time is noted before, for handlers that pump in their turn, and after, so that long handlers
// leave the task its share.
void QtEventPump::doEvents() {
  const std::int64_t now = coarseTime();
  if (now - delivered_ < kPause) {
    return;
  }
  delivered_ = now;
  QCoreApplication::processEvents();
  delivered_ = coarseTime();
}

}  // namespace zelvane::qt
