#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/error.h"
#include "platform/windows/windows_settings.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/settings_contract.h"
#include "tests/support/windows/throw_away_key.h"

namespace zelvane::test {
namespace {

using platform::dataOf;
using platform::Error;
using platform::readValue;
using platform::textIn;
using platform::WindowsSettings;
using platform::writeValue;
using namespace std::string_literals;

void setFormat(const ThrowAwayKey& key, std::uint32_t format) {
  writeValue(key.key("Settings").get(), L"Format", REG_DWORD, std::as_bytes(std::span(&format, 1)));
}

class WindowsSettingsBed : public SettingsBed {
 public:
  platform::SettingsBackend& settings() override { return settings_; }
  platform::SettingsBackend& inAnotherProcess() override { return other_; }
  // The system keeps its registry whole: nobody understands only what a newer version wrote.
  void damage() override { setFormat(key_, 2); }
  void makeUnreadable() override { key_.refuse("Settings"); }

 private:
  ThrowAwayKey key_;
  WindowsSettings settings_{key_ / "Settings"};
  WindowsSettings other_{key_ / "Settings"};
};

std::unique_ptr<SettingsBed> makeWindowsSettingsBed() {
  return std::make_unique<WindowsSettingsBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, SettingsContract, testing::Values(makeWindowsSettingsBed));

class WindowsSettingsTest : public testing::Test {
 protected:
  void save(const std::string& text) { settings.save("Zelvane", "Schedule", "RunOn", text); }
  auto saved() const { return settings.find("Zelvane", "Schedule", "RunOn"); }
  platform::RegistryKey schedule() const { return key.key(R"(Settings\^Zelvane\^Schedule)"); }

  ThrowAwayKey key;
  WindowsSettings settings{key / "Settings"};
};

TEST_F(WindowsSettingsTest, TheBranchIsWhatTheHeaderDraws) {
  save("7");
  settings.save(R"(C:\Zelvane)", "Settings", "Index0", "1");

  const auto text = readValue(schedule().get(), L"^Run^On");
  const auto format = readValue(key.key("Settings").get(), L"Format");
  ASSERT_NE(text, std::nullopt);
  ASSERT_NE(format, std::nullopt);
  EXPECT_EQ(text->type, static_cast<DWORD>(REG_SZ));
  EXPECT_EQ(textIn(text->data), std::wstring_view(L"7", 2));
  EXPECT_EQ(format->type, static_cast<DWORD>(REG_DWORD));
  EXPECT_TRUE(key.has(R"(Settings\^C:%5c^Zelvane\^Settings)"));
}

TEST_F(WindowsSettingsTest, LookingMakesNothing) {
  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);

  EXPECT_FALSE(key.has("Settings"));
}

TEST_F(WindowsSettingsTest, BytesThatAreNoTextComeBackAsTheyWere) {
  const std::vector<std::string> texts = {
      "caf\xE9",      "\xFF\xFE",          "zero\0inside"s,           "\0"s,
      "cut \xE6\x9D", "\xC0\xAF overlong", "beyond \xF4\x90\x80\x80", "\xED\xA0\x80\xED\xB0\x80"};
  for (const std::string& text : texts) {
    settings.save("C:\\" + text, "Settings " + text, "Index " + text, text);

    EXPECT_EQ(settings.find("C:\\" + text, "Settings " + text, "Index " + text), text);
  }
}

TEST_F(WindowsSettingsTest, NamesThatLookLikeStoredOnesAreOthers) {
  const std::vector<std::string> names = {"A",   "a",  "^A",  "^a", "^", "",
                                          "%41", "A^", "%5c", "\\", "%", "%25"};
  for (const std::string& name : names) settings.save(name, name, name, name + "!");

  for (const std::string& name : names) EXPECT_EQ(settings.find(name, name, name), name + "!");
}

TEST_F(WindowsSettingsTest, LongNamesAreToldApartToTheirEnd) {
  const std::string name(1000, 'X');
  settings.save(name + "a", name + "a", name + "a", "first");
  settings.save(name, name + "b", name, "second");
  settings.save(name, name, name + "b", "third");

  EXPECT_EQ(settings.find(name + "a", name + "a", name + "a"), "first");
  EXPECT_EQ(settings.find(name, name + "b", name), "second");
  EXPECT_EQ(settings.find(name, name, name + "b"), "third");
  EXPECT_EQ(settings.find(name, name, name), std::nullopt);
}

TEST_F(WindowsSettingsTest, TheEndOfALongNameIsNotTakenForTheNextName) {
  for (std::size_t length = 230; length <= 255; ++length) {
    const std::string x(length, 'x');
    const std::string y(length, 'y');
    settings.save(x + "a", y, "k", "first");
    settings.save(x, "a", y + "k", "second");

    EXPECT_EQ(settings.find(x + "a", y, "k"), "first") << length;
  }
}

TEST_F(WindowsSettingsTest, LettersThatDifferInCaseAloneAreToldApartBeyondAscii) {
  settings.save("Zelvane", "s", "Ä", "capital");
  settings.save("Zelvane", "s", "ä", "small");

  EXPECT_EQ(settings.find("Zelvane", "s", "Ä"), "capital");
  EXPECT_EQ(settings.find("Zelvane", "s", "ä"), "small");
}

TEST_F(WindowsSettingsTest, UnknownValuesAndKeysAreKept) {
  save("7");
  writeValue(schedule().get(), L"future", REG_SZ, dataOf(L"kept"));
  writeValue(key.key(R"(Settings\future)").get(), L"future", REG_SZ, dataOf(L"kept"));

  save("8");

  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_NE(readValue(schedule().get(), L"future"), std::nullopt);
  EXPECT_NE(readValue(key.key(R"(Settings\future)").get(), L"future"), std::nullopt);
}

TEST_F(WindowsSettingsTest, AValueThatIsNoTextIsNotFound) {
  save("7");
  writeValue(schedule().get(), L"^Run^On", REG_DWORD, dataOf(L"77"));

  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);
}

