// What every clipboard promises.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/clipboard.h"

namespace zelvane::test {

class ClipboardBed {
 public:
  virtual ~ClipboardBed() = default;

  virtual platform::Clipboard& clipboard() = 0;

  // As a user does with Ctrl+C, and, where the desktop has that too, by selecting.
  virtual void copy(const std::string& text) = 0;

  // What pasting would give, by whichever way.
  virtual std::string pasted() const = 0;
};

using MakeClipboardBed = std::unique_ptr<ClipboardBed> (*)();

class ClipboardContract : public testing::TestWithParam<MakeClipboardBed> {
 protected:
  std::unique_ptr<ClipboardBed> bed = GetParam()();
};

}  // namespace zelvane::test
