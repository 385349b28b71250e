// A field for a date or a time on the screen, with a box in it that says whether there is a value.
#pragma once

#include "core/controls/date_picker.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// While the box is empty the field shows what the control shows, greyed. Ticking it chooses that.
class DatePickerWindow : public Window {
 public:
  DatePickerWindow(controls::DatePicker& control, Pane& parent);

  Size natural() const override;
  std::optional<LRESULT> onNotify(const NMHDR& notice) override;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void showControl();
  void greyParts() const;
  platform::LocalTime edited(const SYSTEMTIME& field) const;

  controls::DatePicker& control_;
};

}  // namespace zelvane::win32
