#include "platform/windows/windows_ledger.h"

#include <windows.h>

#include "platform/windows/long_path.h"
#include "platform/windows/system_error.h"
#include "platform/windows/whole_file.h"

namespace zelvane::platform {
namespace {

void makeFolder(const std::string& path) {
  const std::wstring name = longPath(path);
  if (CreateDirectoryW(name.c_str(), nullptr) == FALSE && GetLastError() != ERROR_ALREADY_EXISTS) {
    throwSystemError();
  }
  if ((GetFileAttributesW(name.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    throw Error(ErrorNumber::accessError);
  }
}

}  // namespace

// One program of a user writes it, so nobody comes between reading and writing.
Ledger windowsLedger(const std::string& folder) {
  return Ledger([folder](const Ledger::Change& change) {
    const std::string path = folder + "\\ledger.txt";
    const auto text = change(readWholeFile(path));
    if (!text) return;
    makeFolder(folder);
    replaceWholeFile(path, *text);
  });
}

}  // namespace zelvane::platform
