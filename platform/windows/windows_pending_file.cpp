#include "platform/windows/windows_pending_file.h"

#include <algorithm>
#include <cassert>
#include <random>
#include <utility>

#include "platform/error.h"
#include "platform/windows/deletion.h"
#include "platform/windows/open_within.h"
#include "platform/windows/private_access.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kChunk = 1U << 20U;  // bytes
constexpr DWORD kOverQuota = 1295;         // not in every compiler's headers

std::wstring randomName() {
  constexpr std::wstring_view kDigits = L"0123456789abcdef";
  std::random_device random;
  std::wstring name = L".zelvane-";
  for (int digit = 0; digit < 32; ++digit) name += kDigits[random() % kDigits.size()];
  return name;
}

}  // namespace

WindowsPendingFile::WindowsPendingFile(Handle folder, std::wstring name, Rights rights)
    : folder_(std::move(folder)), name_(std::move(name)) {
  const Access access = rights == Rights::ofUserAlone ? privateAccess() : Access();
  file_ = createWithin(folder_.get(), randomName(),
                       {.access = GENERIC_WRITE | DELETE | FILE_READ_ATTRIBUTES, .share = 0},
                       access.get());
  if (!file_.isOpen()) throwSystemError();
  // Where this fails the destructor's attempt is the first one, and a kill leaves the file.
  deleteWhenClosed(file_.get(), true);
}

WindowsPendingFile::~WindowsPendingFile() {
  // Nothing can be done where this fails: the name is random and ours, the content private.
  if (!published_) deleteWhenClosed(file_.get(), true);
}

void WindowsPendingFile::write(std::string_view bytes) {
  assert(!published_);
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kChunk));
    if (WriteFile(file_.get(), bytes.data(), size, &written, nullptr) == 0 || written == 0) {
      const DWORD code = GetLastError();
      const bool isFull = code == ERROR_DISK_FULL || code == ERROR_HANDLE_DISK_FULL ||
                          code == ERROR_FILE_TOO_LARGE || code == kOverQuota;
      throw Error(isFull ? ErrorNumber::diskFull : ErrorNumber::deviceIo);
    }
    bytes.remove_prefix(written);
  }
}

void WindowsPendingFile::publish() {
  assert(!published_);
  if (FlushFileBuffers(file_.get()) == 0 || !deleteWhenClosed(file_.get(), false) ||
      !renameWithin(folder_.get(), name_, file_.get())) {
    throwSystemError();
  }
  published_ = true;
  // The name is in the volume's journal before this returns.
  if (FlushFileBuffers(file_.get()) == 0) throwSystemError();
  file_.close();
}

}  // namespace zelvane::platform
