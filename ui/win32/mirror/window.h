// A window of the system's that belongs to one object of ours: the face of a control, or what holds
// such faces together.
#pragma once

#include <optional>
#include <string>

#include <windows.h>

#include "core/controls/control.h"
#include "ui/win32/mirror/look.h"

namespace zelvane::win32 {

class Window {
 public:
  // What the system makes the window from.
  struct Make {
    const wchar_t* className;
    DWORD style;
    DWORD extendedStyle = 0;
  };

  // The handle is the system's name for the window above it. `look` outlives this. Throws where the
  // system refuses.
  Window(const Make& make, HWND parent, Look& look);
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  // The object that a handle belongs to; null for a foreign one, and after the end.
  static Window* of(HWND handle);

  // The window of the control of that name in or below `above`; null where there is none.
  static Window* find(HWND above, const std::string& controlName);

  HWND handle() const { return handle_; }
  Look& look() const { return look_; }

  // The control whose face this is, or null.
  const controls::Control* control() const { return control_; }
  void setControl(const controls::Control& control);

  // What it takes to be seen whole, and how high it then is at that width.
  virtual Size natural() const { return {}; }
  virtual int heightFor(int /*width*/) const { return natural().height; }
  virtual void place(const Area& area);

  // Not hidden itself, whatever is around it.
  bool isShown() const { return (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_VISIBLE) != 0; }
  void setShown(bool shown);
  void setUsable(bool usable);

  // Says that something may need another place. The whole window is laid out soon.
  void askForLayout() const;

  // What the window holds, also what the user typed; and what was set last.
  std::wstring text() const;
  const std::wstring& caption() const { return caption_; }
  void setCaption(const std::wstring& caption);
  void setFont(Font font);
  Font font() const { return font_; }

  // What the window tells its parent, which hands it back: the code of a WM_COMMAND, a WM_NOTIFY
  // with its answer, the question for the colours, and the wish to be drawn.
  virtual void onCommand(WORD /*code*/) {}
  virtual std::optional<LRESULT> onNotify(const NMHDR& /*notice*/) { return std::nullopt; }
  virtual HBRUSH onColours(HDC /*surface*/) { return nullptr; }
  virtual void onDraw(const DRAWITEMSTRUCT& /*drawing*/) {}

  // The fonts, and lengths with them, are others.
  virtual void onLookChanged();

  // Something below got the keys; it should be seen.
  virtual void onFocusBelow(HWND /*below*/) {}

  // Shows `text` while the pointer rests on the window `tool`; no text, nothing.
  virtual void setTip(HWND /*tool*/, const std::wstring& /*text*/) {}

  // The message that asks a top window to lay itself out.
  static constexpr UINT kLayoutMessage = WM_APP + 1;

 protected:
  virtual LRESULT onMessage(UINT message, WPARAM word, LPARAM value);

  // The window is not counted on any more.
  void destroy();

 private:
  void passKeysOn();

  static LRESULT CALLBACK deliver(HWND handle, UINT message, WPARAM word, LPARAM value, UINT_PTR id,
                                  DWORD_PTR object);

  HWND handle_ = nullptr;
  Look& look_;
  Font font_ = Font::normal;
  Area place_;
  std::wstring caption_;
  const controls::Control* control_ = nullptr;
};

// The class of windows that the program paints itself.
extern const wchar_t* const kPaneClass;

}  // namespace zelvane::win32
