// The fonts and lengths that everything on the screen is made with, at the resolution of the
// monitor that shows it.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include <windows.h>

namespace zelvane::win32 {

// In pixels, as every length here.
struct Size {
  int width = 0;
  int height = 0;
};

struct Area {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const Area&, const Area&) = default;
};

// As the eye weighs the colours: 0 for black, 255 for white.
int brightness(COLORREF colour);

enum class Font { normal, bold, strong, title, link };

// A space between things: hardly any; between those that belong together; between those that do
// not; between columns of a page; and as wide as the square of a check box with what follows it.
enum class Gap { none, tiny, small, large, wide, indent };

class Look {
 public:
  // For so many dots per inch; 96 is a pixel to a unit.
  explicit Look(UINT dpi = USER_DEFAULT_SCREEN_DPI) { setDpi(dpi); }

  // Makes the fonts anew, as the user's settings want them now. Who shows texts takes them again.
  void setDpi(UINT dpi);
  UINT dpi() const { return dpi_; }

  HFONT font(Font font) const { return fonts_[static_cast<std::size_t>(font)].get(); }
  int lineHeight() const { return lineHeight_; }

  int scaled(int at96Dpi) const { return MulDiv(at96Dpi, static_cast<int>(dpi_), 96); }
  int length(Gap gap) const;

  // Of a box for one line: a text, a day, a choice. They stand below each other.
  int fieldHeight() const;

  // What a text takes that is drawn with `flags` of DrawText; with line breaks at words where it is
  // wider than `width`, unless that is 0. Layouts ask again and again for the same few, so what was
  // measured is kept.
  Size textSize(const std::wstring& text, Font font, UINT flags = 0, int width = 0) const;

  // As wide as so many ordinary letters.
  int letters(int count) const { return count * letterWidth_; }

 private:
  struct DeleteFont {
    void operator()(HFONT font) const { DeleteObject(font); }
  };
  using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteFont>;
  struct DeleteSurface {
    void operator()(HDC surface) const { DeleteDC(surface); }
  };
  using OwnedSurface = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteSurface>;

  using Question = std::tuple<std::wstring, Font, UINT, int>;

  Size measured(const Question& question) const;

  // To measure on. The screen itself would have to be asked for, and given back, for every text.
  OwnedSurface surface_{CreateCompatibleDC(nullptr)};
  UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
  std::array<OwnedFont, 5> fonts_;
  int lineHeight_ = 0;
  int letterWidth_ = 0;
  int indent_ = 0;
  mutable std::map<Question, Size> sizes_;
};

}  // namespace zelvane::win32
