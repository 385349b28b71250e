#include "core/registry_routines.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/memory_registry.h"

namespace zelvane::core::Registry {
namespace {

using Port = platform::Registry;
using Root = Port::Root;
using Type = Port::Type;

constexpr auto kMain = R"(Software\Microsoft\Internet Explorer\Main)";

std::vector<std::byte> bytes(const std::string& text) {
  const auto view = std::as_bytes(std::span(text));
  return {view.begin(), view.end()};
}

TEST(RegistryRoutines, AStringIsStoredWithExactlyOneZeroByteCounted) {
  platform::MemoryRegistry registry;

  SetKeyValue(registry, Root::currentUser, kMain, "Start Page", "about:blank", Type::string);

  const auto value = registry.value(Root::currentUser, kMain, "Start Page");
  ASSERT_TRUE(value);
  EXPECT_EQ(value->type, Type::string);
  EXPECT_EQ(value->data, bytes(std::string("about:blank\0", 12)));
}

TEST(RegistryRoutines, ANumberIsStoredAsFourBytesLowestFirst) {
  platform::MemoryRegistry registry;

  SetKeyValue(registry, Root::currentUser, kMain, "Count", std::uint32_t{0x01020304}, Type::number);

  EXPECT_EQ(registry.value(Root::currentUser, kMain, "Count")->data, bytes("\x04\x03\x02\x01"));
}

TEST(RegistryRoutines, AMissingKeyIsNeverCreatedAndNothingIsSaid) {
  platform::MemoryRegistry registry;

  SetKeyValue(registry, Root::localMachine, R"(SOFTWARE\Missing)", "", "text", Type::string);

  EXPECT_FALSE(registry.hasKey(Root::localMachine, R"(SOFTWARE\Missing)"));
}

TEST(RegistryRoutines, AKeyIsClosedAfterEachCallAlsoWhenTheValueDoesNotConvert) {
  platform::MemoryRegistry registry;

  SetKeyValue(registry, Root::currentUser, kMain, "Start Page", "x", Type::string);
  EXPECT_THROW(SetKeyValue(registry, Root::currentUser, kMain, "Count", "no number", Type::number),
               platform::Error);
  stringValue(registry, Root::currentUser, kMain, "Start Page");

  EXPECT_TRUE(registry.openKeys().empty());
}

TEST(RegistryRoutines, ARefusedKeyIsLeftAsItWasAndNothingIsSaid) {
  platform::MemoryRegistry registry;
  registry.put(Root::currentUser, kMain, "Start Page", "old");
  registry.refuse(Root::currentUser, kMain);

  SetKeyValue(registry, Root::currentUser, kMain, "Start Page", "new", Type::string);

  EXPECT_EQ(registry.text(Root::currentUser, kMain, "Start Page"), "old");
}

TEST(RegistryRoutines, AValueOfTheOtherKindIsConverted) {
  platform::MemoryRegistry registry;

  SetKeyValue(registry, Root::currentUser, kMain, "Text", std::uint32_t{7}, Type::string);
  SetKeyValue(registry, Root::currentUser, kMain, "Number", "258", Type::number);

  EXPECT_EQ(registry.text(Root::currentUser, kMain, "Text"), "7");
  EXPECT_EQ(registry.value(Root::currentUser, kMain, "Number")->data,
            bytes(std::string("\x02\x01\0\0", 4)));
}

TEST(RegistryRoutines, AnyOtherTypeWritesNothing) {
  platform::MemoryRegistry registry;
  constexpr auto kBinary = static_cast<Type>(3);

  SetKeyValue(registry, Root::currentUser, kMain, "Blob", "text", kBinary);

  EXPECT_EQ(registry.value(Root::currentUser, kMain, "Blob"), std::nullopt);
}

TEST(RegistryRoutines, AStringIsReadUpToItsFirstZeroByteAndANumberIsNoString) {
  platform::MemoryRegistry registry;
  const auto key = registry.open(Root::currentUser, kMain).key;
  registry.set(key, "Text", Type::string, bytes(std::string("yes\0no\0", 7)));
  registry.set(key, "Bare", Type::string, bytes("bare"));
  registry.set(key, "Number", Type::number, bytes("abcd"));
  registry.close(key);

  EXPECT_EQ(stringValue(registry, Root::currentUser, kMain, "Text"), "yes");
  EXPECT_EQ(stringValue(registry, Root::currentUser, kMain, "Bare"), "bare");
  EXPECT_EQ(stringValue(registry, Root::currentUser, kMain, "Number"), std::nullopt);
  EXPECT_EQ(stringValue(registry, Root::currentUser, kMain, "Missing"), std::nullopt);
  EXPECT_EQ(stringValue(registry, Root::currentUser, "Missing", "Text"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::core::Registry
