// Whether another instance runs is what a test says.
#pragma once

#include "platform/single_instance.h"

namespace zelvane::platform {

class MemorySingleInstance : public SingleInstance {
 public:
  bool claim() override {
    ++claims_;
    return !heldByAnother;
  }

  bool heldByAnother = false;

  // How often the claim was made.
  int claims() const { return claims_; }

 private:
  int claims_ = 0;
};

}  // namespace zelvane::platform
