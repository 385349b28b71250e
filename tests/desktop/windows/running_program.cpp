#include "tests/desktop/windows/running_program.h"

#include <array>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "platform/windows/wide_text.h"
#include "tests/desktop/windows/remote_control.h"
#include "tests/desktop/windows/waiting.h"

namespace zelvane::test {

using platform::plainText;
using platform::wideText;

namespace {

constexpr int kTextOfBox = 0xFFFF;  // the number of the text in each message box
constexpr UINT kKilled = 9;

// The first window of that process for which the condition holds; null if there is none.
HWND findTopWindow(DWORD process, std::function<bool(HWND)> condition) {
  struct Search {
    DWORD process;
    std::function<bool(HWND)> condition;
    HWND found = nullptr;
  } search{process, std::move(condition)};
  EnumWindows(
      [](HWND window, LPARAM parameter) -> BOOL {
        auto& sought = *reinterpret_cast<Search*>(parameter);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == sought.process && sought.condition(window)) sought.found = window;
        return sought.found == nullptr ? TRUE : FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string classOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return plainText(name.data());
}

}  // namespace

std::string pathOfTheProgram() {
  std::wstring own(32'768, L'\0');
  own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
  const auto folder = std::filesystem::path(own).parent_path().parent_path();
  return plainText((folder / L"Zelvane.exe").native());
}

std::string MessageBox::title() const { return textOfWindow(window_); }

std::string MessageBox::text() const { return textOfWindow(GetDlgItem(window_, kTextOfBox)); }

void MessageBox::accept() const {
  PostMessageW(window_, WM_COMMAND, IDOK, 0);
  waitUntil("the box is gone", [this] { return IsWindow(window_) == FALSE; });
}

RunningProgram::RunningProgram(const ThrowAwayWorld& world, const std::string& arguments) {
  const std::string path = pathOfTheProgram();
  std::wstring line = wideText("\"" + path + "\" " + arguments);
  std::wstring environment = world.environment();
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(wideText(path).c_str(), line.data(), nullptr, nullptr, FALSE,
                     CREATE_UNICODE_ENVIRONMENT, environment.data(), nullptr, &startup,
                     &started) == 0) {
    throw std::runtime_error("does not start: " + path);
  }
  CloseHandle(started.hThread);
  process_ = platform::Handle(started.hProcess);
  id_ = started.dwProcessId;
}

RunningProgram::~RunningProgram() { kill(); }

HWND RunningProgram::findWindow() const {
  return findTopWindow(id_, [](HWND window) {
    return IsWindowVisible(window) != FALSE && controlNameOf(window) == "frmMain";
  });
}

std::optional<MessageBox> RunningProgram::findMessage() const {
  const HWND found = findTopWindow(id_, [](HWND window) {
    return IsWindowVisible(window) != FALSE && classOf(window) == "#32770" &&
           GetDlgItem(window, kTextOfBox) != nullptr;
  });
  if (found == nullptr) return std::nullopt;
  return MessageBox(found);
}

ProgramWindow RunningProgram::window() const {
  const HWND found = waitUntil("the window is there", [this] {
    if (const auto box = findMessage()) throw std::runtime_error("a box says " + box->text());
    if (!isRunning()) throw std::runtime_error("the program has ended");
    return findWindow();
  });
  return ProgramWindow(process_.get(), found);
}

MessageBox RunningProgram::message() const {
  return *waitUntil("a message box is there", [this] {
    if (!isRunning()) throw std::runtime_error("the program has ended");
    return findMessage();
  });
}

bool RunningProgram::isRunning() const {
  return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

std::uint32_t RunningProgram::endStatus() const {
  waitUntil("the program ends", [this] { return !isRunning(); });
  DWORD status = 0;
  GetExitCodeProcess(process_.get(), &status);
  return status;
}

void RunningProgram::kill() const {
  TerminateProcess(process_.get(), kKilled);
  WaitForSingleObject(process_.get(), INFINITE);
}

}  // namespace zelvane::test
