#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/linux/linux_registry.h"
#include "platform/linux/private_file.h"
#include "tests/contract/registry_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using platform::LinuxRegistry;
using Registry = platform::Registry;
using Root = Registry::Root;
using Result = Registry::Result;
using Type = Registry::Type;

constexpr const char* kFile = "home/.config/zelvane/registry.json";
constexpr const char* kSetAside = "home/.config/zelvane/registry.json.set-aside-1";
constexpr const char* kRun = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

class LinuxRegistryBed : public RegistryBed {
 public:
  Registry& registry() override { return registry_; }
  Registry& inAnotherProcess() override { return other_; }
  void makeUnwritable(Root, const std::string&) override {
    fs::remove(folder_ / kFile);
    fs::create_directories(folder_ / kFile);
  }
  void damage() override { folder_.write(kFile, "{ \"format\": 1, \"classes\": {"); }
  void makeUnreadable() override { fs::create_directories(folder_ / kFile); }

 private:
  ThrowAwayFolder folder_;
  LinuxRegistry registry_{environmentIn(folder_)};
  LinuxRegistry other_{environmentIn(folder_)};
};

std::unique_ptr<RegistryBed> makeLinuxRegistryBed() { return std::make_unique<LinuxRegistryBed>(); }

INSTANTIATE_TEST_SUITE_P(Linux, RegistryContract, testing::Values(makeLinuxRegistryBed));

class LinuxRegistryTest : public testing::Test {
 protected:
  Result setRun(const std::string& text) {
    const auto key = registry.open(Root::currentUser, kRun).key;
    return registry.set(key, "Zelvane", Type::string, bytesOf(text));
  }
  auto run() { return registry.query(registry.open(Root::currentUser, kRun).key, "Zelvane"); }

  static std::string textOf(const Registry::Value& value) {
    std::string text;
    for (const std::byte byte : value.data) text += std::to_integer<char>(byte);
    return text;
  }

  ThrowAwayFolder home;
  LinuxRegistry registry{environmentIn(home)};
};

TEST_F(LinuxRegistryTest, LookingMakesNothing) {
  EXPECT_EQ(registry.open(Root::currentUser, kRun).result, Result::success);
  EXPECT_EQ(run(), std::nullopt);

  EXPECT_FALSE(home.has("home"));
}

TEST_F(LinuxRegistryTest, AChangeThatChangesNothingWritesNothing) {
  const auto key = registry.open(Root::currentUser, kRun).key;

  EXPECT_EQ(registry.deleteValue(key, "Zelvane"), Result::notFound);
  EXPECT_EQ(registry.create(Root::currentUser, kRun).result, Result::success);

  EXPECT_FALSE(home.has(kFile));
}

TEST_F(LinuxRegistryTest, TheHiveIsPrivate) {
  setRun("text");

  EXPECT_EQ(fs::status(home / kFile).permissions(), fs::perms(0600));
  EXPECT_EQ(fs::status(home / "home/.config/zelvane").permissions(), fs::perms(0700));
}

TEST_F(LinuxRegistryTest, TheHiveIsWhatTheHeaderDraws) {
  setRun(std::string("/opt/zelvane\0", 13));

  const json hive = json::parse(home.read(kFile));

  const json value = {{"type", 1}, {"data", std::string("/opt/zelvane\0", 13)}};
  EXPECT_EQ(hive["format"], 1);
  EXPECT_EQ(hive["currentUser"]["keys"]["Software"]["keys"]["Microsoft"]["keys"]["Windows"]["keys"]
                ["CurrentVersion"]["keys"]["Run"]["values"]["Zelvane"],
            value);
}

TEST_F(LinuxRegistryTest, AnyBytesAreData) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  all += "\xF4\x8F\xBB\xA9 caf\xE9";

  setRun(all);

  EXPECT_EQ(run(), (Registry::Value{Type::string, bytesOf(all)}));
}

TEST_F(LinuxRegistryTest, AnyBytesAreNames) {
  const auto key = registry.create(Root::classes, ".caf\xE9").key;
  registry.set(key, "\xFF", Type::string, bytesOf("text"));

  EXPECT_EQ(registry.open(Root::classes, ".caf\xE9").result, Result::success);
  EXPECT_EQ(registry.open(Root::classes, ".caf\xE8").result, Result::notFound);
  EXPECT_NE(registry.query(key, "\xFF"), std::nullopt);
}

TEST_F(LinuxRegistryTest, UnknownNamesAtEveryLevelAreKept) {
  home.write(kFile, R"({"format":1, "future":[], "classes":{"future":1, "keys":{".dvk":
      {"future":{}, "values":{"future":2, "x":{"type":1,"data":"","future":3}}}}}})");
  json expected = json::parse(home.read(kFile));

  const auto key = registry.open(Root::classes, ".DVK").key;
  EXPECT_EQ(registry.set(key, "X", Type::string, bytesOf("new")), Result::success);

  expected["classes"]["keys"][".dvk"]["values"]["x"]["data"] = "new";
  EXPECT_EQ(json::parse(home.read(kFile)), expected);
}

