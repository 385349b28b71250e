// What the program asks of its window.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/window_commands.h"

namespace zelvane::qt {

class QtWindowCommands : public platform::WindowCommands {
 public:
  // Until there is a window, every command does nothing.
  void attach(QWidget& window) { window_ = &window; }

  void bringForward() override;
  void activate() override;
  void focus(const std::string& controlName) override;
  void repaint(const std::string& controlName) override;

 private:
  QWidget* find(const std::string& controlName) const;

  QPointer<QWidget> window_;
};

}  // namespace zelvane::qt
