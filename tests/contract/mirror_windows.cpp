// How a control and its window follow each other, kind by kind.
#include <chrono>

#include <windows.h>
#include <commctrl.h>

#include "tests/contract/mirror_bed_windows.h"
#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/check_box_window.h"
#include "ui/win32/mirror/combo_box_window.h"
#include "ui/win32/mirror/date_picker_window.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/list_view_window.h"
#include "ui/win32/mirror/option_button_window.h"
#include "ui/win32/mirror/progress_bar_window.h"
#include "ui/win32/mirror/text_box_window.h"
#include "ui/win32/mirror/up_down_window.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;

TEST_F(Win32MirrorTest, AWindowHasItsControlsNameCaptionAndState) {
  controls::Button control(page, "cmdApply", "&Apply");
  control.setEnabled(false);
  const auto& button = make<win32::ButtonWindow>(control);

  EXPECT_EQ(win32::Window::find(window.handle(), "cmdApply"), &button);
  EXPECT_EQ(button.text(), L"&Apply");
  EXPECT_FALSE(isEnabled(button));

  control.setEnabled(true);
  control.setVisible(false);
  control.setCaption("&Use");
  EXPECT_TRUE(isEnabled(button));
  EXPECT_FALSE(button.isShown());
  EXPECT_EQ(button.text(), L"&Use");
}

TEST_F(Win32MirrorTest, AnotherProgramFindsTheControlsNameOnTheWindow) {
  controls::Button control(page, "cmdApply", "&Apply");
  const auto& button = make<win32::ButtonWindow>(control);

  const auto atom =
      static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(button.handle(), L"Zelvane.control")));
  wchar_t name[32] = L"";
  GlobalGetAtomNameW(atom, name, 32);

  EXPECT_STREQ(name, L"cmdApply");
}

TEST_F(Win32MirrorTest, AControlOutlivesItsWindow) {
  controls::Button control(page, "cmdApply", "&Apply");
  { const win32::ButtonWindow button(control, window); }

  control.setCaption("&Use");

  EXPECT_EQ(control.caption(), "&Use");
}

TEST_F(Win32MirrorTest, WhatIsDisabledHandsTheKeysOn) {
  controls::Button apply(page, "cmdApply", "&Apply");
  controls::Button cancel(page, "cmdCancel", "Cancel");
  const auto& applyWindow = make<win32::ButtonWindow>(apply);
  const auto& cancelWindow = make<win32::ButtonWindow>(cancel);
  form.setVisible(true);
  SetFocus(applyWindow.handle());

  apply.setEnabled(false);

  EXPECT_EQ(GetFocus(), cancelWindow.handle());
}

TEST_F(Win32MirrorTest, AClickOnTheScreenIsOneClickOfTheControl) {
  controls::Button control(page, "cmdApply", "&Apply");
  const Count clicks(control.clicked);
  const auto& button = make<win32::ButtonWindow>(control);

  send(button, BM_CLICK);

  EXPECT_EQ(clicks.times, 1);
}

TEST_F(Win32MirrorTest, ACheckBoxFollowsBothWaysAndClicksOnce) {
  controls::CheckBox control(page, "chkStartup", "Run on Startup");
  const Count clicks(control.clicked);
  const auto& box = make<win32::CheckBoxWindow>(control);

  send(box, BM_CLICK);
  EXPECT_TRUE(control.checked());
  EXPECT_EQ(send(box, BM_GETCHECK), BST_CHECKED);
  EXPECT_EQ(clicks.times, 1);

  control.setValue(controls::CheckBox::kGreyed);
  EXPECT_EQ(send(box, BM_GETCHECK), BST_INDETERMINATE);

  send(box, BM_CLICK);
  EXPECT_EQ(control.value(), controls::CheckBox::kUnchecked);
  EXPECT_EQ(send(box, BM_GETCHECK), BST_UNCHECKED);
}

