// A field for a date or a time on the screen: a box that says whether there is a value, and the
// value.
#pragma once

#include <QWidget>

#include "core/controls/date_picker.h"

class QCheckBox;
class QDateTimeEdit;

namespace zelvane::qt {

// While the box is empty the field shows what the control shows, greyed. Ticking it chooses that.
class DatePickerWidget : public QWidget {
 public:
  DatePickerWidget(controls::DatePicker& control, QWidget& parent);

  QCheckBox& box() const { return *box_; }
  QDateTimeEdit& field() const { return *field_; }

  // Of the field, what is typed in it, and its calendar.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showControl();
  platform::LocalTime edited() const;

  controls::DatePicker& control_;
  QCheckBox* box_;
  QDateTimeEdit* field_;
};

}  // namespace zelvane::qt
