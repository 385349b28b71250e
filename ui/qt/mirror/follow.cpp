#include "ui/qt/mirror/follow.h"

#include <QPointer>
#include <QWidget>
#include <utility>

namespace zelvane::qt {

namespace {

bool always() { return true; }

void describe(const controls::Control& control, QWidget& widget) {
  const QString description = QString::fromStdString(control.description());
  if (widget.toolTip() != description) {
    widget.setToolTip(description);
    widget.setAccessibleDescription(description);
  }
  if (widget.accessibleName().isEmpty()) {
    widget.setAccessibleName(description.endsWith('.') ? description.chopped(1) : description);
  }
}

}  // namespace

void follow(controls::Control& control, QObject& widget, std::function<void()> show) {
  show();
  control.changed.connect([alive = QPointer<QObject>(&widget), show = std::move(show)] {
    if (alive) {
      show();
    }
  });
}

void mirrorControl(controls::Control& control, QWidget& widget) {
  mirrorControl(control, widget, always);
}

void mirrorControl(controls::Control& control, QWidget& widget,
                   std::function<bool()> worthShowing) {
  Q_ASSERT(widget.parentWidget() != nullptr);
  widget.setObjectName(QString::fromStdString(control.name()));
  follow(control, widget, [&control, &widget, worthShowing = std::move(worthShowing)] {
    describe(control, widget);
    widget.setEnabled(control.enabled());
    const bool shown = control.visible() && worthShowing();
    // Hidden is another thing than not visible: a widget on a page at the back is not hidden.
    if (widget.isHidden() == shown || !widget.testAttribute(Qt::WA_WState_ExplicitShowHide)) {
      widget.setVisible(shown);
    }
  });
}

void mirrorCaptioned(controls::CaptionedControl& control, QWidget& widget) {
  mirrorCaptioned(control, widget, always);
}

void mirrorCaptioned(controls::CaptionedControl& control, QWidget& widget,
                     std::function<bool()> worthShowing) {
  follow(control, widget, [&control, &widget] {
    const QString caption = plainCaption(control.caption());
    if (!caption.isEmpty() && widget.accessibleName() != caption) {
      widget.setAccessibleName(caption);
    }
  });
  mirrorControl(control, widget, std::move(worthShowing));
}

QString plainCaption(const std::string& caption) {
  std::string plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) {
      break;
    }
    plain += caption[at];
  }
  return QString::fromStdString(plain).replace("\r\n", "\n");
}

}  // namespace zelvane::qt
