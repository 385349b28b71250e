#include "platform/windows/user_sid.h"

#include <memory>
#include <vector>

#include <windows.h>
#include <aclapi.h>
#include <sddl.h>

#include "platform/windows/handle.h"
#include "platform/windows/private_access.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

constexpr std::wstring_view kAdministrators = L"S-1-5-32-544";

}  // namespace

std::wstring sidText(PSID sid) {
  wchar_t* allocated = nullptr;
  if (ConvertSidToStringSidW(sid, &allocated) == 0) throwSystemError();
  const std::unique_ptr<wchar_t, FreeLocal> text(allocated);
  return text.get();
}

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
  return sidText(reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid);
}

bool isOwn(HANDLE opened) {
  PSID owner = nullptr;
  PSECURITY_DESCRIPTOR allocated = nullptr;
  const DWORD code = GetSecurityInfo(opened, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                                     nullptr, nullptr, nullptr, &allocated);
  if (code != ERROR_SUCCESS) throw errorFor(code);
  const Access access(static_cast<SECURITY_DESCRIPTOR*>(allocated));
  const std::wstring text = sidText(owner);
  return text == kAdministrators || text == userOfThisProcess();
}

}  // namespace zelvane::platform