TEST_F(LinuxRegistryTest, AHiveWithoutAKeyDoesNotGetItByOpening) {
  home.write(kFile, R"({"format":1})");

  EXPECT_EQ(registry.open(Root::currentUser, kRun).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::currentUser, kRun).result, Result::success);
  EXPECT_EQ(registry.open(Root::currentUser, kRun).result, Result::success);
}

TEST_F(LinuxRegistryTest, WhatIsNoValueIsNotThereAndIsKept) {
  const std::string content =
      R"({"format":1,"classes":{"values":{"a":1,"b":{"type":"1","data":""},"c":{"type":1},)"
      R"("d":{"type":4294967296,"data":""}}}})";
  home.write(kFile, content);
  const auto key = registry.open(Root::classes, "").key;

  for (const std::string name : {"a", "b", "c", "d"}) {
    EXPECT_EQ(registry.query(key, name), std::nullopt) << name;
  }
  EXPECT_EQ(registry.set(key, "a", Type::string, {}), Result::accessDenied);
  EXPECT_EQ(home.read(kFile), content);
}

TEST_F(LinuxRegistryTest, WhatIsNoKeyIsNotThereAndIsKept) {
  const std::string content = R"({"format":1,"classes":{"keys":{".dvk":7,".zip":{"keys":[]}}}})";
  home.write(kFile, content);

  EXPECT_EQ(registry.open(Root::classes, ".dvk").result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, ".dvk").result, Result::accessDenied);
  EXPECT_EQ(registry.create(Root::classes, R"(.zip\shell)").result, Result::accessDenied);
  EXPECT_EQ(home.read(kFile), content);
}

TEST_F(LinuxRegistryTest, ADamagedHiveIsKeptAsItWasUnderTheNameThatIsTold) {
  home.write(kFile, "damaged");

  const auto told = registry.check();

  ASSERT_NE(told, std::nullopt);
  EXPECT_NE(told->find(home / kSetAside), std::string::npos);
  EXPECT_EQ(home.read(kSetAside), "damaged");
  EXPECT_EQ(setRun("text"), Result::success);
  EXPECT_EQ(run(), (Registry::Value{Type::string, bytesOf("text")}));
}

TEST_F(LinuxRegistryTest, AHiveThatNobodyCheckedIsNotSetAside) {
  home.write(kFile, "damaged");

  EXPECT_EQ(registry.open(Root::currentUser, kRun).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::currentUser, kRun).result, Result::accessDenied);

  EXPECT_EQ(home.read(kFile), "damaged");
  EXPECT_FALSE(home.has(kSetAside));
}

TEST_F(LinuxRegistryTest, AHiveCutAnywhereIsSetAsideAsItWas) {
  setRun("text");
  const std::string whole = home.read(kFile);
  const std::size_t closingBrace = whole.rfind('}');

  for (std::size_t length = 0; length <= closingBrace; ++length) {
    home.write(kFile, whole.substr(0, length));

    EXPECT_NE(registry.check(), std::nullopt) << length;
    EXPECT_FALSE(home.has(kFile));
    EXPECT_EQ(home.read(kSetAside), whole.substr(0, length));
    fs::remove(home / kSetAside);
  }
}

TEST_F(LinuxRegistryTest, NoiseIsSetAsideAsItWas) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    std::mt19937 random(seed);
    std::string noise(random() % 300, '\0');
    for (char& c : noise) c = static_cast<char>(random());
    home.write(kFile, noise);

    EXPECT_NE(registry.check(), std::nullopt) << seed;
    EXPECT_EQ(home.read(std::string(kFile) + ".set-aside-" + std::to_string(seed + 1)), noise);
  }
}

TEST_F(LinuxRegistryTest, WhatIsWellFormedButNoHiveIsSetAside) {
  const std::vector<std::string> contents = {"[]",
                                             "null",
                                             "7",
                                             "{}",
                                             R"({"format":"1"})",
                                             R"({"format":-1})",
                                             R"({"format":1.0})",
                                             R"({"format":1,"classes":[]})",
                                             R"({"format":1,"currentUser":7})",
                                             R"({"format":1,"localMachine":null})"};
  for (const std::string& content : contents) {
    home.write(kFile, content);

    EXPECT_NE(registry.check(), std::nullopt) << content;
    EXPECT_FALSE(home.has(kFile));
  }
}

TEST_F(LinuxRegistryTest, AHiveNestedWithoutEndIsSetAside) {
  const std::string brackets(1'000'000, '[');
  home.write(kFile, R"({"format":1,"future":)" + brackets + std::string(1'000'000, ']') + "}");

  EXPECT_EQ(registry.create(Root::classes, ".dvk").result, Result::accessDenied);
  EXPECT_NE(registry.check(), std::nullopt);
}

