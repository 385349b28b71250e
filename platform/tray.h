// The place on the desktop where programs that are out of the way show an icon.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/notification_record.h"
#include "platform/port.h"

namespace zelvane::platform {

// Holds the program's one icon. Nothing here throws: an icon that cannot be shown leaves the
// program as it was.
class Tray : public Port {
 public:
  // What the user does with the icon, by the numbers of the mouse messages.
  static constexpr int kLeftPressed = 513;
  static constexpr int kLeftDoubleClicked = 515;
  static constexpr int kRightReleased = 517;
  static constexpr int kMiddleReleased = 520;

  // The handles that go into a record: of the form of that name, and of a picture: a form's icon,
  // or what the picture of that name shows. 0 where there is none.
  virtual std::uint32_t windowHandle(const std::string& formName) const = 0;
  virtual std::uint32_t iconHandle(const std::string& controlName) const = 0;

  // Shows the icon of the record: now, or else as soon as the desktop has a place for it, and again
  // whenever such a place comes back. False, and nothing changes, while there is an icon already.
  virtual bool add(const NotificationRecord& record) = 0;

  // Gives the icon the picture and the tip of the record. False where that icon is not there.
  virtual bool modify(const NotificationRecord& record) = 0;

  // Takes the icon away; of the record, window and identifier count. False where it is not there.
  virtual bool remove(const NotificationRecord& record) = 0;

  // Whether the user sees the icon now.
  virtual bool isShown() const = 0;

  // Opens the menu of that name at the pointer. The menu's items are clicked by whoever chooses
  // one. An unknown name does nothing.
  virtual void showMenu(const std::string& menuName) = 0;

  // Called with the number of each mouse message to the icon. A desktop that knows but one way of
  // using an icon reports a double click.
  virtual void whenUsed(std::function<void(int mouseMessage)> used) = 0;

  // Called when an icon that was shown is not any more, though nobody has removed it.
  virtual void whenLost(std::function<void()> lost) = 0;
};

}  // namespace zelvane::platform
