#include "ui/win32/mirror/look.h"

namespace zelvane::win32 {

namespace {

LOGFONTW messageFont(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  return metrics.lfMessageFont;
}

HFONT derived(LOGFONTW font, int percent, LONG weight) {
  font.lfHeight = MulDiv(font.lfHeight, percent, 100);
  font.lfWeight = weight;
  return CreateFontIndirectW(&font);
}

}  // namespace

int brightness(COLORREF colour) {
  return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

void Look::setDpi(UINT dpi) {
  dpi_ = dpi;
  const LOGFONTW font = messageFont(dpi);
  LOGFONTW link = font;
  link.lfUnderline = TRUE;
  fonts_ = {OwnedFont(CreateFontIndirectW(&font)), OwnedFont(derived(font, 100, FW_BOLD)),
            OwnedFont(derived(font, 115, FW_BOLD)), OwnedFont(derived(font, 150, FW_BOLD)),
            OwnedFont(CreateFontIndirectW(&link))};
  sizes_.clear();
  const std::wstring letters = L"abcdefghijklmnopqrstuvwxyz";
  const Size alphabet = textSize(letters, Font::normal);
  lineHeight_ = alphabet.height;
  letterWidth_ = (alphabet.width + 13) / static_cast<int>(letters.size());
  indent_ = scaled(14) + textSize(L"0", Font::normal).width / 2;
}

// The system puts a text at the top of its room, so that the room is no higher than looks well.
int Look::fieldHeight() const {
  return lineHeight_ + 2 * GetSystemMetricsForDpi(SM_CYEDGE, dpi_) + scaled(4);
}

int Look::length(Gap gap) const {
  const int line = lineHeight_;
  switch (gap) {
    case Gap::none:
      return 0;
    case Gap::tiny:
      return scaled(2);
    case Gap::small:
      return line / 2;
    case Gap::large:
      return line;
    case Gap::wide:
      return line * 3;
    case Gap::indent:
      return indent_;
  }
  return 0;
}

Size Look::textSize(const std::wstring& text, Font font, UINT flags, int width) const {
  constexpr std::size_t kMany = 1000;  // more than one layout asks
  const Question question(text, font, flags, width);
  const auto known = sizes_.find(question);
  if (known != sizes_.end()) {
    return known->second;
  }
  if (sizes_.size() == kMany) {
    sizes_.clear();
  }
  return sizes_.emplace(question, measured(question)).first->second;
}

Size Look::measured(const Question& question) const {
  const auto& [text, font, flags, width] = question;
  const HGDIOBJ before = SelectObject(surface_.get(), this->font(font));
  RECT room{0, 0, width, 0};
  const UINT breaks = width == 0 ? 0 : DT_WORDBREAK;
  DrawTextW(surface_.get(), text.data(), static_cast<int>(text.size()), &room,
            flags | breaks | DT_CALCRECT | DT_EXPANDTABS);
  SelectObject(surface_.get(), before);
  return {room.right, room.bottom};
}

}  // namespace zelvane::win32
