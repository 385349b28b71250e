#include "tests/contract/child_process_windows.h"

#include <exception>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/windows/wide_text.h"

namespace zelvane::test {
namespace {

constexpr std::string_view kMark = " second-process-of-";
constexpr DWORD kLongestLife = 120'000;  // milliseconds, should the test itself be killed
constexpr std::string_view kHere = "here";

// The test that started this process as its second one.
std::optional<std::string> firstProcess() {
  const std::string line = platform::plainText(GetCommandLineW());
  const auto mark = line.rfind(kMark);
  if (mark == line.npos) return std::nullopt;
  return line.substr(mark + kMark.size());
}

void writeLine(std::string_view line) {
  const std::string text = std::string(line) + "\n";
  DWORD written = 0;
  const HANDLE mouth = GetStdHandle(STD_ERROR_HANDLE);
  if (WriteFile(mouth, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) == 0) {
    endWith(71);
  }
}

[[noreturn]] void run(const std::function<void(const Say&)>& body) {
  writeLine(kHere);
  try {
    body(writeLine);
  } catch (const std::exception& error) {
    writeLine(std::string("second process: ") + error.what());
    endWith(70);
  }
  endWith(0);
}

std::wstring thisProgram() {
  std::wstring path(32'768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

std::wstring commandLine() {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  return platform::wideText(std::string("test --gtest_filter=") + test.test_suite_name() + "." +
                            test.name() + std::string(kMark) + nameOfThisTest());
}

}  // namespace

ChildProcess::ChildProcess(const std::function<void(const Say&)>& body) {
  if (firstProcess()) run(body);
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  HANDLE ear = nullptr;
  HANDLE mouth = nullptr;
  if (CreatePipe(&ear, &mouth, &inherited, 0) == 0) throw std::runtime_error("no pipe");
  ear_.reset(ear);
  Handle ownMouth(mouth);
  SetHandleInformation(ear, HANDLE_FLAG_INHERIT, 0);
  start(mouth);
  ownMouth.reset();  // so that the child's end is heard
  if (hearLine() != kHere) throw std::runtime_error("the second process did not get so far");
}

// Its lines come out where errors go, because GoogleTest talks on the other channel: nobody listens
// to that.
void ChildProcess::start(HANDLE mouth) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdError = mouth;
  std::wstring line = commandLine();
  PROCESS_INFORMATION started{};
  if (CreateProcessW(thisProgram().c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                     nullptr, &startup, &started) == 0) {
    throw std::runtime_error("no second process");
  }
  CloseHandle(started.hThread);
  process_.reset(started.hProcess);
}

ChildProcess::~ChildProcess() { kill(); }

std::string ChildProcess::hearLine() {
  std::string line;
  DWORD read = 0;
  for (char c = 0; ReadFile(ear_.get(), &c, 1, &read, nullptr) != 0 && read == 1 && c != '\n';) {
    line += c;
  }
  return line;
}

std::string ChildProcess::hearAll() {
  std::string all;
  DWORD read = 0;
  for (char c = 0; ReadFile(ear_.get(), &c, 1, &read, nullptr) != 0 && read == 1;) all += c;
  return all;
}

std::uint32_t ChildProcess::wait() {
  WaitForSingleObject(process_.get(), INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process_.get(), &status);
  return status;
}

void ChildProcess::kill() {
  TerminateProcess(process_.get(), 9);
  wait();
}

std::string nameOfThisTest() {
  return firstProcess().value_or("ZelvaneTest-" + std::to_string(GetCurrentProcessId()));
}

void stayUntilKilled() {
  Sleep(kLongestLife);
  endWith(72);
}

void endWith(std::uint32_t status) {
  for (;;) TerminateProcess(GetCurrentProcess(), status);
}

}  // namespace zelvane::test
