#include "platform/windows/private_access.h"

#include <string>
#include <vector>

#include <sddl.h>
#include <windows.h>

#include "platform/windows/handle.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

// In the form S-1-5-21-...
std::wstring userOfThisProcess() {
  HANDLE opened = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) throwSystemError();
  const Handle token(opened);
  std::vector<char> user(sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE);
  DWORD size = 0;
  if (GetTokenInformation(token.get(), TokenUser, user.data(), static_cast<DWORD>(user.size()),
                          &size) == 0) {
    throwSystemError();
  }
  wchar_t* allocated = nullptr;
  const PSID sid = reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid;
  if (ConvertSidToStringSidW(sid, &allocated) == 0) throwSystemError();
  const std::unique_ptr<wchar_t, FreeLocal> text(allocated);
  return text.get();
}

}  // namespace

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