TEST_F(WindowsSettingsTest, AnotherFormatIsKeptAsItWasUnderTheNameThatIsTold) {
  save("7");
  setFormat(key, 2);

  const auto told = settings.check();

  ASSERT_NE(told, std::nullopt);
  EXPECT_NE(told->find("HKEY_CURRENT_USER\\" + (key / "Settings.set-aside-1")), std::string::npos);
  EXPECT_FALSE(key.has("Settings"));
  EXPECT_TRUE(key.has(R"(Settings.set-aside-1\^Zelvane\^Schedule)"));
}

TEST_F(WindowsSettingsTest, WhatANewerVersionWroteIsNotRead) {
  save("7");
  setFormat(key, 2);

  EXPECT_EQ(saved(), std::nullopt);
}

TEST_F(WindowsSettingsTest, AFormatThatIsNoNumberIsAnotherFormat) {
  writeValue(key.key("Settings").get(), L"Format", REG_SZ, dataOf(L"1"));

  EXPECT_THROW(save("7"), Error);
  EXPECT_NE(settings.check(), std::nullopt);
}

TEST_F(WindowsSettingsTest, ASectionThatCannotBeReadIsToldAndNotWrittenOver) {
  save("7");
  settings.save("Zelvane", "Options", "StartUp", "1");
  key.refuse(R"(Settings\^Zelvane\^Schedule)");

  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);
  EXPECT_THROW(save("8"), Error);
  EXPECT_EQ(settings.find("Zelvane", "Options", "StartUp"), "1");
}

TEST_F(WindowsSettingsTest, WhatRefusesSaysSoByName) {
  key.refuse("Settings");
  std::string text;

  try {
    save("7");
  } catch (const Error& error) {
    text = error.text();
  }

  EXPECT_NE(text.find(key / "Settings"), std::string::npos);
  EXPECT_NE(settings.check().value_or("").find(key / "Settings"), std::string::npos);
}

// The second process has a key of its own, which it cannot take away.
class LeftKey {
 public:
  explicit LeftKey(std::string path) : path_(std::move(path)) {}
  LeftKey(const LeftKey&) = delete;
  LeftKey& operator=(const LeftKey&) = delete;
  ~LeftKey() { RegDeleteTreeW(HKEY_CURRENT_USER, platform::wideText(path_).c_str()); }

  std::string operator/(const std::string& name) const { return path_ + "\\" + name; }

 private:
  std::string path_;
};

TEST_F(WindowsSettingsTest, AKilledProcessLosesNothingThatItSaved) {
  constexpr int kSaves = 20;
  ChildProcess writer([this](const Say& say) {
    say(key.path());
    for (int i = 1;; ++i) {
      save(std::to_string(i));
      say(std::to_string(i));
    }
  });
  const LeftKey left(writer.hearLine());
  std::string last;
  for (int i = 0; i < kSaves; ++i) last = writer.hearLine();
  writer.kill();

  WindowsSettings again(left / "Settings");
  EXPECT_EQ(last, std::to_string(kSaves));
  EXPECT_EQ(again.check(), std::nullopt);
  EXPECT_GE(std::stoi(again.find("Zelvane", "Schedule", "RunOn").value_or("0")), kSaves);
}

TEST_F(WindowsSettingsTest, TwoProcessesThatWriteAtOnceLoseNothing) {
  constexpr int kEach = 40;
  const auto saveMany = [](WindowsSettings& where, const std::string& section) {
    for (int i = 0; i < kEach; ++i) where.save("Zelvane", section, std::to_string(i), section);
  };
  ChildProcess first([&](const Say& say) {
    say(key.path());
    saveMany(settings, "first");
    say("done");
    stayUntilKilled();
  });
  const LeftKey left(first.hearLine());
  WindowsSettings shared(left / "Settings");
  saveMany(shared, "second");
  const std::string done = first.hearLine();

  EXPECT_EQ(done, "done");
  for (const std::string section : {"first", "second"}) {
    for (int i = 0; i < kEach; ++i) {
      EXPECT_EQ(shared.find("Zelvane", section, std::to_string(i)), section) << i;
    }
  }
}

}  // namespace
}  // namespace zelvane::test
