// How a control and its widget follow each other, kind by kind.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/check_box_widget.h"
#include "ui/qt/mirror/combo_box_widget.h"
#include "ui/qt/mirror/date_picker_widget.h"
#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/list_view_widget.h"
#include "ui/qt/mirror/option_button_widget.h"
#include "ui/qt/mirror/progress_bar_widget.h"
#include "ui/qt/mirror/rich_log_widget.h"
#include "ui/qt/mirror/text_box_widget.h"
#include "ui/qt/mirror/up_down_widget.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;

class QtMirrorTest : public testing::Test {
 protected:
  struct Count {
    explicit Count(controls::Event<>& event) {
      event.connect([this] { ++times; });
    }
    int times = 0;
  };

  controls::Page page;
  QWidget window;
};

TEST_F(QtMirrorTest, AWidgetHasItsControlsNameStateAndDescription) {
  controls::Button control(page, "cmdApply", "&Apply");
  control.setDescription("Stores the schedule.");
  control.setEnabled(false);
  const qt::ButtonWidget widget(control, window);

  EXPECT_EQ(widget.objectName(), "cmdApply");
  EXPECT_EQ(widget.text(), "&Apply");
  EXPECT_EQ(widget.accessibleName(), "Apply");
  EXPECT_EQ(widget.toolTip(), "Stores the schedule.");
  EXPECT_FALSE(widget.isEnabled());

  control.setEnabled(true);
  control.setVisible(false);
  control.setCaption("&Use");
  EXPECT_TRUE(widget.isEnabled());
  EXPECT_TRUE(widget.isHidden());
  EXPECT_EQ(widget.accessibleName(), "Use");
}

TEST_F(QtMirrorTest, AControlOutlivesItsWidget) {
  controls::Button control(page, "cmdApply", "&Apply");
  { const qt::ButtonWidget widget(control, window); }

  control.setCaption("&Use");

  EXPECT_EQ(control.caption(), "&Use");
}

TEST_F(QtMirrorTest, AClickOnTheScreenIsOneClickOfTheControl) {
  controls::Button control(page, "cmdApply", "&Apply");
  Count clicks(control.clicked);
  qt::ButtonWidget widget(control, window);

  QTest::mouseClick(&widget, Qt::LeftButton);

  EXPECT_EQ(clicks.times, 1);
}

TEST_F(QtMirrorTest, ACheckBoxFollowsBothWaysAndClicksOnce) {
  controls::CheckBox control(page, "chkStartup", "Run on Startup");
  Count clicks(control.clicked);
  qt::CheckBoxWidget widget(control, window);

  widget.click();
  EXPECT_TRUE(control.checked());
  EXPECT_TRUE(widget.isChecked());
  EXPECT_EQ(clicks.times, 1);

  control.setValue(controls::CheckBox::kGreyed);
  EXPECT_EQ(widget.checkState(), Qt::PartiallyChecked);

  widget.click();
  EXPECT_EQ(control.value(), controls::CheckBox::kUnchecked);
  EXPECT_EQ(widget.checkState(), Qt::Unchecked);
}

TEST_F(QtMirrorTest, AnOptionButtonFollowsBothWays) {
  controls::OptionGroup group;
  controls::OptionButton encrypt(page, "Option2", "Encrypt", group);
  controls::OptionButton decrypt(page, "Option3", "Decrypt", group);
  qt::OptionButtonWidget encryptWidget(encrypt, window);
  qt::OptionButtonWidget decryptWidget(decrypt, window);
  EXPECT_FALSE(encryptWidget.isChecked() || decryptWidget.isChecked());

  encryptWidget.click();
  EXPECT_TRUE(encrypt.value());

  decrypt.setValue(true);
  EXPECT_FALSE(encryptWidget.isChecked());
  EXPECT_TRUE(decryptWidget.isChecked());

  decrypt.setValue(false);
  EXPECT_FALSE(decryptWidget.isChecked());
}

TEST_F(QtMirrorTest, ChoosingTheSameItemAgainIsAClickToo) {
  controls::ComboBox control(page, "cmbDays", {"Monday", "Tuesday"});
  Count clicks(control.clicked);
  qt::ComboBoxWidget widget(control, window);
  EXPECT_EQ(widget.currentIndex(), -1);

  control.setListIndex(1);
  EXPECT_EQ(widget.currentIndex(), 1);
  EXPECT_EQ(clicks.times, 1);

  emit widget.activated(1);
  EXPECT_EQ(clicks.times, 2);
}

