#include "tests/contract/registry_contract.h"

namespace zelvane::test {
namespace {

constexpr const char* kMain = R"(Software\Microsoft\Internet Explorer\Main)";

TEST_P(RegistryContract, ANewDesktopHasTheKeysThatTheProgramOnlyOpens) {
  const std::string current = R"(Software\Microsoft\Windows\CurrentVersion\)";

  EXPECT_EQ(registry.open(Root::currentUser, current + "Run").result, Result::success);
  EXPECT_EQ(registry.open(Root::currentUser, kMain).result, Result::success);
  EXPECT_EQ(registry.open(Root::currentUser, current + R"(Explorer\AutoComplete)").result,
            Result::success);
  EXPECT_EQ(registry.open(Root::classes, "").result, Result::success);
  EXPECT_EQ(registry.open(Root::localMachine, R"(SOFTWARE\Classes)").result, Result::success);
}

TEST_P(RegistryContract, OpeningAKeyThatIsMissingSaysSoAndMakesNothing) {
  const auto first = registry.open(Root::currentUser, R"(Software\Zelvane test\Missing)");
  const auto second = registry.open(Root::currentUser, R"(Software\Zelvane test)");

  EXPECT_EQ(first.result, Result::notFound);
  EXPECT_EQ(first.key, 0U);
  EXPECT_EQ(second.result, Result::notFound);
}

TEST_P(RegistryContract, CreatingMakesTheKeyAndThoseAboveIt) {
  const auto created = registry.create(Root::classes, R"(.zvt\shell\open\command)");

  EXPECT_EQ(created.result, Result::success);
  EXPECT_NE(created.key, 0U);
  EXPECT_EQ(registry.open(Root::classes, R"(.zvt\shell\open\command)").result, Result::success);
  EXPECT_EQ(registry.open(Root::classes, R"(.zvt\shell)").result, Result::success);
}

TEST_P(RegistryContract, CreatingAKeyThatExistsOpensItWithItsValues) {
  set(registry.create(Root::classes, ".zvt").key, "", "zvt_auto_file");

  const auto again = registry.create(Root::classes, ".zvt");

  EXPECT_EQ(again.result, Result::success);
  EXPECT_EQ(data(again.key, ""), string("zvt_auto_file"));
}

TEST_P(RegistryContract, NamesAreToldApartWithoutRegardToCase) {
  set(registry.create(Root::classes, R"(.ZVT\Shell)").key, "Start Page", "first");

  const auto key = registry.open(Root::classes, R"(.zvt\SHELL)").key;

  EXPECT_EQ(data(key, "START PAGE"), string("first"));
  EXPECT_EQ(set(key, "start page", "second"), Result::success);
  EXPECT_EQ(data(key, "Start Page"), string("second"));
  EXPECT_EQ(registry.deleteValue(key, "sTART pAGE"), Result::success);
  EXPECT_EQ(registry.deleteKey(Root::classes, R"(.zVt\sHeLL)"), Result::success);
}

TEST_P(RegistryContract, TheSamePathBelowAnotherRootIsAnotherKey) {
  registry.create(Root::classes, R"(SOFTWARE\Classes\zvt_auto_file)");

  EXPECT_EQ(registry.open(Root::localMachine, R"(SOFTWARE\Classes\zvt_auto_file)").result,
            Result::notFound);
}

TEST_P(RegistryContract, NamesMayHoldWhatPathsOfFilesAreMadeOf) {
  const std::string path = R"(.zvt\a/b [c] = d;é)";
  const auto created = registry.create(Root::classes, path);
  set(created.key, R"(C:\Program Files\x=[1]/é)", "here");

  const auto opened = registry.open(Root::classes, path);

  EXPECT_EQ(data(opened.key, R"(C:\Program Files\x=[1]/é)"), string("here"));
}

TEST_P(RegistryContract, AValueThatIsMissingIsNothing) {
  const auto key = registry.open(Root::currentUser, kMain).key;

  EXPECT_EQ(registry.query(key, "Zelvane test"), std::nullopt);
  EXPECT_EQ(registry.deleteValue(key, "Zelvane test"), Result::notFound);
}

TEST_P(RegistryContract, AStringKeepsItsClosingZeroByte) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "Start Page", "about:blank");

  const auto value = registry.query(key, "Start Page");

  EXPECT_EQ(value, (Registry::Value{Type::string, bytesOf(std::string("about:blank\0", 12))}));
}

TEST_P(RegistryContract, AnEmptyStringIsAValue) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "Start Page", "");

  EXPECT_EQ(data(key, "Start Page"), string(""));
}

TEST_P(RegistryContract, ANumberKeepsItsFourBytes) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  const auto number = bytesOf("\x78\x56\x34\x92");
  registry.set(key, "number", Type::number, number);

  EXPECT_EQ(registry.query(key, "number"), (Registry::Value{Type::number, number}));
}

