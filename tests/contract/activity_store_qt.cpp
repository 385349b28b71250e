#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>
#include <atomic>
#include <memory>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/error.h"
#include "platform/linux/activity_store.h"
#include "platform/linux/linux_browser_desktop.h"
#include "platform/shared/browsers/database.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

constexpr auto kService = "org.kde.ActivityManager";
constexpr auto kPath = "/ActivityManager/Resources/Scoring";
constexpr auto kBus = "the manager's own connection";

// The tables of version 5.27, each with a row.
constexpr auto kDatabase = R"(
  PRAGMA journal_mode = WAL;
  CREATE TABLE ResourceEvent (usedActivity TEXT, initiatingAgent TEXT, targettedResource TEXT,
                              start INTEGER, end INTEGER);
  CREATE TABLE ResourceScoreCache (usedActivity TEXT, initiatingAgent TEXT, targettedResource TEXT,
                                   scoreType INTEGER, cachedScore FLOAT, firstUpdate INTEGER,
                                   lastUpdate INTEGER);
  CREATE TABLE ResourceLink (usedActivity TEXT, initiatingAgent TEXT, targettedResource TEXT);
  INSERT INTO ResourceEvent VALUES ('one', 'editor', 'file:///private', 1, 2);
  INSERT INTO ResourceScoreCache VALUES ('one', 'editor', 'file:///private', 0, 1.0, 1, 2);
  INSERT INTO ResourceLink VALUES (':global', 'favorites', 'applications:kept.desktop');
)";

// The manager as a process of its own is met: it answers in its own thread, over the bus, and has
// its database open all the time.
class ActivityManager : public QDBusVirtualObject {
 public:
  explicit ActivityManager(const std::string& database) {
    sqlite3_open(database.c_str(), &database_);
    run(kDatabase);
    moveToThread(&thread_);
    thread_.start();
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kBus);
    bus.registerVirtualObject(kPath, this);
    isOnTheBus = bus.registerService(kService);
  }
  ~ActivityManager() override {
    QDBusConnection::disconnectFromBus(kBus);
    thread_.quit();
    thread_.wait();
    sqlite3_close(database_);
  }

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    const bool isForAll = message.member() == "DeleteStatsForResource" &&
                          message.interface() == "org.kde.ActivityManager.ResourcesScoring" &&
                          message.arguments() == QList<QVariant>{":any", ":any", "*"};
    if (refuses || !isForAll) {
      connection.send(message.createErrorReply(QDBusError::Failed, "refused"));
    } else {
      run("DELETE FROM ResourceEvent; DELETE FROM ResourceScoreCache");
      connection.send(message.createReply());
    }
    return true;
  }

  bool isOnTheBus = false;
  std::atomic<bool> refuses = false;

 private:
  void run(const char* statements) {
    sqlite3_exec(database_, statements, nullptr, nullptr, nullptr);
  }

  QThread thread_;
  sqlite3* database_ = nullptr;
};

class ActivityStore : public testing::Test {
 protected:
  // The desktop of whoever runs the tests may have a manager of its own, which nobody may ask.
  void SetUp() override { ASSERT_TRUE(manager->isOnTheBus); }

  std::int64_t rowsIn(const std::string& table) const {
    using platform::Database;
    return Database(path, Database::Use::reading, desktop)
        .number("SELECT count(*) FROM " + platform::sqlName(table));
  }

  ThrowAwayFolder folder;
  const std::string path = folder / "database";
  platform::LinuxBrowserDesktop desktop{environmentIn(folder)};
  std::unique_ptr<ActivityManager> manager = std::make_unique<ActivityManager>(path);
  platform::ActivityStore store{path, desktop};
};

TEST_F(ActivityStore, TheManagerForgetsWhatWasUsedAndKeepsTheFavourites) {
  ASSERT_TRUE(store.holdsAnything());

  store.erase();

  EXPECT_FALSE(store.holdsAnything());
  EXPECT_EQ(rowsIn("ResourceEvent"), 0);
  EXPECT_EQ(rowsIn("ResourceScoreCache"), 0);
  EXPECT_EQ(rowsIn("ResourceLink"), 1);
}

TEST_F(ActivityStore, AManagerThatRefusesIsAnError) {
  manager->refuses = true;

  EXPECT_THROW(store.erase(), platform::Error);
  EXPECT_TRUE(store.holdsAnything());
}

TEST_F(ActivityStore, WithoutAManagerNothingIsErased) {
  manager.reset();

  EXPECT_THROW(store.erase(), platform::Error);
  EXPECT_TRUE(store.holdsAnything());
  EXPECT_EQ(rowsIn("ResourceEvent"), 1);
}

TEST_F(ActivityStore, ADatabaseThatCannotBeReadMayHoldAnything) {
  EXPECT_TRUE(platform::ActivityStore(folder.write("damaged", "none"), desktop).holdsAnything());
}

}  // namespace
}  // namespace zelvane::test