TEST_F(LinuxRegistryTest, AHiveOfANewerFormatIsSetAsideAsItWas) {
  const std::string newer = R"({"format":2,"keys":["all"]})";
  home.write(kFile, newer);

  EXPECT_NE(registry.check(), std::nullopt);
  EXPECT_EQ(home.read(kSetAside), newer);
}

TEST_F(LinuxRegistryTest, AHiveThatIsTooBigIsNeverReadInAndIsSetAside) {
  home.write(kFile, R"({"format":1})");
  fs::resize_file(home / kFile, platform::PrivateFile::kLimit + 1);

  EXPECT_EQ(registry.open(Root::classes, "").result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, ".dvk").result, Result::accessDenied);
  EXPECT_NE(registry.check(), std::nullopt);
  EXPECT_EQ(fs::file_size(home / kSetAside), platform::PrivateFile::kLimit + 1);
}

TEST_F(LinuxRegistryTest, AValueThatWouldMakeTheHiveTooBigIsRefusedAndLosesNothing) {
  setRun("text");

  EXPECT_EQ(setRun(std::string(platform::PrivateFile::kLimit, 'x')), Result::accessDenied);
  EXPECT_EQ(run(), (Registry::Value{Type::string, bytesOf("text")}));
}

TEST_F(LinuxRegistryTest, AKillLosesNothingThatWasSet) {
  for (int round = 1; round <= 20; ++round) {
    ChildProcess writer([this](const Say& say) {
      for (int i = 1;; ++i) {
        setRun(std::to_string(i));
        say(std::to_string(i));
      }
    });
    std::string last;
    for (int i = 0; i < round; ++i) last = writer.hearLine();
    writer.kill();

    const auto value = run();
    EXPECT_EQ(last, std::to_string(round));
    EXPECT_EQ(registry.check(), std::nullopt);
    ASSERT_NE(value, std::nullopt);
    EXPECT_GE(std::stoi(textOf(*value)), round);
  }
}

TEST_F(LinuxRegistryTest, AHiveThatIsDamagedMeanwhileIsNotWrittenOver) {
  const auto key = registry.open(Root::currentUser, kRun).key;
  home.write(kFile, "damaged");

  EXPECT_EQ(registry.query(key, "Zelvane"), std::nullopt);
  EXPECT_EQ(registry.set(key, "Zelvane", Type::string, {}), Result::accessDenied);
  EXPECT_EQ(home.read(kFile), "damaged");
}

TEST_F(LinuxRegistryTest, ALinkInPlaceOfTheHiveIsAnEmptyRegistryThatCannotBeWritten) {
  home.write("elsewhere.json", R"({"format":1,"classes":{}})");
  fs::create_directories(home / "home/.config/zelvane");
  fs::create_symlink(home / "elsewhere.json", home / kFile);

  EXPECT_NE(registry.check(), std::nullopt);
  EXPECT_EQ(registry.open(Root::classes, "").result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, ".dvk").result, Result::accessDenied);
  EXPECT_EQ(home.read("elsewhere.json"), R"({"format":1,"classes":{}})");
}

TEST_F(LinuxRegistryTest, AKeyThatAnotherProcessDeletedIsNotFound) {
  const auto key = registry.create(Root::classes, ".dvk").key;
  LinuxRegistry(environmentIn(home)).deleteKey(Root::classes, ".dvk");

  EXPECT_EQ(registry.set(key, "", Type::string, {}), Result::notFound);
  EXPECT_EQ(registry.query(key, ""), std::nullopt);
}

TEST_F(LinuxRegistryTest, ARootIsNeverDeleted) {
  registry.deleteKey(Root::localMachine, R"(SOFTWARE\Classes)");
  registry.deleteKey(Root::localMachine, "SOFTWARE");

  EXPECT_EQ(registry.deleteKey(Root::localMachine, ""), Result::accessDenied);
  EXPECT_EQ(registry.open(Root::localMachine, "").result, Result::success);
}

TEST_F(LinuxRegistryTest, TwoProcessesThatWriteAtOnceLoseNothing) {
  constexpr int kEach = 40;
  const auto createMany = [this](const std::string& name) {
    return [this, name](const Say&) {
      for (int i = 0; i < kEach; ++i) registry.create(Root::classes, name + std::to_string(i));
    };
  };

  ChildProcess first(createMany("first"));
  createMany("second")({});
  EXPECT_EQ(first.wait(), 0);

  for (const std::string name : {"first", "second"}) {
    for (int i = 0; i < kEach; ++i) {
      EXPECT_EQ(registry.open(Root::classes, name + std::to_string(i)).result, Result::success);
    }
  }
}

}  // namespace
}  // namespace zelvane::test
