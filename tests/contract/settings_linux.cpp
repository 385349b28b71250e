#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include "platform/error.h"
#include "platform/linux/linux_settings.h"
#include "platform/linux/private_file.h"
#include "tests/contract/settings_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using platform::Error;
using platform::LinuxSettings;

constexpr const char* kFolder = "home/.config/zelvane";
constexpr const char* kFile = "home/.config/zelvane/settings.json";

class LinuxSettingsBed : public SettingsBed {
 public:
  platform::SettingsBackend& settings() override { return settings_; }
  platform::SettingsBackend& inAnotherProcess() override { return other_; }
  void damage() override { folder_.write(kFile, "{ \"format\": 1, \"applications\": {"); }
  void makeUnreadable() override { fs::create_directories(folder_ / kFile); }

 private:
  ThrowAwayFolder folder_;
  LinuxSettings settings_{environmentIn(folder_)};
  LinuxSettings other_{environmentIn(folder_)};
};

std::unique_ptr<SettingsBed> makeLinuxSettingsBed() { return std::make_unique<LinuxSettingsBed>(); }

INSTANTIATE_TEST_SUITE_P(Linux, SettingsContract, testing::Values(makeLinuxSettingsBed));

class LinuxSettingsTest : public testing::Test {
 protected:
  void save(const std::string& text) { settings.save("Zelvane", "Schedule", "RunOn", text); }
  auto saved() const { return settings.find("Zelvane", "Schedule", "RunOn"); }
  int modeOf(std::string_view name) const {
    return static_cast<int>(fs::status(home / name).permissions());
  }
  // The folder's names, apart from the lock file's.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(home / kFolder)) {
      names.push_back(entry.path().filename().string());
    }
    std::erase(names, ".lock");
    std::ranges::sort(names);
    return names;
  }

  ThrowAwayFolder home;
  LinuxSettings settings{environmentIn(home)};
};

TEST_F(LinuxSettingsTest, FileAndFolderArePrivateWhateverTheMask) {
  const mode_t before = umask(0);
  save("7");
  umask(before);

  EXPECT_EQ(modeOf(kFolder), 0700);
  EXPECT_EQ(modeOf(kFile), 0600);
}

TEST_F(LinuxSettingsTest, AFolderThatOthersMayEnterIsClosedToThem) {
  home.write(kFile, R"({"format":1})");
  fs::permissions(home / kFolder, fs::perms(0755));
  fs::permissions(home / kFile, fs::perms(0644));

  save("7");

  EXPECT_EQ(modeOf(kFolder), 0700);
  EXPECT_EQ(modeOf(kFile), 0600);
}

TEST_F(LinuxSettingsTest, LookingMakesNothing) {
  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);

  EXPECT_FALSE(home.has("home"));
}

TEST_F(LinuxSettingsTest, SavingLeavesNothingBesideTheFile) {
  save("7");
  save("8");

  EXPECT_EQ(files(), (std::vector<std::string>{"settings.json"}));
}

TEST_F(LinuxSettingsTest, TheFileIsWhatTheHeaderDraws) {
  save("7");

  const json expected = {{"format", 1},
                         {"applications", {{"Zelvane", {{"Schedule", {{"RunOn", "7"}}}}}}}};
  EXPECT_EQ(json::parse(home.read(kFile)), expected);
}

TEST_F(LinuxSettingsTest, UnknownNamesAtEveryLevelAreKept) {
  home.write(kFile, R"({"format": 1, "future": [1, 2.5, null], "applications": {
    "future": 3, "Zelvane": {"future": true, "Schedule": {"future": {"a": []}, "RunOn": "1"}}}})");
  json expected = json::parse(home.read(kFile));

  save("7");

  expected["applications"]["Zelvane"]["Schedule"]["RunOn"] = "7";
  EXPECT_EQ(json::parse(home.read(kFile)), expected);
}

TEST_F(LinuxSettingsTest, AValueThatIsNoTextIsKeptAndNotFound) {
  home.write(kFile, R"({"format":1,"applications":{"Zelvane":{"Schedule":{"RunOn":7}}}})");

  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);
}

TEST_F(LinuxSettingsTest, SomethingElseInPlaceOfASectionIsNotWrittenOver) {
  const std::string content = R"({"format":1,"applications":{"Zelvane":{"Schedule":[1]}}})";
  home.write(kFile, content);

  EXPECT_THROW(save("7"), Error);
  EXPECT_EQ(home.read(kFile), content);
}

