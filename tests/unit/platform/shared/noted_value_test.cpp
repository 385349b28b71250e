#include "platform/shared/noted_value.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_registry.h"

namespace zelvane::platform {
namespace {

using Result = Registry::Result;
using Root = Registry::Root;

constexpr auto kList = R"(Software\Start\List)";

class NotedValueTest : public testing::Test {
 protected:
  NotedValueTest() { hive.addKey(Root::currentUser, kList); }

  std::optional<std::string> text;
  Ledger ledger{[this](const Ledger::Change& change) {
    if (auto next = change(text)) text = std::move(next);
  }};
  MemoryRegistry hive;
  LiveRegistry registry{hive, {}, {notedValue(ledger, kList, "Mine")}};
};

TEST_F(NotedValueTest, IsInTheLedgerWhileItIsThere) {
  const Registry::Key key = registry.open(Root::currentUser, kList).key;

  registry.set(key, "Mine", Registry::Type::string, {});
  EXPECT_EQ(ledger.entries(),
            (std::vector<Ledger::Entry>{
                {Ledger::Kind::registryValue, R"(HKEY_CURRENT_USER\Software\Start\List\Mine)"}}));

  registry.deleteValue(key, "Mine");
  EXPECT_TRUE(ledger.entries().empty());
}

TEST_F(NotedValueTest, IsNotSetWhereTheLedgerIsNotUnderstood) {
  text = "Zelvane ledger 2\n";
  const Registry::Key key = registry.open(Root::currentUser, kList).key;

  EXPECT_EQ(registry.set(key, "Mine", Registry::Type::string, {}), Result::accessDenied);

  EXPECT_EQ(hive.value(Root::currentUser, kList, "Mine"), std::nullopt);
  EXPECT_EQ(text, "Zelvane ledger 2\n");
}

}  // namespace
}  // namespace zelvane::platform
