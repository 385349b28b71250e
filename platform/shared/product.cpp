#include "platform/shared/product.h"

#include "platform/shared/version.h"

namespace zelvane::platform {

VersionRecord product() {
  return {.productName = "Zelvane",
          .title = "Zelvane",
          .major = kVersionMajor,
          .minor = kVersionMinor,
          .companyName = "Zelvane",
          .legalText = "Copyright 2026",
          .makerAddress = "https://www.zelvane.example/"};
}

}  // namespace zelvane::platform