TEST_F(LinuxSettingsTest, BytesThatAreNoUtf8ComeBackAsTheyWere) {
  const std::vector<std::string> texts = {"caf\xE9",
                                          "\xFF\xFE",
                                          std::string("zero\0inside", 11),
                                          "cut \xE6\x9D",
                                          "\xC0\xAF overlong",
                                          "surrogate \xED\xA0\x80",
                                          "beyond \xF4\x90\x80\x80",
                                          "stands for a byte \xF4\x8F\xBB\xA9"};
  for (const std::string& text : texts) {
    settings.save("/opt/" + text, "Settings " + text, "Index " + text, text);

    EXPECT_EQ(settings.find("/opt/" + text, "Settings " + text, "Index " + text), text);
  }
  EXPECT_EQ(settings.find("/opt/" + texts[0], "Settings " + texts[0], "Index " + texts[0]),
            texts[0]);
}

TEST_F(LinuxSettingsTest, AFileCutAnywhereIsSetAsideAsItWas) {
  save("7");
  const std::string whole = home.read(kFile);
  const std::size_t closingBrace = whole.rfind('}');

  for (std::size_t length = 0; length <= closingBrace; ++length) {
    ThrowAwayFolder other;
    LinuxSettings cut(environmentIn(other));
    other.write(kFile, whole.substr(0, length));

    EXPECT_NE(cut.check(), std::nullopt) << length;
    EXPECT_FALSE(other.has(kFile));
    EXPECT_EQ(other.read(std::string(kFile) + ".set-aside-1"), whole.substr(0, length));
  }
}

TEST_F(LinuxSettingsTest, NoiseIsSetAsideAsItWas) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    std::mt19937 random(seed);
    std::string noise(random() % 300, '\0');
    for (char& c : noise) c = static_cast<char>(random());
    home.write(kFile, noise);

    EXPECT_NE(settings.check(), std::nullopt) << seed;
    EXPECT_EQ(home.read(std::string(kFile) + ".set-aside-" + std::to_string(seed + 1)), noise);
  }
}

TEST_F(LinuxSettingsTest, WhatIsWellFormedButNotOursIsSetAside) {
  const std::vector<std::string> contents = {"[]",
                                             "null",
                                             "7",
                                             "{}",
                                             R"({"format":"1"})",
                                             R"({"format":-1})",
                                             R"({"format":1.0})",
                                             R"({"format":1,"applications":[]})",
                                             R"({"format":1e999})"};
  for (const std::string& content : contents) {
    home.write(kFile, content);

    EXPECT_NE(settings.check(), std::nullopt) << content;
    EXPECT_FALSE(home.has(kFile));
  }
}

TEST_F(LinuxSettingsTest, AFileNestedWithoutEndIsSetAside) {
  const std::string brackets(1'000'000, '[');
  home.write(kFile, R"({"format":1,"future":)" + brackets + std::string(1'000'000, ']') + "}");

  EXPECT_THROW(save("7"), Error);
  EXPECT_NE(settings.check(), std::nullopt);
}

TEST_F(LinuxSettingsTest, AFileOfANewerFormatIsSetAsideAsItWas) {
  const std::string newer = R"({"format":2,"choices":["all"]})";
  home.write(kFile, newer);

  EXPECT_THROW(save("7"), Error);
  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_EQ(home.read(std::string(kFile) + ".set-aside-1"), newer);
}

TEST_F(LinuxSettingsTest, SettingAsideNeverTakesANameThatExists) {
  home.write(std::string(kFile) + ".set-aside-1", "kept earlier");
  fs::create_symlink("nowhere", home / (std::string(kFile) + ".set-aside-2"));
  fs::create_directory(home / (std::string(kFile) + ".set-aside-3"));
  home.write(kFile, "damaged");

  const auto told = settings.check();

  ASSERT_NE(told, std::nullopt);
  EXPECT_NE(told->find(home / (std::string(kFile) + ".set-aside-4")), std::string::npos);
  EXPECT_EQ(home.read(std::string(kFile) + ".set-aside-1"), "kept earlier");
  EXPECT_EQ(home.read(std::string(kFile) + ".set-aside-4"), "damaged");
}

TEST_F(LinuxSettingsTest, AFileThatIsTooBigIsNeverReadInAndIsSetAside) {
  home.write(kFile, R"({"format":1})");
  fs::resize_file(home / kFile, platform::PrivateFile::kLimit + 1);

  EXPECT_THROW(save("7"), Error);
  EXPECT_EQ(saved(), std::nullopt);
  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_EQ(fs::file_size(home / (std::string(kFile) + ".set-aside-1")),
            platform::PrivateFile::kLimit + 1);
}

TEST_F(LinuxSettingsTest, AValueThatWouldMakeTheFileTooBigIsRefusedAndLosesNothing) {
  save("7");

  EXPECT_THROW(save(std::string(platform::PrivateFile::kLimit, 'x')), Error);
  EXPECT_EQ(saved(), "7");
}