TEST_F(QtMirrorTest, ATextBoxFollowsBothWays) {
  controls::TextBox control(page, "txtHomePageURL", "about:blank");
  Count edits(control.edited);
  qt::TextBoxWidget widget(control, window);

  widget.selectAll();
  QTest::keyClicks(&widget, "x");
  EXPECT_EQ(control.text(), "x");
  EXPECT_EQ(edits.times, 1);

  control.setText("ünd");
  EXPECT_EQ(widget.text(), "ünd");
}

TEST_F(QtMirrorTest, ATextThatTheScreenCannotShowToTheLetterIsKeptByTheControl) {
  controls::TextBox control(page, "txtHomePageURL");
  const qt::TextBoxWidget widget(control, window);

  control.setText("two\nlines and \xff no text");

  EXPECT_EQ(control.text(), "two\nlines and \xff no text");
}

TEST_F(QtMirrorTest, APasswordIsNotReadableOnTheScreen) {
  controls::TextBox control(page, "txtPassword", "secret", controls::TextBox::Kind::password);
  const qt::TextBoxWidget widget(control, window);

  EXPECT_EQ(widget.displayText().indexOf("secret"), -1);
}

TEST_F(QtMirrorTest, ALabelTakesNoRoomWhileItIsEmpty) {
  controls::Label control(page, "Label13", "");
  const qt::LabelWidget widget(control, window);
  EXPECT_TRUE(widget.isHidden());

  control.setCaption("192.0.2.7");

  EXPECT_FALSE(widget.isHidden());
  EXPECT_EQ(widget.text(), "192.0.2.7");
}

TEST_F(QtMirrorTest, ALineShowsLineBreaksAsBlanksAndAnAmpersandAsItIs) {
  controls::Label control(page, "Label14", "");
  const qt::LineWidget widget(control, window);

  control.setCaption("\r\n/rock & roll/a.wav");

  EXPECT_EQ(widget.text(), "/rock & roll/a.wav");
  EXPECT_EQ(widget.accessibleName(), "/rock & roll/a.wav");
}

TEST_F(QtMirrorTest, ALinkIsClickedWithMouseAndKeyboard) {
  controls::Label control(page, "lblWebSite", "https://www.zelvane.example/");
  Count clicks(control.clicked);
  qt::LinkWidget widget(control, window);

  QTest::mouseClick(&widget, Qt::LeftButton);
  QTest::keyClick(&widget, Qt::Key_Space);

  EXPECT_EQ(clicks.times, 2);
}

TEST_F(QtMirrorTest, APickerFollowsBothWaysAndMayBeEmpty) {
  const platform::LocalTime noon{std::chrono::year{2026} / 11 / 21, 12h};
  controls::DatePicker control(page, "dtpScheduleTime", controls::DatePicker::Kind::time);
  control.setValue(noon);
  qt::DatePickerWidget widget(control, window);
  EXPECT_TRUE(widget.box().isChecked());
  EXPECT_EQ(widget.field().time(), QTime(12, 0));

  widget.field().setTime(QTime(8, 30, 15));
  EXPECT_EQ(control.value()->timeOfDay, 8h + 30min + 15s);
  EXPECT_EQ(control.value()->date, noon.date);

  widget.box().click();
  EXPECT_EQ(control.value(), std::nullopt);
  EXPECT_EQ(control.shown().timeOfDay, 8h + 30min + 15s);

  control.setValue(noon);
  EXPECT_EQ(widget.field().time(), QTime(12, 0));
}

TEST_F(QtMirrorTest, PressingIntoAPickerIsToldThoughItsValueStays) {
  controls::DatePicker control(page, "dtpScheduleDate", controls::DatePicker::Kind::date);
  control.setValue({{std::chrono::year{2026} / 11 / 21, 12h}});
  Count clicks(control.clicked);
  Count edits(control.edited);
  const qt::DatePickerWidget widget(control, window);

  QTest::mouseClick(widget.field().findChild<QLineEdit*>(), Qt::LeftButton);

  EXPECT_EQ(clicks.times, 1);
  EXPECT_EQ(edits.times, 0);
}

