#include "ui/qt/clean_internet_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/frame_widget.h"

namespace zelvane::qt {

CleanInternetTab::CleanInternetTab(cleaner::CleanerPage& page, QWidget& parent) : QWidget(&parent) {
  using Harm = OptionRow::Harm;
  auto* frame = new FrameWidget(page.fmSettings, *this);
  frame->setAccessibleName("Traces of browsing");

  // The bookmarks stand apart from what is erased every day: set in, on their own.
  auto* favorites = new Card(*frame);
  favorites->add(*new OptionRow(page.chkSettings[8], Harm::lasting, *favorites));
  auto* apart = new QHBoxLayout;
  apart->setContentsMargins(largeGap(*this) * 2, 0, 0, 0);
  apart->addWidget(favorites);

  auto* traces = new Card(*frame);
  for (const std::size_t index : std::initializer_list<std::size_t>{2, 3, 6, 7, 9}) {
    traces->add(*new OptionRow(page.chkSettings[index], Harm::slight, *traces));
  }
  traces->add(*new OptionRow(page.chkWebAddress, Harm::slight, *traces));
  for (const std::size_t index : std::initializer_list<std::size_t>{15, 14}) {
    traces->add(*new OptionRow(page.chkSettings[index], Harm::slight, *traces));
  }

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(new ButtonWidget(page.cmdDefaultSettings, *frame));
  buttons->addStretch();
  buttons->addWidget(new ButtonWidget(page.Command2, *frame));

  frame->body().setSpacing(largeGap(*this));
  frame->body().addLayout(apart);
  frame->body().addWidget(traces);
  frame->body().addStretch();
  frame->body().addLayout(buttons);

  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->addWidget(frame);
}

}  // namespace zelvane::qt
