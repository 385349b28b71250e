#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTest>
#include <QVBoxLayout>

#include "tests/contract/notifier_panel_qt.h"
#include "tests/contract/tray_contract.h"
#include "ui/qt/mirror/menu_widget.h"
#include "ui/qt/mirror/picture_widget.h"
#include "ui/qt/qt_tray.h"

namespace zelvane::test {
namespace {

using Names = std::vector<std::string>;

// The toolkit settles on one kind of panel for the whole process; here it is the one that shows
// status notifier items. The other is tried with a real panel, among the tests of the real program.
class QtTrayBed : public TrayBed {
 public:
  QtTrayBed() {
    window_.setObjectName("frmMain");
    tray_.attach(window_, menu_);
  }

  platform::Tray& tray() override { return tray_; }

  // What the panel shows is what the tray says, as soon as both have heard of each other.
  Names seen() override {
    hearOfPanels();
    Names tips = panel_.tips();
    while (tips.size() != (tray_.isShown() ? 1U : 0U) && ++turns_ < kPatience) {
      QTest::qWait(10);
      tips = panel_.tips();
    }
    return tips;
  }

  void doubleClick() override { use("Activate"); }
  void rightClick() override { use("ContextMenu"); }

  void takePlaceAway() override {
    panel_.stop();
    hearOfPanels();
  }
  void givePlace() override { panel_.start(); }

  Names opened(const std::string& menuName) override {
    tray_.showMenu(menuName);
    const QWidget* popup = QApplication::activePopupWidget();
    Names names = popup == nullptr ? Names{} : Names{popup->objectName().toStdString()};
    menu_.hide();
    return names;
  }

 private:
  static constexpr int kPatience = 500;

  void use(const char* method) {
    panel_.use(method);
    QCoreApplication::processEvents();
  }

  // Whatever the bus had for this process before is delivered before the answer; the second
  // question goes to the panel itself, after what the tray had asked on hearing that.
  static void hearOfPanels() {
    for (const char* service : {"org.freedesktop.DBus", "org.kde.StatusNotifierWatcher"}) {
      QDBusConnection::sessionBus().call(
          QDBusMessage::createMethodCall(service, "/StatusNotifierWatcher",
                                         "org.freedesktop.DBus.Peer", "Ping"),
          QDBus::BlockWithGui);
      QCoreApplication::processEvents();
    }
  }

  NotifierPanel panel_;
  QWidget window_;
  controls::Page page_;
  controls::Picture picOther_{page_, "picOther", controls::Picture::Image::broom};
  qt::PictureWidget picture_{picOther_, 32, window_};
  controls::MenuItem mnuFirst_{page_, "mnuFirst", "First"};
  controls::Menu mnuMain_{page_, "mnuMain", "Menu", {&mnuFirst_}};
  qt::MenuWidget menu_{mnuMain_};
  qt::QtTray tray_;
  int turns_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Qt, TrayContract, testing::Values([]() -> std::unique_ptr<TrayBed> {
                           return std::make_unique<QtTrayBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
