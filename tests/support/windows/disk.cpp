#include "tests/support/windows/disk.h"

#include <stdexcept>

#include <sddl.h>

#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {

using platform::Handle;
using platform::longPath;

namespace {

void succeed(bool succeeded, const std::string& what) {
  if (!succeeded) throw std::runtime_error(what + ": error " + std::to_string(GetLastError()));
}

std::string above(const std::string& path) { return path.substr(0, path.find_last_of("/\\")); }

}  // namespace

void makeFolders(const std::string& path) {
  if (isThere(path)) return;
  makeFolders(above(path));
  succeed(CreateDirectoryW(longPath(path).c_str(), nullptr) != 0, path);
}

void makeFile(const std::string& path, const std::string& content) {
  makeFolders(above(path));
  const Handle file(CreateFileW(longPath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  succeed(file.isOpen(), path);
  DWORD written = 0;
  succeed(WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written,
                    nullptr) != 0,
          path);
}

void makeLink(const std::string& path, const std::string& target) {
  if (runsUnderWine()) {
    runUnixTool("ln", {"-s", "--", unixPath(target), unixPath(path)});
    return;
  }
  const DWORD attributes = attributesOf(target);
  const bool toFolder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  succeed(CreateSymbolicLinkW(longPath(path).c_str(), longPath(target).c_str(),
                              SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE |
                                  (toFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0)) != 0,
          path);
}

bool isThere(const std::string& path) { return attributesOf(path) != INVALID_FILE_ATTRIBUTES; }

void setAttributes(const std::string& path, DWORD attributes) {
  succeed(SetFileAttributesW(longPath(path).c_str(), attributes) != 0, path);
}

DWORD attributesOf(const std::string& path) { return GetFileAttributesW(longPath(path).c_str()); }

void denyEverything(const std::string& path) {
  PSECURITY_DESCRIPTOR nobody = nullptr;
  succeed(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P", SDDL_REVISION_1, &nobody,
                                                               nullptr) != 0,
          path);
  const bool done =
      SetFileSecurityW(longPath(path).c_str(),
                       DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                       nobody) != 0;
  LocalFree(nobody);
  succeed(done, path);
}

}  // namespace zelvane::test
