#include <chrono>
#include <deque>
#include <utility>

#include <windows.h>

#include "tests/contract/event_pump_contract.h"
#include "ui/win32/win32_event_pump.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;

class Win32EventPumpBed : public EventPumpBed {
 public:
  Win32EventPumpBed() {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(deliver));
  }
  ~Win32EventPumpBed() override { DestroyWindow(window_); }

  platform::EventPump& pump() override { return pump_; }

  void post(std::function<void()> event) override {
    waiting_.push_back(std::move(event));
    PostMessageW(window_, WM_APP, 0, 0);
  }

 private:
  static LRESULT CALLBACK deliver(HWND window, UINT message, WPARAM word, LPARAM value) {
    if (message == WM_APP) {
      auto& bed = *reinterpret_cast<Win32EventPumpBed*>(GetWindowLongPtrW(window, GWLP_USERDATA));
      const auto event = std::move(bed.waiting_.front());
      bed.waiting_.pop_front();
      event();
      return 0;
    }
    return DefWindowProcW(window, message, word, value);
  }

  HWND window_ =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  std::deque<std::function<void()>> waiting_;
  win32::Win32EventPump pump_;
};

std::unique_ptr<EventPumpBed> makeWin32EventPumpBed() {
  return std::make_unique<Win32EventPumpBed>();
}

INSTANTIATE_TEST_SUITE_P(Win32, EventPumpContract, testing::Values(makeWin32EventPumpBed));

// A bound from below only: a busy machine makes pauses longer and never shorter.
TEST(Win32EventPump, EightMillisecondsPassBeforeItDeliversAgain) {
  Win32EventPumpBed bed;
  int deliveries = 0;
  const auto deliverOne = [&] {
    const int before = deliveries;
    bed.post([&] { ++deliveries; });
    while (deliveries == before) {
      bed.pump().doEvents();
    }
  };
  deliverOne();
  const auto start = std::chrono::steady_clock::now();

  for (int more = 0; more < 5; ++more) {
    deliverOne();
  }

  EXPECT_GE(std::chrono::steady_clock::now() - start, 5 * 8ms);
}

TEST(Win32EventPump, EventsThatBringForthOthersLetTheTaskGoOn) {
  Win32EventPumpBed bed;
  bool taskWentOn = false;
  bool gaveUp = false;
  const auto start = std::chrono::steady_clock::now();
  std::function<void()> again = [&] {
    gaveUp = std::chrono::steady_clock::now() - start > 10s;
    if (!taskWentOn && !gaveUp) {
      bed.post(again);
    }
  };
  bed.post(again);

  bed.pump().doEvents();

  taskWentOn = true;
  EXPECT_FALSE(gaveUp);
}

}  // namespace
}  // namespace zelvane::test
