#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "tests/contract/window_commands_contract.h"
#include "ui/qt/qt_window_commands.h"

namespace zelvane::test {
namespace {

// Counts its paintings.
class PaintedLine : public QLineEdit {
 public:
  PaintedLine(const char* name, QWidget& parent) : QLineEdit(&parent) { setObjectName(name); }

  std::ptrdiff_t paintings = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paintings;
    QLineEdit::paintEvent(event);
  }
};

class QtWindowBed : public WindowCommandsBed {
 public:
  QtWindowBed() {
    auto* column = new QVBoxLayout(&widget_);
    column->addWidget(&first_);
    column->addWidget(&second_);
    commands_.attach(widget_);
    widget_.showMinimized();
  }

  platform::WindowCommands& window() override { return commands_; }

  bool isForward() override {
    return widget_.isVisible() && !widget_.isMinimized() && QTest::qWaitForWindowExposed(&widget_);
  }

  bool isActive() override { return QTest::qWaitForWindowActive(&widget_); }

  std::string focused() const override {
    const QWidget* focused = widget_.focusWidget();
    return focused == nullptr ? std::string() : focused->objectName().toStdString();
  }

  std::ptrdiff_t paintings(const std::string& controlName) const override {
    return (controlName == "txtFirst" ? first_ : second_).paintings;
  }

 private:
  QWidget widget_;
  PaintedLine first_{"txtFirst", widget_};
  PaintedLine second_{"txtSecond", widget_};
  qt::QtWindowCommands commands_;
};

std::unique_ptr<WindowCommandsBed> makeQtWindowBed() { return std::make_unique<QtWindowBed>(); }

INSTANTIATE_TEST_SUITE_P(Qt, WindowCommandsContract, testing::Values(makeQtWindowBed));

TEST(QtWindowCommands, WithoutAWindowEveryCommandDoesNothing) {
  qt::QtWindowCommands commands;

  EXPECT_NO_THROW(commands.bringForward());
  EXPECT_NO_THROW(commands.activate());
  EXPECT_NO_THROW(commands.focus("txtFirst"));
  EXPECT_NO_THROW(commands.repaint("txtFirst"));
}

}  // namespace
}  // namespace zelvane::test