TEST_P(RegistryContract, TheEmptyNameIsTheDefaultValueAndNoOther) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "", "default");
  set(key, "named", "other");

  EXPECT_EQ(data(key, ""), string("default"));
  EXPECT_EQ(registry.deleteValue(key, ""), Result::success);
  EXPECT_EQ(data(key, ""), std::nullopt);
  EXPECT_EQ(data(key, "named"), string("other"));
}

TEST_P(RegistryContract, SettingAgainReplacesTextAndType) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "value", "a longer text");
  registry.set(key, "value", Type::number, bytesOf("1234"));

  EXPECT_EQ(registry.query(key, "value"), (Registry::Value{Type::number, bytesOf("1234")}));
}

TEST_P(RegistryContract, ADeletedValueIsGoneAndTheOthersStay) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "one", "1");
  set(key, "two", "2");

  EXPECT_EQ(registry.deleteValue(key, "one"), Result::success);

  EXPECT_EQ(data(key, "one"), std::nullopt);
  EXPECT_EQ(data(key, "two"), string("2"));
  EXPECT_EQ(registry.deleteValue(key, "one"), Result::notFound);
}

TEST_P(RegistryContract, AClosedKeyIsNoKeyAnyMore) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "value", "1");

  registry.close(key);

  EXPECT_EQ(registry.query(key, "value"), std::nullopt);
  EXPECT_EQ(set(key, "value", "2"), Result::invalidHandle);
  EXPECT_EQ(registry.deleteValue(key, "value"), Result::invalidHandle);
}

TEST_P(RegistryContract, ZeroIsNoKey) {
  EXPECT_EQ(registry.query(0, ""), std::nullopt);
  EXPECT_EQ(set(0, "", "text"), Result::invalidHandle);
  EXPECT_EQ(registry.deleteValue(0, ""), Result::invalidHandle);
  registry.close(0);
}

TEST_P(RegistryContract, AKeyOpenedTwiceIsClosedTwice) {
  const auto first = registry.create(Root::classes, ".zvt").key;
  const auto second = registry.open(Root::classes, ".zvt").key;

  registry.close(first);

  EXPECT_NE(first, second);
  EXPECT_EQ(set(second, "value", "1"), Result::success);
}

TEST_P(RegistryContract, AKeyIsDeletedWithItsValues) {
  set(registry.create(Root::classes, R"(.zvt\inner)").key, "value", "1");

  EXPECT_EQ(registry.deleteKey(Root::classes, R"(.zvt\inner)"), Result::success);

  EXPECT_EQ(registry.open(Root::classes, R"(.zvt\inner)").result, Result::notFound);
  EXPECT_EQ(registry.open(Root::classes, ".zvt").result, Result::success);
  EXPECT_EQ(data(registry.create(Root::classes, R"(.zvt\inner)").key, "value"), std::nullopt);
}

TEST_P(RegistryContract, AKeyWithKeysBelowItIsNotDeleted) {
  set(registry.create(Root::classes, ".zvt").key, "value", "1");
  registry.create(Root::classes, R"(.zvt\inner)");

  EXPECT_EQ(registry.deleteKey(Root::classes, ".zvt"), Result::accessDenied);

  EXPECT_EQ(data(registry.open(Root::classes, ".zvt").key, "value"), string("1"));
  EXPECT_EQ(registry.open(Root::classes, R"(.zvt\inner)").result, Result::success);
}

TEST_P(RegistryContract, AKeyThatIsMissingIsNotFoundForDeletion) {
  EXPECT_EQ(registry.deleteKey(Root::classes, ".zvt"), Result::notFound);
  EXPECT_EQ(registry.deleteKey(Root::classes, R"(.zvt\inner)"), Result::notFound);
}

TEST_P(RegistryContract, WhoHoldsADeletedKeyOpenFindsNothing) {
  const auto held = registry.create(Root::classes, ".zvt").key;
  set(held, "value", "1");

  EXPECT_EQ(registry.deleteKey(Root::classes, ".zvt"), Result::success);

  EXPECT_EQ(registry.query(held, "value"), std::nullopt);
  EXPECT_EQ(set(held, "value", "2"), Result::notFound);
  EXPECT_EQ(registry.deleteValue(held, "value"), Result::notFound);
  EXPECT_EQ(registry.open(Root::classes, ".zvt").result, Result::notFound);
}

TEST_P(RegistryContract, AKeyMadeAnewIsAnotherOneThanTheDeleted) {
  const auto held = registry.create(Root::classes, ".zvt").key;
  registry.deleteKey(Root::classes, ".zvt");

  const auto anew = registry.create(Root::classes, ".ZVT").key;

  EXPECT_EQ(set(anew, "value", "1"), Result::success);
  EXPECT_EQ(set(held, "value", "2"), Result::notFound);
  EXPECT_EQ(registry.query(held, "value"), std::nullopt);
}

