#include <QAbstractButton>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <map>

#include "tests/contract/dialogs_contract.h"
#include "tests/contract/modal_user_qt.h"
#include "tests/support/throw_away_folder.h"
#include "ui/qt/qt_dialogs.h"

namespace zelvane::test {
namespace {

using platform::MessageIcon;

platform::MessageBox read(const QMessageBox& box) {
  const std::map<QMessageBox::Icon, MessageIcon> icons{
      {QMessageBox::NoIcon, MessageIcon::none},
      {QMessageBox::Information, MessageIcon::information},
      {QMessageBox::Warning, MessageIcon::exclamation},
      {QMessageBox::Critical, MessageIcon::critical}};
  EXPECT_EQ(box.textFormat(), Qt::PlainText);
  EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
  return {box.text().toStdString(), box.windowTitle().toStdString(), icons.at(box.icon())};
}

class QtDialogsBed : public DialogsBed {
 public:
  platform::Dialogs& dialogs() override { return dialogs_; }

  void willClose() override {
    user_.atNextDialog([this](QWidget& dialog) {
      auto& box = dynamic_cast<QMessageBox&>(dialog);
      lastBox_ = read(box);
      box.button(QMessageBox::Ok)->click();
    });
  }

  void willChoose(const std::string& path) override {
    user_.atNextDialog([path](QWidget& dialog) {
      auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
      name->setText(QString::fromStdString(path));
      static_cast<QDialog&>(dynamic_cast<QFileDialog&>(dialog)).accept();
    });
  }

  void willCancel() override {
    user_.atNextDialog([](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).reject(); });
  }

  platform::MessageBox lastBox() const override { return lastBox_; }
  std::string folder() const override { return folder_.path().string(); }

 private:
  ThrowAwayFolder folder_;
  controls::OpenBoxes boxes_;
  qt::QtDialogs dialogs_{boxes_};
  ModalUser user_;
  platform::MessageBox lastBox_;
};

std::unique_ptr<DialogsBed> makeQtDialogsBed() { return std::make_unique<QtDialogsBed>(); }

INSTANTIATE_TEST_SUITE_P(Qt, DialogsContract, testing::Values(makeQtDialogsBed));

TEST(QtDialogs, ABoxIsCountedAsOpenUntilItIsClosed) {
  controls::OpenBoxes boxes;
  qt::QtDialogs dialogs(boxes);
  ModalUser user;
  bool openMeanwhile = false;
  int allClosed = 0;
  boxes.allClosed.connect([&] { ++allClosed; });
  user.atNextDialog([&](QWidget& dialog) {
    openMeanwhile = boxes.any();
    dialog.close();
  });

  dialogs.show({"text", "title", MessageIcon::none});

  EXPECT_TRUE(openMeanwhile);
  EXPECT_FALSE(boxes.any());
  EXPECT_EQ(allClosed, 1);
}

TEST(QtDialogs, ABoxBelongsToTheWindowThatWasAttached) {
  controls::OpenBoxes boxes;
  qt::QtDialogs dialogs(boxes);
  QWidget window;
  dialogs.attach(window);
  ModalUser user;
  const QWidget* owner = nullptr;
  user.atNextDialog([&](QWidget& dialog) {
    owner = dialog.parentWidget();
    dialog.close();
  });

  dialogs.show({"text", "title", MessageIcon::none});

  EXPECT_EQ(owner, &window);
}

}  // namespace
}  // namespace zelvane::test
