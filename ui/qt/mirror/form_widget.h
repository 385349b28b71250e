// A window on the screen.
#pragma once

#include <QMainWindow>

#include "core/controls/form.h"

namespace zelvane::qt {

// Caption, visible and minimised go both ways. The close box asks the form to unload, and the
// window stays if the form does. Of the toolkit's windows it is the kind that tells a screen reader
// so.
class FormWidget : public QMainWindow {
 public:
  FormWidget(controls::Form& control, QWidget* parent, Qt::WindowFlags flags);

  // The toolkit tells the display when it minimises a window, so that it stays so when it is shown
  // anew, and does not when somebody else restores it meanwhile.
  void setVisible(bool visible) override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // A window that is minimised and then hidden in one go is only hidden: it is minimised when the
  // program has said all. The desktop's late answer to the first would meet a window that is shown
  // again, and minimise it.
  void showControl();
  void showState();
  void keepActive();
  bool isToBeMinimised() const;

  controls::Form& control_;
};

}  // namespace zelvane::qt
