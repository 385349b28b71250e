// Whether a panel of an X11 desktop embeds the windows of programs as icons.
#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <functional>

namespace zelvane::qt {

// Source: the System Tray Protocol Specification of freedesktop.org. The panel owns a selection of
// its screen, and tells all programs when it takes it.
class EmbeddingTray : public QAbstractNativeEventFilter {
 public:
  // Looks at once. `changed` is called whenever the answer is another one.
  explicit EmbeddingTray(std::function<void()> changed);
  ~EmbeddingTray() override;

  bool isThere() const { return panel_ != 0; }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  void look();

  std::function<void()> changed_;
  std::uint32_t manager_ = 0;    // the atom of what a new panel says
  std::uint32_t selection_ = 0;  // the atom of what it owns
  std::uint32_t panel_ = 0;      // its window
};

}  // namespace zelvane::qt
