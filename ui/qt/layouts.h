// The pieces that all pages are laid out with. Sizes follow the font, never pixels.
#pragma once

#include <QFrame>
#include <QVBoxLayout>
#include <QWidget>

#include "core/controls/check_box.h"

class QLabel;
class QScrollArea;

namespace zelvane::qt {

// A space between things that belong together, and one between things that do not.
int smallGap(const QWidget& widget);
int largeGap(const QWidget& widget);

// The margins of a page. A window too low for its pages lets them scroll.
QScrollArea* scrollable(QWidget& page);
void setPageMargins(QLayout& layout, const QWidget& page);

// A short heading above a group.
QLabel* heading(const QString& text, QWidget& parent);

// A bordered area of the colour that texts are typed on, which holds a group together.
class Card : public QFrame {
 public:
  explicit Card(QWidget& parent);

  // Adds a row below the others.
  void add(QWidget& row);
  void add(QLayout& row);

 private:
  void separate();

  QVBoxLayout* rows_;
};

// A check box with its description readable below it. One whose harm cannot be undone has a sign.
class OptionRow : public QWidget {
 public:
  enum class Harm { slight, lasting };

  OptionRow(controls::CheckBox& control, Harm harm, QWidget& parent);
};

}  // namespace zelvane::qt
