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

struct Close {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

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

// A Unix process cannot be waited for; the program that starts one for others can.
void runUnixTool(const std::string& name, const std::vector<std::string>& arguments) {
  std::string line = "start.exe /wait /unix /bin/" + name;
  for (const std::string& argument : arguments) line += " \"" + argument + "\"";
  std::wstring wide = platform::wideText(line);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, wide.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    throw std::runtime_error("cannot start " + name);
  }
  CloseHandle(started.hThread);
  const std::unique_ptr<HANDLE, Close> process(started.hProcess);
  WaitForSingleObject(process.get(), INFINITE);
}

}  // namespace zelvane::test
