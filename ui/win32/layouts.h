// The pieces that all pages are laid out with. Sizes follow the font, never pixels.
#pragma once

#include "core/controls/check_box.h"
#include "core/controls/label.h"
#include "ui/win32/mirror/layout.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

enum class Harm { slight, lasting };

// A card below what `body` holds already.
Card& addCard(Box& body, const Look& look, Fit fit = {});

// A row of a card, with the usual margins.
Box& addCardRow(Card& card, Box::Lie lie, Gap between);

// A check box with its description readable below it, as a row of the card. One whose harm cannot
// be undone has a sign. The windows are made in `pane`.
void addOption(Card& card, controls::CheckBox& control, Harm harm, Pane& pane);

}  // namespace zelvane::win32
