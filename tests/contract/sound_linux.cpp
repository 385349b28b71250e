#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/linux_sound.h"
#include "tests/contract/sound_contract.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

constexpr int kRate = 44'100;  // samples a second
constexpr int kSilence = kRate / 4;
constexpr int kPatience = 20 * kRate;
constexpr std::int16_t kOfFile = 12'345;  // each sample of a file that a test plays

// Another program, which writes to `mouth`, or to nobody.
class Helper {
 public:
  explicit Helper(std::vector<std::string> words, int mouth = -1) : process_(fork()) {
    if (process_ < 0) throw std::runtime_error("no second process");
    if (process_ > 0) return;
    constexpr unsigned kLongestLife = 120;  // seconds, should the test itself be killed
    alarm(kLongestLife);
    const int nobody = open("/dev/null", O_RDWR);
    dup2(mouth < 0 ? nobody : mouth, STDOUT_FILENO);
    dup2(nobody, STDERR_FILENO);
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execvp(pointers.front(), pointers.data());
    _exit(70);
  }
  Helper(const Helper&) = delete;
  Helper& operator=(const Helper&) = delete;
  ~Helper() {
    signal(SIGKILL);
    waitpid(process_, nullptr, 0);
  }

  void signal(int number) const { kill(process_, number); }

 private:
  pid_t process_;
};

// Where the sound server and whoever talks to it find each other, and nobody else.
class Server {
 public:
  Server() {
    fs::create_directory(folder_.path() / "run");
    fs::permissions(folder_.path() / "run", fs::perms::owner_all);
    set("PULSE_RUNTIME_PATH", folder_ / "run");
    set("PULSE_CLIENTCONFIG", folder_.write("client.conf", "autospawn = no\nenable-shm = no\n"));
    set("PULSE_COOKIE", folder_ / "cookie");
    set("XDG_CACHE_HOME", folder_ / "cache");
    unsetenv("PULSE_SERVER");
    process_.emplace(std::vector<std::string>{
        "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
        "--disable-shm=yes", "--log-target=stderr",
        "--load=module-null-sink sink_name=n format=s16le channels=1 rate=44100",
        "--load=module-native-protocol-unix auth-anonymous=1"});
    waitUntilItListens();
  }

  void stop() const { process_->signal(SIGSTOP); }
  void goOn() const { process_->signal(SIGCONT); }

 private:
  static void set(const char* name, const std::string& text) { setenv(name, text.c_str(), 1); }

