#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/check_box_window.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/list_view_window.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

void makePopupKillerTab(popupkiller::PopupPage& controls, Pane& page) {
  page.body().setMargins(Gap::large);
  auto& frame = page.make<FrameWindow>(controls.Frame1);
  page.body().add(frame, {.grows = true});

  frame.body().add(frame.make<CheckBoxWindow>(controls.chkPopupKillerActivate),
                   {.across = Across::start});
  frame.body().add(frame.make<ListViewWindow>(controls.vindows), {.grows = true});
  Box& sound = frame.body().addBox(Box::Lie::row, Gap::small);
  sound.add(frame.make<ButtonWindow>(controls.Command1));
  sound.add(frame.make<LineWindow>(controls.Label14), {.grows = true});

  page.body().add(page.make<LinkWindow>(controls.Label9), {.across = Across::end});
}

}  // namespace zelvane::win32
