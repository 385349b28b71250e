// What playing a sound promises.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/sound.h"

namespace zelvane::test {

class SoundBed {
 public:
  virtual ~SoundBed() = default;

  virtual platform::Sound& sound() = 0;

  // The path of a sound file that is there.
  virtual std::string file() = 0;

  // Where there is none.
  virtual std::string missing() = 0;

  // What was heard first since the last question: "the file", or "the default" for any other sound.
  // Waits for it; "nothing" where none comes.
  virtual std::string heard() = 0;
};

using MakeSoundBed = std::unique_ptr<SoundBed> (*)();

class SoundContract : public testing::TestWithParam<MakeSoundBed> {
 protected:
  std::unique_ptr<SoundBed> bed = GetParam()();
};

}  // namespace zelvane::test