  bool listens() const {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const std::string path = folder_ / "run/native";
    std::memcpy(address.sun_path, path.c_str(), std::min(path.size(), sizeof address.sun_path - 1));
    const platform::Descriptor end(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return connect(end.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }

  void waitUntilItListens() const {
    for (int attempt = 0; attempt < 1000; ++attempt) {
      if (listens()) return;
      poll(nullptr, 0, 30);
    }
    throw std::runtime_error("the sound server does not listen");
  }

  ThrowAwayFolder folder_;
  std::optional<Helper> process_;
};

// What comes out of the server, as samples.
class Ear {
 public:
  Ear() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    end_ = platform::Descriptor(ends[0]);
    const platform::Descriptor mouth(ends[1]);
    recorder_.emplace(
        std::vector<std::string>{"parec", "--device=n.monitor", "--raw", "--format=s16le",
                                 "--rate=44100", "--channels=1", "--latency-msec=20"},
        mouth.get());
    next();  // from here on nothing is missed
  }

  std::int16_t next() {
    std::int16_t sample = 0;
    if (at_ + sizeof sample > size_) fill();
    std::memcpy(&sample, buffer_ + at_, sizeof sample);
    at_ += sizeof sample;
    return sample;
  }

  // The first sound and what follows until it is silent; false where none comes, or no silence.
  bool listen(std::vector<std::int16_t>& sound) {
    int silent = 0;
    for (int count = 0; count < kPatience; ++count) {
      const std::int16_t sample = next();
      silent = sample == 0 ? silent + 1 : 0;
      if (sample != 0 || !sound.empty()) sound.push_back(sample);
      if (!sound.empty() && silent >= kSilence) return true;
    }
    return false;
  }

 private:
  void fill() {
    const std::size_t rest = size_ - at_;
    std::memmove(buffer_, buffer_ + at_, rest);
    const ssize_t count = read(end_.get(), buffer_ + rest, sizeof buffer_ - rest);
    if (count <= 0) throw std::runtime_error("the recorder has ended");
    at_ = 0;
    size_ = rest + static_cast<std::size_t>(count);
    if (size_ < sizeof(std::int16_t)) fill();
  }

  platform::Descriptor end_;
  std::optional<Helper> recorder_;
  char buffer_[4096] = {};
  std::size_t at_ = 0;
  std::size_t size_ = 0;
};

std::string number(std::uint32_t value, std::size_t bytes) {
  std::string text;
  for (std::size_t index = 0; index < bytes; ++index) {
    text += static_cast<char>(value >> 8U * index & 0xFFU);
  }
  return text;
}

// A file of that many samples, one channel of 16 bits.
std::string waveFile(std::uint32_t samples) {
  std::string data;
  for (std::uint32_t index = 0; index < samples; ++index) data += number(kOfFile, 2);
  const auto size = static_cast<std::uint32_t>(data.size());
  return "RIFF" + number(36 + size, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(kRate, 4) + number(2 * kRate, 4) + number(2, 2) + number(16, 2) + "data" +
         number(size, 4) + data;
}

class LinuxSoundBed : public SoundBed {
 public:
  platform::Sound& sound() override { return sound_; }
  std::string file() override { return folder.write("a töne.wav", waveFile(kRate / 3)); }
  std::string missing() override { return folder / "missing.wav"; }
  std::string heard() override {
    std::vector<std::int16_t> samples;
    if (!ear.listen(samples)) return "nothing";
    return std::count(samples.begin(), samples.end(), kOfFile) > kSilence / 4 ? "the file"
                                                                              : "the default";
  }

  ThrowAwayFolder folder;
  Server server;
  Ear ear;

 private:
  platform::LinuxSound sound_;
};

INSTANTIATE_TEST_SUITE_P(Linux, SoundContract, testing::Values([]() -> std::unique_ptr<SoundBed> {
                           return std::make_unique<LinuxSoundBed>();
                         }));

class LinuxSoundTest : public testing::Test {
 protected:
  LinuxSoundBed bed;
};

TEST_F(LinuxSoundTest, WhatIsNoSoundIsReplacedByTheDefault) {
  bed.sound().play(bed.folder.write("letter.wav", "Dear"));

  EXPECT_EQ(bed.heard(), "the default");
}

TEST_F(LinuxSoundTest, AFolderIsReplacedByTheDefault) {
  bed.sound().play(bed.folder.path().string());

  EXPECT_EQ(bed.heard(), "the default");
}

TEST_F(LinuxSoundTest, TheNextSoundCutsOffOneThatStillPlays) {
  constexpr std::uint32_t kMinute = 60 * kRate;
  bed.sound().play(bed.folder.write("long.wav", waveFile(kMinute)));
  while (bed.ear.next() == 0) {
  }

  bed.sound().play(bed.file());

  std::vector<std::int16_t> samples;
  EXPECT_TRUE(bed.ear.listen(samples));
  EXPECT_LT(samples.size(), std::size_t{kMinute} / 2);
}

TEST_F(LinuxSoundTest, AServerThatHangsKeepsNobodyWaiting) {
  alarm(60);  // where it does keep somebody waiting, it is this test that waits for ever
  bed.server.stop();

  bed.sound().play(bed.file());

  bed.server.goOn();
  EXPECT_EQ(bed.heard(), "the file");
  alarm(0);
}

TEST(LinuxSoundWithoutServer, IsSilentAndNothingFails) {
  const ThrowAwayFolder folder;
  setenv("PULSE_SERVER", ("unix:" + folder / "nobody").c_str(), 1);
  setenv("XDG_CACHE_HOME", (folder / "cache").c_str(), 1);

  {
    platform::LinuxSound sound;
    EXPECT_NO_THROW(sound.play(""));
    EXPECT_NO_THROW(sound.play(folder.write("a.wav", waveFile(100))));
  }

  unsetenv("PULSE_SERVER");
}

TEST(LinuxSoundWithoutServer, OneThatNeverPlaysWaitsForNothing) {
  const platform::LinuxSound sound;
}

}  // namespace
}  // namespace zelvane::test
