#include "platform/windows/private_access.h"

#include <string>

#include <windows.h>
#include <sddl.h>

#include "platform/windows/system_error.h"
#include "platform/windows/user_sid.h"

namespace zelvane::platform {

Access privateAccess() {
  const std::wstring rule = L"D:P(A;;FA;;;" + userOfThisProcess() + L")";
  void* access = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rule.c_str(), SDDL_REVISION_1, &access,
                                                           nullptr) == 0) {
    throwSystemError();
  }
  return Access(static_cast<SECURITY_DESCRIPTOR*>(access));
}

}  // namespace zelvane::platform
