#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>

#include "tests/contract/clipboard_contract.h"
#include "ui/qt/qt_clipboard.h"

namespace zelvane::test {
namespace {

// Runs a program on this display to its end while this program goes on answering, because whoever
// pastes asks the one that copied.
std::string output(const QString& program, const QStringList& arguments,
                   const QString& input = {}) {
  QProcess process;
  process.start(program, arguments);
  process.write(input.toUtf8());
  process.closeWriteChannel();
  while (!process.waitForFinished(5) && process.state() != QProcess::NotRunning) {
    QCoreApplication::processEvents();
  }
  return process.readAllStandardOutput().toStdString();
}

class QtClipboardBed : public ClipboardBed {
 public:
  platform::Clipboard& clipboard() override { return clipboard_; }

  void copy(const std::string& text) override {
    // The display lets only a program copy that has been told of something lately. A user who
    // copies presses keys; here it is the opening of a window.
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(QString::fromStdString(text), QClipboard::Clipboard);
    clipboard->setText(QString::fromStdString(text), QClipboard::Selection);
  }

  std::string pasted() const override {
    return output("xclip", {"-o", "-selection", "clipboard"}) +
           output("xclip", {"-o", "-selection", "primary"});
  }

 private:
  qt::QtClipboard clipboard_;
};

// What is copied belongs to another program, which answers for it until somebody else copies.
class ForeignClipboardBed : public QtClipboardBed {
 public:
  void copy(const std::string& text) override {
    for (const char* selection : {"clipboard", "primary"}) {
      output("xclip", {"-i", "-selection", selection}, QString::fromStdString(text));
    }
  }
};

template <typename Bed>
std::unique_ptr<ClipboardBed> make() {
  return std::make_unique<Bed>();
}

INSTANTIATE_TEST_SUITE_P(OfOurOwn, ClipboardContract, testing::Values(make<QtClipboardBed>));
INSTANTIATE_TEST_SUITE_P(OfAnotherProgram, ClipboardContract,
                         testing::Values(make<ForeignClipboardBed>));

}  // namespace
}  // namespace zelvane::test
