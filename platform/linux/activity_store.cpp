#include "platform/linux/activity_store.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <algorithm>
#include <array>
#include <string_view>

#include "platform/error.h"
#include "platform/shared/browsers/database.h"

namespace zelvane::platform {
namespace {

constexpr auto kTables = std::to_array<std::string_view>({"ResourceEvent", "ResourceScoreCache"});

}  // namespace

bool ActivityStore::holdsAnything() const {
  try {
    const Database database(database_, Database::Use::reading, desktop_);
    return std::ranges::any_of(kTables, [&](std::string_view table) {
      return database.has(table) &&
             database.number("SELECT EXISTS (SELECT 1 FROM " + sqlName(table) + ")") != 0;
    });
  } catch (const Error&) {
    return true;
  }
}

void ActivityStore::erase() {
  constexpr int kPatience = 2000;  // milliseconds
  QDBusMessage call =
      QDBusMessage::createMethodCall(QStringLiteral("org.kde.ActivityManager"),
                                     QStringLiteral("/ActivityManager/Resources/Scoring"),
                                     QStringLiteral("org.kde.ActivityManager.ResourcesScoring"),
                                     QStringLiteral("DeleteStatsForResource"));
  // On another desktop it would be started for nothing, and stay.
  call.setAutoStartService(false);
  call << QStringLiteral(":any") << QStringLiteral(":any") << QStringLiteral("*");
  const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, kPatience);
  if (answer.type() != QDBusMessage::ReplyMessage) {
    throw Error(ErrorNumber::permissionDenied, "the activity manager does not answer");
  }
}

}  // namespace zelvane::platform
