#include "ui/win32/layouts.h"

#include <memory>
#include <utility>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/check_box_window.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/note.h"
#include "ui/win32/mirror/picture_window.h"

namespace zelvane::win32 {

Card& addCard(Box& body, const Look& look, Fit fit) {
  auto card = std::make_unique<Card>(look);
  Card& added = *card;
  body.add(std::move(card), fit);
  return added;
}

Box& addCardRow(Card& card, Box::Lie lie, Gap between) {
  Box& row = card.addBox(lie, between);
  row.setMargins(Gap::large, Gap::small, Gap::large, Gap::small);
  return row;
}

void addOption(Card& card, controls::CheckBox& control, Harm harm, Pane& pane) {
  constexpr int kSignSide = 16;
  Box& row = addCardRow(card, Box::Lie::row, Gap::small);
  Box& texts = row.addBox(Box::Lie::column, Gap::none, {.grows = true});
  texts.add(pane.make<CheckBoxWindow>(control), {.across = Across::start});
  auto& note = pane.make<Note>();
  Box& below = texts.addBox(Box::Lie::row, Gap::none);
  below.setMargins(Gap::indent, Gap::none, Gap::none, Gap::none);
  below.add(note, {.grows = true});
  if (harm == Harm::lasting) {
    row.add(pane.make<IconWindow>(L"warning", kSignSide), {.across = Across::centre});
  }
  follow(control, note, [&control, &note] {
    note.setCaption(platform::wideText(control.description()));
    note.setShown(!control.description().empty());
  });
}

}  // namespace zelvane::win32
