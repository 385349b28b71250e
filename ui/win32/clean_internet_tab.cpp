#include <initializer_list>

#include "ui/win32/layouts.h"
#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/spoken_name.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

void makeCleanInternetTab(cleaner::CleanerPage& controls, Pane& page) {
  page.body().setMargins(Gap::large);
  auto& frame = page.make<FrameWindow>(controls.fmSettings);
  setSpokenName(frame, L"Traces of browsing");
  page.body().add(frame, {.grows = true});

  // The bookmarks stand apart from what is erased every day: set in, on their own.
  Box& apart = frame.body().addBox(Box::Lie::row, Gap::none);
  apart.setMargins(Gap::wide, Gap::none, Gap::none, Gap::none);
  Card& favorites = addCard(apart, page.look(), {.grows = true});
  addOption(favorites, controls.chkSettings[8], Harm::lasting, frame);

  Card& traces = addCard(frame.body(), page.look());
  for (const std::size_t index : std::initializer_list<std::size_t>{2, 3, 6, 7, 9}) {
    addOption(traces, controls.chkSettings[index], Harm::slight, frame);
  }
  addOption(traces, controls.chkWebAddress, Harm::slight, frame);
  for (const std::size_t index : std::initializer_list<std::size_t>{15, 14}) {
    addOption(traces, controls.chkSettings[index], Harm::slight, frame);
  }
  frame.body().addSpace();

  Box& buttons = frame.body().addBox(Box::Lie::row, Gap::small);
  buttons.add(frame.make<ButtonWindow>(controls.cmdDefaultSettings));
  buttons.addSpace();
  buttons.add(frame.make<ButtonWindow>(controls.Command2));
}

}  // namespace zelvane::win32
