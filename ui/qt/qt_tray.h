// The program's icon in the notification area of a Linux desktop.
#pragma once

#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QWidget>
#include <memory>
#include <optional>

#include "platform/tray.h"
#include "ui/qt/embedding_tray.h"
#include "ui/qt/notifier_host.h"

namespace zelvane::qt {

// Panels show icons in two ways: as status notifier items, which they draw themselves, with their
// menus, or as little windows that they embed. The toolkit knows both, but settles on one at its
// first use, for as long as the program runs, and on the second also where there is neither. So
// that first use waits until there is a panel. From then on a panel may go and come back.
class QtTray : public platform::Tray {
 public:
  // From then on the icon belongs to this window, and `menu` is one that can be shown; panels that
  // draw menus draw that.
  void attach(QWidget& window, QMenu& menu);

  std::uint32_t windowHandle(const std::string& formName) const override;
  std::uint32_t iconHandle(const std::string& controlName) const override;
  bool add(const platform::NotificationRecord& record) override;
  bool modify(const platform::NotificationRecord& record) override;
  bool remove(const platform::NotificationRecord& record) override;
  bool isShown() const override { return shown_; }
  void showMenu(const std::string& menuName) override;
  void whenUsed(std::function<void(int mouseMessage)> used) override { used_ = std::move(used); }
  void whenLost(std::function<void()> lost) override { lost_ = std::move(lost); }

 private:
  enum class Kind { notifier, embedded };

  void lookForPanels();
  void follow();
  void settle();
  void learnKind();
  bool hasPlace() const;
  void showRecord();
  void report(QSystemTrayIcon::ActivationReason reason) const;

  QPointer<QWidget> window_;
  QPointer<QMenu> menu_;
  std::function<void(int)> used_ = [](int) {};
  std::function<void()> lost_ = [] {};
  std::optional<platform::NotificationRecord> record_;  // of the icon that there is
  bool shown_ = false;
  std::optional<Kind> kind_;  // on which the toolkit has settled
  std::unique_ptr<QSystemTrayIcon> icon_;
  std::unique_ptr<NotifierHost> notifierHost_;  // these two from the first icon on
  std::unique_ptr<EmbeddingTray> embeddingTray_;
};

}  // namespace zelvane::qt