TEST_P(RegistryContract, AnotherProcessSeesWhatWasWritten) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "value", "1");

  Registry& other = bed->inAnotherProcess();
  const auto value = other.query(other.open(Root::classes, ".zvt").key, "value");

  EXPECT_EQ(value, (Registry::Value{Type::string, string("1")}));
}

TEST_P(RegistryContract, WhatAnotherProcessWroteMeanwhileStays) {
  const auto key = registry.create(Root::classes, ".zvt").key;
  Registry& other = bed->inAnotherProcess();
  other.set(other.open(Root::classes, ".zvt").key, "theirs", Type::string, string("2"));

  set(key, "ours", "1");

  EXPECT_EQ(data(key, "theirs"), string("2"));
  EXPECT_EQ(data(key, "ours"), string("1"));
}

TEST_P(RegistryContract, AKeyThatCannotBeWrittenDeniesAccess) {
  if (const std::string why = bed->whyNoRefusals(); !why.empty()) GTEST_SKIP() << why;
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "value", "1");
  bed->makeUnwritable(Root::classes, ".zvt");

  EXPECT_EQ(set(key, "value", "2"), Result::accessDenied);
  EXPECT_EQ(registry.deleteValue(key, "value"), Result::accessDenied);
  EXPECT_EQ(registry.deleteKey(Root::classes, ".zvt"), Result::accessDenied);
  EXPECT_EQ(registry.create(Root::classes, R"(.zvt\inner)").result, Result::accessDenied);
  EXPECT_EQ(registry.create(Root::classes, R"(.zvt\inner)").key, 0U);
}

TEST_P(RegistryContract, ARegistryThatDoesNotExistYetIsFine) {
  EXPECT_EQ(registry.check(), std::nullopt);
}

TEST_P(RegistryContract, ARegistryWithValuesIsFineAndKeepsThem) {
  set(registry.create(Root::classes, ".zvt").key, "value", "1");

  EXPECT_EQ(registry.check(), std::nullopt);
  EXPECT_EQ(data(registry.open(Root::classes, ".zvt").key, "value"), string("1"));
}

TEST_P(RegistryContract, ADamagedRegistryIsToldOnceAndGivesWayToANewOne) {
  if (const std::string why = bed->whyNoDamage(); !why.empty()) GTEST_SKIP() << why;
  set(registry.create(Root::classes, ".zvt").key, "value", "1");
  bed->damage();

  const auto told = registry.check();

  EXPECT_NE(told, std::nullopt);
  EXPECT_EQ(registry.check(), std::nullopt);
  EXPECT_EQ(registry.open(Root::classes, ".zvt").result, Result::notFound);
  const auto key = registry.open(Root::currentUser, kMain).key;
  EXPECT_EQ(set(key, "Start Page", "about:blank"), Result::success);
  EXPECT_EQ(data(key, "Start Page"), string("about:blank"));
}

TEST_P(RegistryContract, EachDamagedRegistryIsKeptUnderAnotherName) {
  if (const std::string why = bed->whyNoDamage(); !why.empty()) GTEST_SKIP() << why;
  bed->damage();
  const auto first = registry.check();
  bed->damage();
  const auto second = registry.check();

  EXPECT_NE(first, std::nullopt);
  EXPECT_NE(second, std::nullopt);
  EXPECT_NE(first, second);
}

TEST_P(RegistryContract, ADamagedRegistryIsNeitherReadNorWrittenOver) {
  if (const std::string why = bed->whyNoDamage(); !why.empty()) GTEST_SKIP() << why;
  const auto key = registry.create(Root::classes, ".zvt").key;
  set(key, "value", "1");
  bed->damage();

  EXPECT_EQ(registry.open(Root::currentUser, kMain).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, ".zvt").result, Result::accessDenied);
  EXPECT_EQ(data(key, "value"), std::nullopt);
  EXPECT_EQ(set(key, "value", "2"), Result::accessDenied);
  EXPECT_EQ(registry.deleteValue(key, "value"), Result::accessDenied);
  EXPECT_EQ(registry.deleteKey(Root::classes, ".zvt"), Result::accessDenied);
  EXPECT_NE(registry.check(), std::nullopt);
}

TEST_P(RegistryContract, ARegistryThatCannotBeReadHasNoKeysAndTakesNone) {
  if (const std::string why = bed->whyNoDamage(); !why.empty()) GTEST_SKIP() << why;
  bed->makeUnreadable();

  EXPECT_EQ(registry.open(Root::currentUser, kMain).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, ".zvt").result, Result::accessDenied);
  EXPECT_EQ(registry.deleteKey(Root::currentUser, kMain), Result::accessDenied);
}

TEST_P(RegistryContract, ARegistryThatCannotBeReadIsToldAndStaysWhereItIs) {
  if (const std::string why = bed->whyNoDamage(); !why.empty()) GTEST_SKIP() << why;
  bed->makeUnreadable();

  EXPECT_NE(registry.check(), std::nullopt);
  EXPECT_NE(registry.check(), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
