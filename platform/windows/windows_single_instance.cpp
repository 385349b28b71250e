#include "platform/windows/windows_single_instance.h"

#include <cstddef>
#include <vector>

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

// In digits; empty where the system does not tell: then the session alone tells users apart.
std::wstring numberOfUser() {
  HANDLE token = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) return {};
  std::vector<std::byte> user(sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE);
  DWORD size = 0;
  const bool told = GetTokenInformation(token, TokenUser, user.data(),
                                        static_cast<DWORD>(user.size()), &size) != 0;
  CloseHandle(token);
  if (!told) return {};
  const PSID sid = reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid;
  std::wstring number;
  for (DWORD part = 0; part < *GetSidSubAuthorityCount(sid); ++part) {
    number += L'-' + std::to_wstring(*GetSidSubAuthority(sid, part));
  }
  return number;
}

}  // namespace

void WindowsSingleInstance::CloseMutex::operator()(void* mutex) const { CloseHandle(mutex); }

std::wstring nameForThisUser(const std::string& program) {
  return LR"(Local\)" + wideText(program) + numberOfUser();
}

WindowsSingleInstance::WindowsSingleInstance(const std::string& program)
    : name_(nameForThisUser(program)) {}

bool WindowsSingleInstance::claim() {
  mutex_.reset(CreateMutexExW(nullptr, name_.c_str(), 0, SYNCHRONIZE));
  const DWORD code = GetLastError();
  // One that may not be opened is there: its holder has more rights, as an administrator's program.
  const bool isHeld = code == ERROR_ALREADY_EXISTS || code == ERROR_ACCESS_DENIED;
  // A refused instance must not keep the name alive longer than its holder.
  if (isHeld) mutex_.reset();
  return !isHeld;
}

}  // namespace zelvane::platform
