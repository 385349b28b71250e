#include "platform/memory/memory_sound.h"
#include "tests/contract/sound_contract.h"

namespace zelvane::test {
namespace {

class MemorySoundBed : public SoundBed {
 public:
  platform::Sound& sound() override { return sound_; }
  std::string file() override { return "/ding.wav"; }
  std::string missing() override { return "/missing.wav"; }
  std::string heard() override {
    if (sound_.played.empty()) return "nothing";
    const std::string first = sound_.played.front();
    sound_.played.clear();
    return first == file() ? "the file" : "the default";
  }

 private:
  platform::MemorySound sound_;
};

INSTANTIATE_TEST_SUITE_P(Memory, SoundContract, testing::Values([]() -> std::unique_ptr<SoundBed> {
                           return std::make_unique<MemorySoundBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
