#include "ui/win32/mirror/note.h"

#include <algorithm>

#include <commctrl.h>

namespace zelvane::win32 {

namespace {

constexpr int kNarrowest = 84;  // letters to a line

COLORREF between(COLORREF text, COLORREF background) {
  const auto mix = [](int one, int other) { return (one * 68 + other * 32) / 100; };
  return RGB(mix(GetRValue(text), GetRValue(background)),
             mix(GetGValue(text), GetGValue(background)),
             mix(GetBValue(text), GetBValue(background)));
}

}  // namespace

Note::Note(Pane& parent)
    : Window({WC_STATICW, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX}, parent) {}

Size Note::natural() const {
  const Size words = look().textSize(caption(), font(), DT_NOPREFIX);
  const int width = std::min(words.width, look().letters(kNarrowest));
  return {width, heightFor(width)};
}

int Note::heightFor(int width) const {
  return look().textSize(caption(), font(), DT_NOPREFIX, std::max(width, 1)).height;
}

HBRUSH Note::onColours(HDC surface) {
  SetTextColor(surface, between(GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_WINDOW)));
  SetBkColor(surface, GetSysColor(COLOR_WINDOW));
  return GetSysColorBrush(COLOR_WINDOW);
}

Heading::Heading(Font font, Pane& parent)
    : Window({WC_STATICW, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX}, parent) {
  setFont(font);
}

Size Heading::natural() const {
  const Size words = look().textSize(caption(), font(), DT_NOPREFIX);
  return {words.width + look().scaled(4), words.height};
}

}  // namespace zelvane::win32
