#include "platform/memory/faulty_registry.h"
#include "platform/memory/memory_registry.h"
#include "tests/contract/registry_contract.h"

namespace zelvane::test {
namespace {

using platform::MemoryRegistry;
using Root = platform::Registry::Root;
using Result = platform::Registry::Result;
using Type = platform::Registry::Type;

class MemoryRegistryBed : public RegistryBed {
 public:
  platform::Registry& registry() override { return registry_; }
  platform::Registry& inAnotherProcess() override { return registry_; }
  void makeUnwritable(Root root, const std::string& path) override { registry_.refuse(root, path); }
  void damage() override { registry_.damage(); }
  void makeUnreadable() override { registry_.refuseEverything(); }

 private:
  MemoryRegistry registry_;
};

std::unique_ptr<RegistryBed> makeMemoryRegistryBed() {
  return std::make_unique<MemoryRegistryBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, RegistryContract, testing::Values(makeMemoryRegistryBed));

// With no fault set a decorator is like what it wraps.
class FaultyRegistryBed : public MemoryRegistryBed {
 public:
  platform::Registry& registry() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyRegistry faulty_{MemoryRegistryBed::registry(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, RegistryContract,
                         testing::Values([]() -> std::unique_ptr<RegistryBed> {
                           return std::make_unique<FaultyRegistryBed>();
                         }));

TEST(MemoryRegistry, KnowsWhichKeysWereNeverClosed) {
  MemoryRegistry registry;
  const auto first = registry.create(Root::classes, ".dvk").key;
  registry.open(Root::currentUser, "Software");
  registry.open(Root::classes, ".DVK");

  registry.close(first);

  EXPECT_EQ(registry.openKeys(), (std::vector<std::string>{"Software", ".DVK"}));
}

TEST(MemoryRegistry, ShowsAStringWithoutItsClosingZero) {
  MemoryRegistry registry;
  registry.put(Root::classes, ".dvk", "", "text");
  const auto key = registry.open(Root::classes, ".dvk").key;
  registry.set(key, "no zero", Type::string, bytesOf("text"));
  registry.set(key, "number", Type::number, bytesOf("1234"));

  EXPECT_EQ(registry.text(Root::classes, ".dvk", ""), "text");
  EXPECT_EQ(registry.value(Root::classes, ".dvk", "")->data, bytesOf(std::string("text\0", 5)));
  EXPECT_EQ(registry.text(Root::classes, ".dvk", "no zero"), "text");
  EXPECT_EQ(registry.text(Root::classes, ".dvk", "number"), std::nullopt);
  EXPECT_EQ(registry.text(Root::classes, ".dvk", "missing"), std::nullopt);
  EXPECT_EQ(registry.text(Root::classes, "missing", ""), std::nullopt);
}

TEST(MemoryRegistry, ARefusedKeyCannotBeOpened) {
  MemoryRegistry registry;
  registry.refuse(Root::currentUser, "Software");

  EXPECT_EQ(registry.open(Root::currentUser, "Software").result, Result::accessDenied);
  EXPECT_EQ(registry.open(Root::currentUser, R"(Software\Microsoft)").result, Result::success);
}

TEST(MemoryRegistry, ARootIsNeverDeleted) {
  MemoryRegistry registry;
  registry.deleteKey(Root::localMachine, R"(SOFTWARE\Classes)");
  registry.deleteKey(Root::localMachine, "SOFTWARE");

  EXPECT_EQ(registry.deleteKey(Root::localMachine, ""), Result::accessDenied);
  EXPECT_TRUE(registry.hasKey(Root::localMachine, ""));
}

}  // namespace
}  // namespace zelvane::test
