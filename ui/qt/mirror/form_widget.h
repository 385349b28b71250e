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

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void showControl();

  controls::Form& control_;
};

}  // namespace zelvane::qt
