// What notifications promise.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/notifications.h"

namespace zelvane::test {

class NotificationsBed {
 public:
  virtual ~NotificationsBed() = default;

  virtual platform::Notifications& notifications() = 0;

  // What the user has seen so far, each as "title: text".
  virtual std::vector<std::string> seen() = 0;
};

using MakeNotificationsBed = std::unique_ptr<NotificationsBed> (*)();

class NotificationsContract : public testing::TestWithParam<MakeNotificationsBed> {
 protected:
  std::unique_ptr<NotificationsBed> bed = GetParam()();
};

}  // namespace zelvane::test
