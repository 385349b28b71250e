// What every desktop's dialogs promise.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/dialogs.h"

namespace zelvane::test {

class DialogsBed {
 public:
  virtual ~DialogsBed() = default;

  virtual platform::Dialogs& dialogs() = 0;

  // What the user will do with the next box or question once it is open.
  virtual void willClose() = 0;
  virtual void willChoose(const std::string& path) = 0;
  virtual void willCancel() = 0;

  // What was on the screen last.
  virtual platform::MessageBox lastBox() const = 0;

  // A folder that exists, without a closing separator.
  virtual std::string folder() const = 0;
};

using MakeDialogsBed = std::unique_ptr<DialogsBed> (*)();

class DialogsContract : public testing::TestWithParam<MakeDialogsBed> {
 protected:
  std::unique_ptr<DialogsBed> bed = GetParam()();
};

}  // namespace zelvane::test
