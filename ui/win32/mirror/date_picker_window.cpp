#include "ui/win32/mirror/date_picker_window.h"

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

using Kind = controls::DatePicker::Kind;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

DWORD formOf(Kind kind) {
  return kind == Kind::time ? DTS_TIMEFORMAT | DTS_UPDOWN : DTS_SHORTDATECENTURYFORMAT;
}

WORD word(long long number) { return static_cast<WORD>(number); }

// A control that was never given a day has none that a calendar could show.
SYSTEMTIME fieldOf(const platform::LocalTime& time) {
  SYSTEMTIME field{};
  GetLocalTime(&field);
  if (time.date.ok()) {
    field.wYear = word(int(time.date.year()));
    field.wMonth = word(unsigned(time.date.month()));
    field.wDay = word(unsigned(time.date.day()));
  }
  const std::chrono::hh_mm_ss parts(time.timeOfDay);
  field.wHour = word(parts.hours().count());
  field.wMinute = word(parts.minutes().count());
  field.wSecond = word(parts.seconds().count());
  field.wMilliseconds = 0;
  return field;
}

}  // namespace

DatePickerWindow::DatePickerWindow(controls::DatePicker& control, Pane& parent)
    : Window({DATETIMEPICK_CLASSW,
              WS_CHILD | WS_VISIBLE | WS_TABSTOP | DTS_SHOWNONE | formOf(control.kind())},
             parent),
      control_(control) {
  if (control.kind() == Kind::time) {
    whenMade([this] {
      SendMessageW(handle(), DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(L"HH:mm:ss"));
      greyParts();
    });
  }
  mirrorControl(control, *this);
  followOnceMade(control, *this, [this] { showControl(); });
}

void DatePickerWindow::showControl() {
  SYSTEMTIME field = fieldOf(control_.shown());
  SendMessageW(handle(), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&field));
  if (!control_.value()) {
    SendMessageW(handle(), DTM_SETSYSTEMTIME, GDT_NONE, reinterpret_cast<LPARAM>(&field));
  }
}

// The arrows, and on some systems the box, are windows of their own, which may not grey by
// themselves.
void DatePickerWindow::greyParts() const {
  for (HWND part = GetWindow(handle(), GW_CHILD); part != nullptr;
       part = GetWindow(part, GW_HWNDNEXT)) {
    EnableWindow(part, isUsable() ? TRUE : FALSE);
  }
}

platform::LocalTime DatePickerWindow::edited(const SYSTEMTIME& field) const {
  platform::LocalTime edited = control_.shown();
  if (control_.kind() == Kind::date || !edited.date.ok()) {
    edited.date = std::chrono::year(field.wYear) / std::chrono::month(field.wMonth) /
                  std::chrono::day(field.wDay);
  }
  if (control_.kind() == Kind::time) {
    edited.timeOfDay = hours(field.wHour) + minutes(field.wMinute) + seconds(field.wSecond);
  }
  return edited;
}

Size DatePickerWindow::natural() const {
  return {look().letters(16) + GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()) * 2,
          look().fieldHeight()};
}

LRESULT DatePickerWindow::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_LBUTTONDOWN) {
    control_.click();
  }
  if (message == WM_ENABLE) {
    greyParts();
  }
  return Window::onMessage(message, word, value);
}

std::optional<LRESULT> DatePickerWindow::onNotify(const NMHDR& notice) {
  if (notice.code == static_cast<UINT>(DTN_CLOSEUP)) {
    control_.closeUp();
    return 0;
  }
  if (notice.code != static_cast<UINT>(DTN_DATETIMECHANGE)) {
    return std::nullopt;
  }
  const auto& change = reinterpret_cast<const NMDATETIMECHANGE&>(notice);
  control_.setValue(change.dwFlags == GDT_VALID ? std::optional(edited(change.st)) : std::nullopt);
  return 0;
}

}  // namespace zelvane::win32
