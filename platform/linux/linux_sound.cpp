#include "platform/linux/linux_sound.h"

#include <cstdint>
#include <utility>

#include <dlfcn.h>

#include "platform/linux/linux_files.h"

namespace zelvane::platform {
namespace {

// The desktops' own name for the sound of a bell; a theme without it has a simpler one.
constexpr auto kUsualSound = "bell-window-system";

// What of the library is used, found by name. Each answers 0 where it succeeded.
class Player {
 public:
  Player() {
    // Never closed: it may have threads of its own.
    void* library = dlopen("libcanberra.so.0", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return;
    find(library, "ca_context_create", create_);
    find(library, "ca_context_destroy", destroy_);
    find(library, "ca_context_cancel", cancel_);
    find(library, "ca_context_play", play_);
    usable_ = create_ != nullptr && destroy_ != nullptr && cancel_ != nullptr && play_ != nullptr;
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;
  ~Player() { disconnect(); }

  void play(const std::string& file) {
    if (!usable_ || !connect()) return;
    cancel_(context_, kSound);
    const bool isThere = LinuxFiles().exists(file);
    if (isThere && playSound("media.filename", file.c_str())) return;
    // The server may have gone since the last sound, and another one be there.
    if (!playSound("event.id", kUsualSound)) disconnect();
  }

 private:
  struct Context;
  static constexpr std::uint32_t kSound = 1;  // the number of each sound: there is one at a time

  template <typename Function>
  static void find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
  }

  bool connect() { return context_ != nullptr || create_(&context_) == 0; }

  void disconnect() {
    if (context_ != nullptr) destroy_(std::exchange(context_, nullptr));
  }

  // Its arguments are names of properties and their values, and a null at the end.
  bool playSound(const char* property, const char* value) {
    constexpr const char* kEnd = nullptr;
    return play_(context_, kSound, property, value, "application.name", "Zelvane", "media.role",
                 "event", kEnd) == 0;
  }

  int (*create_)(Context**) = nullptr;
  int (*destroy_)(Context*) = nullptr;
  int (*cancel_)(Context*, std::uint32_t) = nullptr;
  int (*play_)(Context*, std::uint32_t, ...) = nullptr;
  bool usable_ = false;
  Context* context_ = nullptr;
};

}  // namespace

LinuxSound::~LinuxSound() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_one();
  if (worker_.joinable()) worker_.join();
}

void LinuxSound::play(const std::string& file) {
  {
    const std::lock_guard lock(mutex_);
    next_ = file;
  }
  changed_.notify_one();
  if (!worker_.joinable()) worker_ = std::thread([this] { work(); });
}

void LinuxSound::work() {
  Player player;
  while (const auto file = next()) player.play(*file);
}

// Waits for it; nothing at the end.
std::optional<std::string> LinuxSound::next() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return ending_ || next_; });
  return ending_ ? std::nullopt : std::exchange(next_, std::nullopt);
}

}  // namespace zelvane::platform
