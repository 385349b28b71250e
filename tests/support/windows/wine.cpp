#include "tests/support/windows/wine.h"

#include <memory>
#include <stdexcept>

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace zelvane::test {
namespace {

struct FreeText {
  void operator()(char* text) const { HeapFree(GetProcessHeap(), 0, text); }
};

constexpr ULONGLONG kLongestWait = 60'000;  // milliseconds

}  // namespace

bool runsUnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

std::string unixPath(const std::string& path) {
  using Ask = char*(CDECL*)(const wchar_t*);
  const auto address = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
  const auto ask = reinterpret_cast<Ask>(reinterpret_cast<void*>(address));
  const std::unique_ptr<char, FreeText> found(ask(platform::wideText(path).c_str()));
  if (found == nullptr) throw std::runtime_error("no Unix path for " + path);
  return found.get();
}

// A Unix process cannot be waited for, so a shell there makes a file when the tool has ended.
void runUnixTool(const std::string& name, const std::vector<std::string>& arguments) {
  std::wstring folder(MAX_PATH + 1, L'\0');
  std::wstring ended(MAX_PATH + 1, L'\0');
  folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
  GetTempFileNameW(folder.c_str(), L"zt", 0, ended.data());
  DeleteFileW(ended.c_str());
  std::string line = R"(sh -c "ended=$1; shift; \"$@\"; : > \"$ended\"" sh)";
  const auto add = [&line](const std::string& argument) { line += " \"" + argument + "\""; };
  add(unixPath(platform::plainText(ended.c_str())));
  add(name);
  for (const std::string& argument : arguments) add(argument);
  std::wstring wide = platform::wideText(line);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(L"\\\\?\\unix\\bin\\sh", wide.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &startup, &started) == 0) {
    throw std::runtime_error("cannot start " + name);
  }
  const ULONGLONG start = GetTickCount64();
  while (DeleteFileW(ended.c_str()) == 0) {
    if (GetTickCount64() - start > kLongestWait) throw std::runtime_error(name + " does not end");
    Sleep(1);
  }
}

}  // namespace zelvane::test