TEST_F(Win32MirrorTest, AnOptionButtonFollowsBothWays) {
  controls::OptionGroup group;
  controls::OptionButton encrypt(page, "Option2", "Encrypt", group);
  controls::OptionButton decrypt(page, "Option3", "Decrypt", group);
  const auto& encryptWindow = make<win32::OptionButtonWindow>(encrypt);
  const auto& decryptWindow = make<win32::OptionButtonWindow>(decrypt);
  EXPECT_NE(send(encryptWindow, BM_GETCHECK), BST_CHECKED);

  send(encryptWindow, BM_CLICK);
  EXPECT_TRUE(encrypt.value());

  decrypt.setValue(true);
  EXPECT_NE(send(encryptWindow, BM_GETCHECK), BST_CHECKED);
  EXPECT_EQ(send(decryptWindow, BM_GETCHECK), BST_CHECKED);

  decrypt.setValue(false);
  EXPECT_NE(send(decryptWindow, BM_GETCHECK), BST_CHECKED);
}

TEST_F(Win32MirrorTest, TheTabKeyStopsAtTheSelectedOptionButtonOrTheFirst) {
  controls::OptionGroup group;
  controls::OptionButton encrypt(page, "Option2", "Encrypt", group);
  controls::OptionButton decrypt(page, "Option3", "Decrypt", group);
  auto& encryptWindow = make<win32::OptionButtonWindow>(encrypt);
  auto& decryptWindow = make<win32::OptionButtonWindow>(decrypt);
  win32::groupTogether({&encrypt, &decrypt}, {&encryptWindow, &decryptWindow});
  const auto isStop = [](const win32::Window& one) {
    return (GetWindowLongPtrW(one.handle(), GWL_STYLE) & WS_TABSTOP) != 0;
  };
  EXPECT_TRUE(isStop(encryptWindow));
  EXPECT_FALSE(isStop(decryptWindow));

  decrypt.setValue(true);

  EXPECT_FALSE(isStop(encryptWindow));
  EXPECT_TRUE(isStop(decryptWindow));
}

TEST_F(Win32MirrorTest, ChoosingTheSameItemAgainIsAClickToo) {
  controls::ComboBox control(page, "cmbDays", {"Monday", "Tuesday"});
  const Count clicks(control.clicked);
  auto& box = make<win32::ComboBoxWindow>(control);
  EXPECT_EQ(send(box, CB_GETCURSEL), CB_ERR);

  control.setListIndex(1);
  EXPECT_EQ(send(box, CB_GETCURSEL), 1);
  EXPECT_EQ(clicks.times, 1);

  box.onCommand(CBN_SELCHANGE);
  EXPECT_EQ(clicks.times, 2);
}

TEST_F(Win32MirrorTest, ATextBoxFollowsBothWays) {
  controls::TextBox control(page, "txtHomePageURL", "about:blank");
  const Count edits(control.edited);
  const auto& box = make<win32::TextBoxWindow>(control);

  send(box, EM_SETSEL, 0, -1);
  send(box, WM_CHAR, L'x');
  EXPECT_EQ(control.text(), "x");
  EXPECT_EQ(edits.times, 1);

  control.setText("\xC3\xBCnd");
  EXPECT_EQ(box.text(), L"\x00FCnd");
  EXPECT_EQ(edits.times, 2);
}

TEST_F(Win32MirrorTest, ATextThatTheScreenCannotShowToTheLetterIsKeptByTheControl) {
  controls::TextBox control(page, "txtHomePageURL");
  make<win32::TextBoxWindow>(control);

  control.setText("two\nlines and \xff no text");

  EXPECT_EQ(control.text(), "two\nlines and \xff no text");
}

TEST_F(Win32MirrorTest, APasswordIsNotReadableOnTheScreen) {
  controls::TextBox control(page, "txtPassword", "secret", controls::TextBox::Kind::password);
  const auto& box = make<win32::TextBoxWindow>(control);

  EXPECT_NE(send(box, EM_GETPASSWORDCHAR), 0);
}

TEST_F(Win32MirrorTest, ALabelTakesNoRoomWhileItIsEmpty) {
  controls::Label control(page, "Label13", "");
  const auto& label = make<win32::LabelWindow>(control);
  EXPECT_FALSE(label.isShown());

  control.setCaption("192.0.2.7");

  EXPECT_TRUE(label.isShown());
  EXPECT_EQ(label.text(), L"192.0.2.7");
}

