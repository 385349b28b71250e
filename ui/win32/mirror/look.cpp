#include "ui/win32/mirror/look.h"

namespace zelvane::win32 {

namespace {

// The screen to measure on, with a font.
class Screen {
 public:
  explicit Screen(HFONT font) : before_(SelectObject(screen_, font)) {}
  ~Screen() {
    SelectObject(screen_, before_);
    ReleaseDC(nullptr, screen_);
  }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  operator HDC() const { return screen_; }

 private:
  HDC screen_ = GetDC(nullptr);
  HGDIOBJ before_;
};

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
  const Screen screen(this->font(font));
  RECT room{0, 0, width, 0};
  const UINT breaks = width == 0 ? 0 : DT_WORDBREAK;
  DrawTextW(screen, text.data(), static_cast<int>(text.size()), &room,
            flags | breaks | DT_CALCRECT | DT_EXPANDTABS);
  return {room.right, room.bottom};
}

}  // namespace zelvane::win32
