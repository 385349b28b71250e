// A window of the system's that belongs to one object of ours: the face of a control, or what holds
// such faces together.
//
// Most windows stand on pages that are not in front when the program starts, and each costs the
// system more than all that is known about it costs us. So an object can be there before the system
// has made its window: it has its caption, its state and its place already, from which a layout
// reckons, and the window comes into the world with them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

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
    int width = 0;  // until it is placed
  };

  enum class Making { now, later };

  // A window in another one, which outlives it. It is made now, unless the one above is still to be
  // made itself: then it is made with that. Throws where the system refuses.
  Window(const Make& make, Window& above, Making making = Making::now);
  // A window by itself, in none of ours; before `owner`, if that is not null. `look` outlives it.
  Window(const Make& make, HWND owner, Look& look);
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  // The object that a handle belongs to; null for a foreign one, and after the end.
  static Window* of(HWND handle);

  // The window of the control of that name in or below `above`, made if it was not; null where
  // there is none.
  static Window* find(HWND above, const std::string& controlName);

  // Null before it is made.
  HWND handle() const { return handle_; }
  bool isMade() const { return handle_ != nullptr; }
  Look& look() const { return look_; }

  // Makes it and all below it, in their order, where the system has not yet. The one above is made.
  void makeWindow();

  // Runs `act` as soon as it and those below it are made: at once where they are.
  void whenMade(std::function<void()> act);

  // Runs `act` once everything that is seen first is on the screen: for what screen readers and
  // tips are to say. At once where that is so already.
  void whenSettled(std::function<void()> act);

  // It is: runs what waited for that.
  void settle();

  // Calls `visitor` with this and each window below it, in their order.
  virtual void visit(const std::function<void(Window&)>& visitor) { visitor(*this); }

  // The one that it lies in; null for a window by itself.
  Window* above() const { return above_; }

  // The lowest window that the system knows, of this and those above it. It lives as long as this
  // does, or shorter.
  const Window& nearestMade() const { return isMade() ? *this : above_->nearestMade(); }

  // The control whose face this is, or null.
  const controls::Control* control() const { return control_; }
  void setControl(const controls::Control& control);

  // Tells other programs (a test, say) the name of its control, if it has one. It comes last of
  // what waits for the first windows to be on the screen.
  void showControlName();

  // The number by which the system, and whoever looks from outside, knows it.
  void setNumber(int number);

  // What it takes to be seen whole, and how high it then is at that width.
  virtual Size natural() const { return {}; }
  virtual int heightFor(int /*width*/) const { return natural().height; }
  virtual void place(const Area& area);
  const Area& area() const { return place_; }

  DWORD style() const;
  void setStyle(DWORD bits, bool on);

  // Not hidden, or disabled, itself, whatever is around it.
  bool isShown() const { return (style() & WS_VISIBLE) != 0; }
  void setShown(bool shown);
  bool isUsable() const { return (style() & WS_DISABLED) == 0; }
  void setUsable(bool usable);

  // The same as setShown, where that gives or takes nothing any room.
  void appear(bool shown);

  // Says that something may need another place. The whole window is laid out soon.
  virtual void askForLayout();

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
  virtual void setTip(HWND tool, const std::wstring& text);

 protected:
  virtual LRESULT onMessage(UINT message, WPARAM word, LPARAM value);

  virtual void makeBelow() {}

  // Whether what is seen first is on the screen.
  virtual bool isSettled() const { return above_ == nullptr || above_->isSettled(); }

  // The window is not counted on any more.
  void destroy();

 private:
  void makeHandle(HWND parent);
  void passKeysOn();

  static LRESULT CALLBACK deliver(HWND handle, UINT message, WPARAM word, LPARAM value);

  Make make_;
  Window* above_ = nullptr;
  HWND handle_ = nullptr;
  WNDPROC ofClass_ = nullptr;  // what its class does with messages
  Look& look_;
  int number_ = 0;
  Font font_ = Font::normal;
  Area place_;
  std::wstring caption_;
  const controls::Control* control_ = nullptr;
  std::vector<std::function<void()>> whenMade_;
  std::vector<std::function<void()>> whenSettled_;
};

// The class of windows that the program paints itself.
extern const wchar_t* const kPaneClass;

}  // namespace zelvane::win32