TEST_F(Win32MirrorTest, ALineShowsLineBreaksAsBlanksAndAnAmpersandAsItIs) {
  controls::Label control(page, "lblStatus", "");
  const auto& line = make<win32::LineWindow>(control);

  control.setCaption("\r\nDone  & gone");

  EXPECT_EQ(line.text(), L"Done & gone");
}

TEST_F(Win32MirrorTest, ALinkIsClickedWithMouseAndKeyboard) {
  controls::Label control(page, "lblWebSite", "https://www.zelvane.example/");
  const Count clicks(control.clicked);
  const auto& link = make<win32::LinkWindow>(control);

  send(link, BM_CLICK);
  send(link, WM_KEYDOWN, VK_SPACE);
  send(link, WM_KEYUP, VK_SPACE);

  EXPECT_EQ(clicks.times, 2);
}

TEST_F(Win32MirrorTest, FieldsThatStandBelowEachOtherAreOfOneHeight) {
  controls::TextBox text(page, "txtHours", "2");
  controls::ComboBox choice(page, "cmbDays", {"Monday", "Tuesday"});
  controls::DatePicker day(page, "dtpScheduleDate", controls::DatePicker::Kind::date);
  auto& textWindow = make<win32::TextBoxWindow>(text);
  auto& choiceWindow = make<win32::ComboBoxWindow>(choice);
  auto& dayWindow = make<win32::DatePickerWindow>(day);

  for (const UINT dpi : {192U, 96U}) {
    look.setDpi(dpi);
    window.onLookChanged();

    const int height = textWindow.natural().height;
    EXPECT_EQ(choiceWindow.natural().height, height) << dpi;
    EXPECT_EQ(dayWindow.natural().height, height) << dpi;
  }
}

TEST_F(Win32MirrorTest, APickerFollowsBothWaysAndMayBeEmpty) {
  const platform::LocalTime noon{std::chrono::year{2026} / 11 / 21, 12h};
  controls::DatePicker control(page, "dtpScheduleTime", controls::DatePicker::Kind::time);
  control.setValue(noon);
  const auto& picker = make<win32::DatePickerWindow>(control);
  SYSTEMTIME shown{};
  const auto read = [&] {
    return send(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
  };
  EXPECT_EQ(read(), GDT_VALID);
  EXPECT_EQ(shown.wHour, 12);

  NMDATETIMECHANGE change{};
  change.dwFlags = GDT_VALID;
  change.st = shown;
  change.st.wHour = 8;
  change.st.wMinute = 30;
  change.st.wSecond = 15;
  notify(picker, static_cast<UINT>(DTN_DATETIMECHANGE), change);
  EXPECT_EQ(control.value()->timeOfDay, 8h + 30min + 15s);
  EXPECT_EQ(control.value()->date, noon.date);

  change.dwFlags = GDT_NONE;
  notify(picker, static_cast<UINT>(DTN_DATETIMECHANGE), change);
  EXPECT_EQ(control.value(), std::nullopt);
  EXPECT_EQ(control.shown().timeOfDay, 8h + 30min + 15s);
  EXPECT_EQ(read(), GDT_NONE);

  control.setValue(noon);
  EXPECT_EQ(read(), GDT_VALID);
  EXPECT_EQ(shown.wHour, 12);
}

TEST_F(Win32MirrorTest, PressingIntoAPickerAndClosingItsCalendarAreToldThoughItsValueStays) {
  controls::DatePicker control(page, "dtpScheduleTime", controls::DatePicker::Kind::time);
  control.setValue({{std::chrono::year{2026} / 11 / 21, 12h}});
  const Count clicks(control.clicked);
  const Count closings(control.closedUp);
  const Count edits(control.edited);
  const auto& picker = make<win32::DatePickerWindow>(control);

  send(picker, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 8));
  send(picker, WM_LBUTTONUP, 0, MAKELPARAM(60, 8));
  EXPECT_EQ(clicks.times, 1);

  notify(picker, static_cast<UINT>(DTN_CLOSEUP), NMHDR{});
  EXPECT_EQ(closings.times, 1);
  EXPECT_EQ(edits.times, 0);
}

