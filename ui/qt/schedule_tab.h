// The page "Schedule": when the cleaning starts by itself.
#pragma once

#include <QWidget>

#include "scheduler/schedule_page.h"

namespace zelvane::qt {

class FrameWidget;

class ScheduleTab : public QWidget {
 public:
  ScheduleTab(scheduler::SchedulePage& page, QWidget& parent);

 private:
  QLayout* makeFields(scheduler::SchedulePage& page, FrameWidget& frame);
  QLayout* makeButtons(scheduler::SchedulePage& page, FrameWidget& frame);
};

}  // namespace zelvane::qt