TEST_F(QtMirrorTest, ClosingTheCalendarOfAPickerIsToldThoughItsValueStays) {
  controls::DatePicker control(page, "dtpScheduleDate", controls::DatePicker::Kind::date);
  control.setValue({{std::chrono::year{2026} / 11 / 21, 12h}});
  Count closings(control.closedUp);
  Count edits(control.edited);
  const qt::DatePickerWidget widget(control, window);
  window.show();
  QDateTimeEdit& field = widget.field();
  QTest::mouseClick(&field, Qt::LeftButton, {}, {field.width() - 5, field.height() / 2});
  QWidget* calendar = QApplication::activePopupWidget();
  ASSERT_NE(calendar, nullptr);

  calendar->close();

  EXPECT_EQ(closings.times, 1);
  EXPECT_EQ(edits.times, 0);
}

TEST_F(QtMirrorTest, TheArrowsCountTheirBox) {
  controls::TextBox hours(page, "txtHours", "2");
  controls::UpDown arrows(page, "udnHours", hours, 0, 23);
  auto* box = new qt::TextBoxWidget(hours, window);
  qt::UpDownWidget widget(arrows, *box, window);

  widget.stepUp();
  EXPECT_EQ(hours.text(), "3");
  EXPECT_EQ(box->text(), "3");

  widget.stepBy(-2);
  EXPECT_EQ(hours.text(), "1");
}

TEST_F(QtMirrorTest, AListShowsItsRows) {
  controls::ListView control(page, "vindows", {"Location", "URL"});
  const qt::ListViewWidget widget(control, window);

  control.add({"1K", {"Home", "https://a.example/"}});
  ASSERT_EQ(widget.topLevelItemCount(), 1);
  EXPECT_EQ(widget.topLevelItem(0)->text(1), "https://a.example/");

  control.clear();
  EXPECT_EQ(widget.topLevelItemCount(), 0);
}

TEST_F(QtMirrorTest, AProgressBarShowsItsFraction) {
  controls::ProgressBar control(page, "pgb");
  const qt::ProgressBarWidget widget(control, window);

  control.setFraction(0.25);

  EXPECT_EQ((widget.value() - widget.minimum()) * 4, widget.maximum() - widget.minimum());
}

class QtLogTest : public QtMirrorTest {
 protected:
  static QColor colourOfLine(const QPlainTextEdit& log, int line) {
    const QTextBlock block = log.document()->findBlockByNumber(line);
    return block.begin().fragment().charFormat().foreground().color();
  }

  void writeARun() {
    control.setSelectionColour(controls::RichLog::Colour::blue);
    control.append("\r\nPath: /tmp/");
    control.setSelectionColour(controls::RichLog::Colour::green);
    control.append("\r\nFinished");
    control.setSelectionColour(controls::RichLog::Colour::black);
    control.append("\r\nDone");
  }

  controls::RichLog control{page, "rtfMessage"};
  qt::RichLogWidget widget{control, window};
};

TEST_F(QtLogTest, ItShowsThePiecesInTheirColours) {
  writeARun();

  EXPECT_EQ(widget.toPlainText(), "\nPath: /tmp/\nFinished\nDone");
  EXPECT_EQ(colourOfLine(widget, 1), QColor(0, 0, 255));
  EXPECT_EQ(colourOfLine(widget, 2), QColor(0, 128, 0));
  EXPECT_EQ(colourOfLine(widget, 3), QColor(0, 0, 0));
}

TEST_F(QtLogTest, OnADarkDesktopItsShadesAreLight) {
  writeARun();
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 30, 30));

  widget.setPalette(dark);

  EXPECT_EQ(widget.toPlainText(), "\nPath: /tmp/\nFinished\nDone");
  for (int line = 1; line <= 3; ++line) {
    EXPECT_GT(colourOfLine(widget, line).lightness(), 128) << line;
  }
}

TEST_F(QtLogTest, AClearedLogIsEmptyAndShowsWhatComesAfter) {
  writeARun();

  control.clear();
  EXPECT_EQ(widget.toPlainText(), "");

  control.append("\r\nDone");
  EXPECT_EQ(widget.toPlainText(), "\nDone");
}

TEST_F(QtLogTest, ItCannotBeTypedInto) { EXPECT_TRUE(widget.isReadOnly()); }

TEST_F(QtLogTest, ItsEndIsInViewAndTheBarBesideItSaysSo) {
  widget.resize(300, 200);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  for (int run = 0; run < 40; ++run) {
    writeARun();
    control.append("\r\nPath: /a/path/that/is/longer/than/the/box/is/wide/and/wraps/" +
                   std::string(60, 'x'));
    QApplication::processEvents();
  }

  const QScrollBar& bar = *widget.verticalScrollBar();
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_EQ(bar.sliderPosition(), bar.maximum());
}

}  // namespace
}  // namespace zelvane::test
