#include "core/controls/form.h"
#include "core/controls/text_box.h"
#include "tests/contract/window_commands_contract.h"
#include "ui/win32/mirror/form_window.h"
#include "ui/win32/mirror/text_box_window.h"
#include "ui/win32/win32_window_commands.h"

namespace zelvane::test {
namespace {

// Counts its paintings.
class PaintedLine : public win32::TextBoxWindow {
 public:
  using TextBoxWindow::TextBoxWindow;

  std::ptrdiff_t paintings = 0;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override {
    paintings += message == WM_PAINT ? 1 : 0;
    return TextBoxWindow::onMessage(message, word, value);
  }
};

class Win32WindowBed : public WindowCommandsBed {
 public:
  Win32WindowBed() {
    commands_.attach(window_.handle());
    window_.body().add(first_);
    window_.body().add(second_);
    window_.place({0, 0, 400, 300});
    form_.setState(controls::Form::State::minimised);
    form_.setVisible(true);
  }

  platform::WindowCommands& window() override { return commands_; }

  bool isForward() override {
    deliverAll();
    return IsWindowVisible(window_.handle()) && !IsIconic(window_.handle());
  }

  bool isActive() override {
    deliverAll();
    return GetForegroundWindow() == window_.handle();
  }

  std::string focused() const override {
    const win32::Window* focused = win32::Window::of(GetFocus());
    return focused == nullptr ? std::string() : focused->control()->name();
  }

  std::ptrdiff_t paintings(const std::string& controlName) const override {
    PaintedLine& line = controlName == "txtFirst" ? first_ : second_;
    // What the user sees need not be painted again, so there is something new.
    InvalidateRect(line.handle(), nullptr, TRUE);
    return line.paintings;
  }

 private:
  static void deliverAll() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      DispatchMessageW(&message);
    }
  }

  controls::Page page_;
  controls::Form form_{page_, "frmTest", "A window"};
  controls::TextBox txtFirst_{page_, "txtFirst"};
  controls::TextBox txtSecond_{page_, "txtSecond"};
  win32::Look look_;
  win32::FormWindow window_{form_, look_};
  PaintedLine& first_ = window_.make<PaintedLine>(txtFirst_);
  PaintedLine& second_ = window_.make<PaintedLine>(txtSecond_);
  win32::Win32WindowCommands commands_;
};

std::unique_ptr<WindowCommandsBed> makeWin32WindowBed() {
  return std::make_unique<Win32WindowBed>();
}

INSTANTIATE_TEST_SUITE_P(Win32, WindowCommandsContract, testing::Values(makeWin32WindowBed));

TEST(Win32WindowCommands, WithoutAWindowEveryCommandDoesNothing) {
  win32::Win32WindowCommands commands;

  EXPECT_NO_THROW(commands.bringForward());
  EXPECT_NO_THROW(commands.activate());
  EXPECT_NO_THROW(commands.focus("txtFirst"));
  EXPECT_NO_THROW(commands.repaint("txtFirst"));
}

}  // namespace
}  // namespace zelvane::test
