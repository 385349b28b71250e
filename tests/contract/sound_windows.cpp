#include <optional>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_sound.h"
#include "tests/contract/sound_contract.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

struct Played {
  std::string name;
  DWORD flags = 0;
};

// In the system's place, where there may be nothing to play a sound on. That the system plays its
// default for a name that it does not find is its own promise.
class WindowsSoundBed : public SoundBed {
 public:
  platform::Sound& sound() override { return sound_; }
  std::string file() override { return folder_.write("a sound.wav"); }
  std::string missing() override { return folder_ / "missing.wav"; }
  std::string heard() override {
    if (!first_) return "nothing";
    const Played first = *first_;
    first_.reset();
    return isThere(first.name) ? "the file" : "the default";
  }

 private:
  ThrowAwayFolder folder_;
  std::optional<Played> first_;
  platform::WindowsSound sound_{[this](const wchar_t* name, HMODULE, DWORD flags) {
    if (!first_) first_ = Played{platform::plainText(name), flags};
    return TRUE;
  }};
};

INSTANTIATE_TEST_SUITE_P(Windows, SoundContract, testing::Values([]() -> std::unique_ptr<SoundBed> {
                           return std::make_unique<WindowsSoundBed>();
                         }));

TEST(WindowsSound, OnlyAsksTheSystemToReturnAtOnce) {
  std::optional<Played> played;
  platform::WindowsSound sound([&](const wchar_t* name, HMODULE, DWORD flags) {
    played = Played{platform::plainText(name), flags};
    return TRUE;
  });

  sound.play("C:\\Töne\\ding.wav");

  ASSERT_TRUE(played);
  EXPECT_EQ(played->name, "C:\\Töne\\ding.wav");
  EXPECT_EQ(played->flags, DWORD{SND_ASYNC});
}

TEST(WindowsSound, WithoutAnythingToPlayItOnNothingFails) {
  platform::WindowsSound sound;

  EXPECT_NO_THROW(sound.play("C:\\missing.wav"));
}

}  // namespace
}  // namespace zelvane::test
