// The About box on the screen.
#pragma once

#include <QDialog>
#include <QPointer>
#include <optional>

#include "about/about_page.h"
#include "core/controls/open_boxes.h"

namespace zelvane::qt {

// A dialog that is seen while the form is visible; meanwhile nothing else of the program can be
// used. It belongs to the window, unless that is out of sight and would take it along.
class AboutBox : public QObject {
 public:
  // `window` shows `form`, the program's own.
  AboutBox(about::AboutPage& page, controls::OpenBoxes& boxes, const controls::Form& form,
           QWidget& window);
  ~AboutBox() override;

 private:
  void make();
  void open();
  void close();

  about::AboutPage& page_;
  controls::OpenBoxes& boxes_;
  const controls::Form& form_;
  QWidget& window_;
  QPointer<QDialog> dialog_;  // made when it is first shown, and then kept
  std::optional<controls::OpenBoxes::Opening> opening_;
};

}  // namespace zelvane::qt
