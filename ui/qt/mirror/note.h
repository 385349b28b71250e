// A quiet line of explanation below a caption.
#pragma once

#include <QHash>
#include <QLabel>
#include <QString>

namespace zelvane::qt {

// Between the colours of text and background, so that it is read after what it explains, and still
// can be read.
class Note : public QLabel {
 public:
  explicit Note(QWidget& parent);

  // A layout asks again and again for the same few widths, and each answer lays out the text.
  int heightForWidth(int width) const override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void dim();

  mutable QHash<int, int> heights_;  // by width
  mutable QString measured_;         // the text whose heights these are
};

}  // namespace zelvane::qt
