#include "platform/windows/windows_programs.h"

#include <cstdint>
#include <utility>

#include <shellapi.h>

#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

// The shell's functions answer with a number of the times when that was an address.
bool succeeded(HINSTANCE answer) {
  constexpr std::intptr_t kLastFailure = 32;
  return reinterpret_cast<std::intptr_t>(answer) > kLastFailure;
}

bool hasZero(const std::string& text) { return text.find('\0') != std::string::npos; }

}  // namespace

WindowsPrograms::WindowsPrograms(std::function<HWND()> owner) : owner_(std::move(owner)) {}

std::optional<std::string> WindowsPrograms::programFor(const std::string& file) const {
  wchar_t program[MAX_PATH] = {};
  if (hasZero(file) || !succeeded(FindExecutableW(wideText(file).c_str(), L"", program))) {
    return std::nullopt;
  }
  return plainText(program);
}

bool WindowsPrograms::start(const std::string& program, const std::string& argument) {
  if (hasZero(program) || hasZero(argument)) return false;
  const std::wstring parameters = L"\"" + wideText(argument) + L"\"";
  // A command line has no room for more, and half an address is another one.
  constexpr std::size_t kLongest = 32'766;  // with the program's path in quotes, and a blank
  if (wideText(program).size() + parameters.size() + 3 > kLongest) return false;
  return succeeded(ShellExecuteW(owner_(), L"open", wideText(program).c_str(), parameters.c_str(),
                                 L"", SW_SHOWNOACTIVATE));
}

}  // namespace zelvane::platform
