#include "ui/win32/win32_event_pump.h"

#include <windows.h>

#include "ui/win32/message_loop.h"

namespace zelvane::win32 {

namespace {

constexpr std::chrono::milliseconds kPause(8);

}  // namespace

// The time is noted before, for handlers that pump in their turn, and after, so that long handlers
// leave the task its share. Messages that bring forth others, as a timer does whose handler takes
// longer than its interval, are delivered for as long as the pause at most: the rest waits until
// the next time.
void Win32EventPump::doEvents() {
  const Clock::time_point now = Clock::now();
  if (now - delivered_ < kPause) {
    return;
  }
  delivered_ = now;
  MSG message;
  while (Clock::now() - now < kPause && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    deliver(message);
  }
  delivered_ = Clock::now();
}

}  // namespace zelvane::win32
