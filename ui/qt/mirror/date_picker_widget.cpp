#include "ui/qt/mirror/date_picker_widget.h"

#include <QCheckBox>
#include <QChildEvent>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QTimeEdit>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

using Kind = controls::DatePicker::Kind;

QDate toDate(std::chrono::year_month_day date) {
  return {int(date.year()), int(unsigned(date.month())), int(unsigned(date.day()))};
}

std::chrono::year_month_day fromDate(QDate date) {
  return std::chrono::year(date.year()) / date.month() / date.day();
}

QTime toTime(std::chrono::seconds sinceMidnight) {
  return QTime(0, 0).addSecs(static_cast<int>(sinceMidnight.count()));
}

QDateTimeEdit* makeField(Kind kind, QWidget& parent) {
  if (kind == Kind::time) {
    auto* time = new QTimeEdit(&parent);
    time->setDisplayFormat("HH:mm:ss");
    return time;
  }
  auto* date = new QDateEdit(&parent);
  date->setCalendarPopup(true);
  // The short form of some languages leaves out the century.
  date->setDisplayFormat(
      QLocale().dateFormat(QLocale::ShortFormat).replace("yyyy", "yy").replace("yy", "yyyy"));
  return date;
}

}  // namespace

DatePickerWidget::DatePickerWidget(controls::DatePicker& control, QWidget& parent)
    : QWidget(&parent),
      control_(control),
      box_(new QCheckBox(this)),
      field_(makeField(control.kind(), *this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(box_);
  row->addWidget(field_, 1);
  setFocusProxy(box_);

  field_->installEventFilter(this);
  field_->findChild<QLineEdit*>()->installEventFilter(this);
  mirrorControl(control, *this);
  follow(control, *this, [this] { showControl(); });
  connect(box_, &QCheckBox::toggled, this, [this](bool chosen) {
    control_.setValue(chosen ? std::optional(edited()) : std::nullopt);
  });
  connect(field_, &QDateTimeEdit::dateTimeChanged, this, [this] {
    if (box_->isChecked()) {
      control_.setValue(edited());
    }
  });
}

bool DatePickerWidget::eventFilter(QObject* watched, QEvent* event) {
  const bool isCalendar = watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow();
  if (event->type() == QEvent::ChildPolished && watched == field_) {
    // The calendar is made when it is opened first.
    static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
  } else if (event->type() == QEvent::MouseButtonPress && !isCalendar) {
    control_.click();
  } else if (event->type() == QEvent::Hide && isCalendar) {
    control_.closeUp();
  }
  return QWidget::eventFilter(watched, event);
}

void DatePickerWidget::showControl() {
  const QSignalBlocker silentBox(box_);
  const QSignalBlocker silentField(field_);
  box_->setChecked(control_.value().has_value());
  field_->setEnabled(control_.value().has_value());
  // A control that was never given a day has none that a calendar could show.
  const QDate date = toDate(control_.shown().date);
  field_->setDate(date.isValid() ? date : QDate::currentDate());
  field_->setTime(toTime(control_.shown().timeOfDay));
}

platform::LocalTime DatePickerWidget::edited() const {
  platform::LocalTime edited = control_.shown();
  if (control_.kind() == Kind::date || !edited.date.ok()) {
    edited.date = fromDate(field_->date());
  }
  if (control_.kind() == Kind::time) {
    edited.timeOfDay = std::chrono::seconds(QTime(0, 0).secsTo(field_->time()));
  }
  return edited;
}

}  // namespace zelvane::qt