TEST_F(LinuxSettingsTest, ALinkInPlaceOfTheFileIsRefused) {
  const std::string content =
      R"({"format":1,"applications":{"Zelvane":{"Schedule":{"RunOn":"1"}}}})";
  home.write("elsewhere.json", content);
  fs::create_directories(home / kFolder);
  fs::create_symlink(home / "elsewhere.json", home / kFile);

  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_EQ(saved(), std::nullopt);
  EXPECT_THROW(save("7"), Error);
  EXPECT_EQ(home.read("elsewhere.json"), content);
  EXPECT_TRUE(fs::is_symlink(home / kFile));
}

TEST_F(LinuxSettingsTest, ALinkInPlaceOfTheFolderIsRefused) {
  fs::create_directories(home / "elsewhere");
  fs::create_directories(home / "home/.config");
  fs::create_directory_symlink(home / "elsewhere", home / kFolder);

  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_THROW(save("7"), Error);
  EXPECT_TRUE(fs::is_empty(home / "elsewhere"));
}

TEST_F(LinuxSettingsTest, ALinkInPlaceOfTheLockIsRefused) {
  home.write("elsewhere", "");
  fs::create_directories(home / kFolder);
  fs::create_symlink(home / "elsewhere", home / (std::string(kFolder) + "/.lock"));

  EXPECT_THROW(save("7"), Error);
}

TEST_F(LinuxSettingsTest, ALinkAboveTheFolderIsTheUsersAffair) {
  fs::create_directories(home / "dotfiles");
  fs::create_directory(home / "home");
  fs::create_directory_symlink(home / "dotfiles", home / "home/.config");

  save("7");

  EXPECT_TRUE(home.has("dotfiles/zelvane/settings.json"));
}

TEST_F(LinuxSettingsTest, WhatIsNeitherReadableNorWritableSaysSoByName) {
  ChildProcess user([this](const Say& say) {
    save("7");
    giveUpPrivileges();
    fs::permissions(home / kFile, fs::perms::none);
    say(settings.check().value_or("all is well"));
    try {
      save("8");
    } catch (const Error& error) {
      say(error.text());
    }
  });

  EXPECT_NE(user.hearLine().find(home / kFile), std::string::npos);
  EXPECT_NE(user.hearLine().find(home / kFile), std::string::npos);
}

TEST_F(LinuxSettingsTest, AFolderThatCannotBeWrittenKeepsWhatItHas) {
  ChildProcess user([this](const Say& say) {
    save("7");
    giveUpPrivileges();
    fs::permissions(home / kFolder, fs::perms(0500));
    try {
      save("8");
    } catch (const Error& error) {
      say(std::to_string(static_cast<int>(error.number())));
    }
    say(saved().value_or("nothing"));
  });

  EXPECT_EQ(user.hearLine(), "70");
  EXPECT_EQ(user.hearLine(), "7");
}

TEST_F(LinuxSettingsTest, TwoProcessesThatWriteAtOnceLoseNothing) {
  constexpr int kEach = 40;
  const auto saveMany = [this](const std::string& section) {
    return [this, section](const Say&) {
      for (int i = 0; i < kEach; ++i) {
        settings.save("Zelvane", section, std::to_string(i), section);
      }
    };
  };

  ChildProcess first(saveMany("first"));
  ChildProcess second(saveMany("second"));
  saveMany("third")({});
  EXPECT_EQ(first.wait(), 0);
  EXPECT_EQ(second.wait(), 0);

  for (const std::string section : {"first", "second", "third"}) {
    for (int i = 0; i < kEach; ++i) {
      EXPECT_EQ(settings.find("Zelvane", section, std::to_string(i)), section) << i;
    }
  }
}

TEST_F(LinuxSettingsTest, AKillLosesNothingThatWasSaved) {
  for (int round = 1; round <= 20; ++round) {
    ChildProcess writer([this](const Say& say) {
      for (int i = 1;; ++i) {
        save(std::to_string(i));
        say(std::to_string(i));
      }
    });
    std::string last;
    for (int i = 0; i < round; ++i) last = writer.hearLine();
    writer.kill();

    EXPECT_EQ(last, std::to_string(round));
    EXPECT_EQ(settings.check(), std::nullopt);
    EXPECT_GE(std::stoi(saved().value_or("0")), round);
  }
}

TEST_F(LinuxSettingsTest, WhatAKilledWriterLeftIsSweptAway) {
  save("7");
  const std::string leftover = std::string(kFolder) + "/.zelvane-0123456789abcdef0123456789abcdef";
  home.write(leftover, "half");

  save("8");

  EXPECT_FALSE(home.has(leftover));
}

}  // namespace
}  // namespace zelvane::test