TEST_F(Win32MirrorTest, TheArrowsInAPickerAreGreyedWithIt) {
  controls::DatePicker control(page, "dtpScheduleTime", controls::DatePicker::Kind::time);
  control.setEnabled(false);
  const auto& picker = make<win32::DatePickerWindow>(control);
  const HWND arrows = FindWindowExW(picker.handle(), nullptr, UPDOWN_CLASSW, nullptr);
  ASSERT_NE(arrows, nullptr);
  EXPECT_FALSE(IsWindowEnabled(arrows));

  control.setEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(arrows));

  control.setEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(arrows));
}

TEST_F(Win32MirrorTest, TheArrowsCountTheirBox) {
  controls::TextBox hours(page, "txtHours", "2");
  controls::UpDown control(page, "udnHours", hours, 0, 23);
  auto& box = make<win32::TextBoxWindow>(hours);
  const auto& arrows = make<win32::UpDownWindow>(control, box);
  NMUPDOWN press{};

  press.iDelta = 1;
  EXPECT_EQ(notify(arrows, static_cast<UINT>(UDN_DELTAPOS), press), TRUE);
  EXPECT_EQ(hours.text(), "3");
  EXPECT_EQ(box.text(), L"3");

  press.iDelta = -1;
  notify(arrows, static_cast<UINT>(UDN_DELTAPOS), press);
  EXPECT_EQ(hours.text(), "2");
}

TEST_F(Win32MirrorTest, TheArrowKeysCountTheBoxAgainAndAgain) {
  controls::TextBox hours(page, "txtHours", "2");
  controls::UpDown control(page, "udnHours", hours, 0, 23);
  auto& box = make<win32::TextBoxWindow>(hours);
  make<win32::UpDownWindow>(control, box);

  for (int press = 0; press < 3; ++press) {
    send(box, WM_KEYDOWN, VK_UP);
    send(box, WM_KEYUP, VK_UP);
  }

  EXPECT_EQ(hours.text(), "5");
}

TEST_F(Win32MirrorTest, AListShowsItsRows) {
  controls::ListView control(page, "vindows", {"Location", "URL"});
  const auto& list = make<win32::ListViewWindow>(control);

  control.add({"1K", {"Home", "https://a.example/"}});
  ASSERT_EQ(send(list, LVM_GETITEMCOUNT), 1);
  wchar_t text[64] = L"";
  LVITEMW item{};
  item.iSubItem = 1;
  item.pszText = text;
  item.cchTextMax = 64;
  send(list, LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_STREQ(text, L"https://a.example/");

  control.clear();
  EXPECT_EQ(send(list, LVM_GETITEMCOUNT), 0);
}

TEST_F(Win32MirrorTest, AProgressBarShowsItsFraction) {
  controls::ProgressBar control(page, "pgb");
  const auto& bar = make<win32::ProgressBarWindow>(control);

  control.setFraction(0.25);

  EXPECT_EQ(send(bar, PBM_GETPOS) * 4, send(bar, PBM_GETRANGE, FALSE));
}

TEST_F(Win32MirrorTest, ADisabledFrameDisablesAllInItAndTouchesNoControl) {
  controls::Frame frame(page, "fmSchedule", "");
  controls::Button control(page, "cmdApply", "&Apply");
  control.placeIn(frame);
  auto& frameWindow = window.make<win32::FrameWindow>(frame);
  const auto& button = frameWindow.make<win32::ButtonWindow>(control);

  frame.setEnabled(false);
  EXPECT_FALSE(isEnabled(button));
  EXPECT_TRUE(control.enabled());

  frame.setEnabled(true);
  EXPECT_TRUE(isEnabled(button));
}

TEST_F(Win32MirrorTest, WhatIsInAMinimisedWindowStaysInItsPlace) {
  controls::Label control(page, "lblStatus", "Ready");
  auto& label = window.make<win32::LabelWindow>(control);
  window.body().add(label);
  window.fit();
  form.setVisible(true);
  const int width = label.area().width;

  form.setState(controls::Form::State::minimised);
  window.layOut();

  EXPECT_GT(width, 0);
  EXPECT_EQ(label.area().width, width);
}

}  // namespace
}  // namespace zelvane::test
