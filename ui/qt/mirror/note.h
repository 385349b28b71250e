// A quiet line of explanation below a caption.
#pragma once

#include <QLabel>

namespace zelvane::qt {

// Between the colours of text and background, so that it is read after what it explains, and still
// can be read.
class Note : public QLabel {
 public:
  explicit Note(QWidget& parent);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void dim();
};

}  // namespace zelvane::qt
