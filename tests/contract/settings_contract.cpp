#include "tests/contract/settings_contract.h"

#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"

namespace zelvane::test {
namespace {

using platform::Error;

std::vector<std::string> awkwardTexts() {
  return {"",
          " ",
          " blanks around ",
          "\\",
          R"(C:\Program Files\Zelvane)",
          "/opt/zelvane",
          "/",
          "]",
          "[section]",
          "key=text",
          ";comment",
          "\"quoted\"",
          "line\nbreak",
          "line\r\nbreak",
          "tab\tand\x01\x7F",
          "null",
          "0",
          "Zürich, 東京, 😀",
          std::string(20'000, 'x')};
}

TEST_P(SettingsContract, WhatWasNeverSavedIsNotThere) {
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), std::nullopt);
}

TEST_P(SettingsContract, WhatWasSavedIsFound) {
  settings.save("Zelvane", "Schedule", "RunOn", "7");

  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), "7");
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "Date"), std::nullopt);
  EXPECT_EQ(settings.find("Zelvane", "Options", "RunOn"), std::nullopt);
  EXPECT_EQ(settings.find("Other", "Schedule", "RunOn"), std::nullopt);
}

TEST_P(SettingsContract, AnEmptyTextIsAText) {
  settings.save("Zelvane", "HomePage", "StartPage", "");

  EXPECT_EQ(settings.find("Zelvane", "HomePage", "StartPage"), "");
}

TEST_P(SettingsContract, SavingAgainReplacesTheText) {
  settings.save("Zelvane", "PopupKiller", "IsActive", "1");
  settings.save("Zelvane", "PopupKiller", "IsActive", "0");

  EXPECT_EQ(settings.find("Zelvane", "PopupKiller", "IsActive"), "0");
}

TEST_P(SettingsContract, AnyTextSurvivesAsValue) {
  for (const std::string& text : awkwardTexts()) {
    settings.save("Zelvane", "HomePage", "StartPage", text);

    EXPECT_EQ(settings.find("Zelvane", "HomePage", "StartPage"), text);
  }
}

TEST_P(SettingsContract, AnyTextMayBeAName) {
  for (const std::string& name : awkwardTexts()) {
    settings.save(name, "section", "key", "by application");
    settings.save("application", name, "key", "by section");
    settings.save("application", "section", name, "by key");

    EXPECT_EQ(settings.find(name, "section", "key"), "by application");
    EXPECT_EQ(settings.find("application", name, "key"), "by section");
    EXPECT_EQ(settings.find("application", "section", name), "by key");
  }
}

TEST_P(SettingsContract, NamesAreToldApartByCase) {
  settings.save("Zelvane", "Options", "StartUp", "1");
  settings.save("zelvane", "Options", "StartUp", "2");
  settings.save("Zelvane", "OPTIONS", "StartUp", "3");
  settings.save("Zelvane", "Options", "startup", "4");

  EXPECT_EQ(settings.find("Zelvane", "Options", "StartUp"), "1");
  EXPECT_EQ(settings.find("zelvane", "Options", "StartUp"), "2");
  EXPECT_EQ(settings.find("Zelvane", "OPTIONS", "StartUp"), "3");
  EXPECT_EQ(settings.find("Zelvane", "Options", "startup"), "4");
}

TEST_P(SettingsContract, SeparatorsInNamesDoNotMoveThemIntoEachOther) {
  settings.save(R"(a\b)", "c", "d", "first");
  settings.save("a", R"(b\c)", "d", "second");
  settings.save("a", "b", R"(c\d)", "third");
  settings.save("a/b", "c", "d", "fourth");

  EXPECT_EQ(settings.find(R"(a\b)", "c", "d"), "first");
  EXPECT_EQ(settings.find("a", R"(b\c)", "d"), "second");
  EXPECT_EQ(settings.find("a", "b", R"(c\d)"), "third");
  EXPECT_EQ(settings.find("a/b", "c", "d"), "fourth");
}

TEST_P(SettingsContract, SavingOneValueLeavesTheOthers) {
  settings.save("Zelvane", "Schedule", "Time", "10:45:00");
  settings.save("/opt/zelvane", "Settings", "Index0", "1");
  settings.save("Zelvane", "Schedule", "RunOn", "7");

  EXPECT_EQ(settings.find("Zelvane", "Schedule", "Time"), "10:45:00");
  EXPECT_EQ(settings.find("/opt/zelvane", "Settings", "Index0"), "1");
}

TEST_P(SettingsContract, AnotherProcessFindsWhatWasSaved) {
  settings.save("Zelvane", "Schedule", "RunOn", "7");

  EXPECT_EQ(bed->inAnotherProcess().find("Zelvane", "Schedule", "RunOn"), "7");
}

TEST_P(SettingsContract, WhatAnotherProcessWroteMeanwhileStays) {
  settings.save("Zelvane", "Schedule", "RunOn", "7");
  bed->inAnotherProcess().save("Zelvane", "Schedule", "Time", "10:45:00");
  settings.save("Zelvane", "Schedule", "RunOn", "8");

  EXPECT_EQ(settings.find("Zelvane", "Schedule", "Time"), "10:45:00");
  EXPECT_EQ(bed->inAnotherProcess().find("Zelvane", "Schedule", "RunOn"), "8");
}

TEST_P(SettingsContract, AStoreThatDoesNotExistYetIsFine) {
  EXPECT_EQ(settings.check(), std::nullopt);
}

TEST_P(SettingsContract, AStoreWithValuesIsFineAndKeepsThem) {
  settings.save("Zelvane", "Schedule", "RunOn", "7");

  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), "7");
}

TEST_P(SettingsContract, ADamagedStoreIsToldOnceAndGivesWayToAnEmptyOne) {
  settings.save("Zelvane", "Schedule", "RunOn", "7");
  bed->damage();

  const auto told = settings.check();

  EXPECT_NE(told, std::nullopt);
  EXPECT_EQ(settings.check(), std::nullopt);
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), std::nullopt);
  settings.save("Zelvane", "Schedule", "RunOn", "8");
  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), "8");
}

TEST_P(SettingsContract, EachDamagedStoreIsKeptUnderAnotherName) {
  bed->damage();
  const auto first = settings.check();
  bed->damage();
  const auto second = settings.check();

  EXPECT_NE(first, std::nullopt);
  EXPECT_NE(second, std::nullopt);
  EXPECT_NE(first, second);
}

TEST_P(SettingsContract, ADamagedStoreIsNeitherReadNorWrittenOver) {
  bed->damage();

  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), std::nullopt);
  EXPECT_THROW(settings.save("Zelvane", "Schedule", "RunOn", "7"), Error);
  EXPECT_NE(settings.check(), std::nullopt);
}

TEST_P(SettingsContract, AStoreThatCannotBeReadHasNoValuesAndTakesNone) {
  bed->makeUnreadable();

  EXPECT_EQ(settings.find("Zelvane", "Schedule", "RunOn"), std::nullopt);
  EXPECT_THROW(settings.save("Zelvane", "Schedule", "RunOn", "7"), Error);
}

TEST_P(SettingsContract, AStoreThatCannotBeReadIsToldAndStaysWhereItIs) {
  bed->makeUnreadable();

  EXPECT_NE(settings.check(), std::nullopt);
  EXPECT_NE(settings.check(), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
