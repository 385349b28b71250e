#include "ui/win32/layouts.h"
#include "ui/win32/mirror/button_window.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

void makeCleanComputerTab(cleaner::CleanerPage& controls, Pane& page) {
  constexpr std::size_t kMyDocuments = 4;
  page.body().setMargins(Gap::large);
  Card& traces = addCard(page.body(), page.look());
  for (const std::size_t index : cleaner::kComputerOrder) {
    addOption(traces, controls.chkSettings[index],
              index == kMyDocuments ? Harm::lasting : Harm::slight, page);
  }
  page.body().addSpace();

  Box& buttons = page.body().addBox(Box::Lie::row, Gap::small);
  buttons.add(page.make<ButtonWindow>(controls.cmdDefaultSettings1));
  buttons.addSpace();
  buttons.add(page.make<ButtonWindow>(controls.Command3));
}

}  // namespace zelvane::win32
