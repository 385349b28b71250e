#include "ui/qt/clean_computer_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"

namespace zelvane::qt {

CleanComputerTab::CleanComputerTab(cleaner::CleanerPage& page, QWidget& parent) : QWidget(&parent) {
  constexpr std::size_t kMyDocuments = 4;
  auto* traces = new Card(*this);
  for (const std::size_t index : cleaner::kComputerOrder) {
    traces->add(*new OptionRow(
        page.chkSettings[index],
        index == kMyDocuments ? OptionRow::Harm::lasting : OptionRow::Harm::slight, *traces));
  }

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(new ButtonWidget(page.cmdDefaultSettings1, *this));
  buttons->addStretch();
  buttons->addWidget(new ButtonWidget(page.Command3, *this));

  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->setSpacing(largeGap(*this));
  column->addWidget(traces);
  column->addStretch();
  column->addLayout(buttons);
}

}  // namespace zelvane::qt
