#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

#include <windows.h>

#include "platform/windows/registry_key.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_programs.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/programs_contract.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/disk.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::plainText;
using platform::wideText;
using platform::WindowsPrograms;

// Where this program, started in a browser's stead, says how that happened.
constexpr auto kEar = L"ZELVANE_TEST_EAR";

// "4 "C:\folder\browser.exe" "an address"": the show command and the command line.
std::string howThisWasStarted() {
  STARTUPINFOW startup{};
  GetStartupInfoW(&startup);
  return std::to_string(startup.wShowWindow) + " " + plainText(GetCommandLineW());
}

// Before any test. The file has its name once it is whole.
[[maybe_unused]] const bool kPlaysBrowser = [] {
  const wchar_t* ear = _wgetenv(kEar);
  if (ear == nullptr) return false;
  const std::string file = plainText(ear);
  makeFile(file + ".part", howThisWasStarted());
  MoveFileExW(wideText(file + ".part").c_str(), ear, MOVEFILE_REPLACE_EXISTING);
  endWith(0);
}();

// A type of files that nobody else has, gone at the end. It is its user's own; but Wine looks for
// types among those of all users only.
class FileType {
 public:
  explicit FileType(const std::string& name) : name_(name) {}
  FileType(const FileType&) = delete;
  FileType& operator=(const FileType&) = delete;
  ~FileType() {
    for (const std::string& key : {classes() + extension(), classes() + name_}) {
      RegDeleteTreeW(owner(), wideText(key).c_str());
    }
  }

  std::string extension() const { return "." + name_; }

  void openWith(const std::string& command) const {
    setDefault(classes() + extension(), name_);
    setDefault(classes() + name_ + "\\shell\\open\\command", command);
  }

 private:
  static HKEY owner() { return runsUnderWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }
  static std::string classes() { return "Software\\Classes\\"; }

  static void setDefault(const std::string& path, const std::string& text) {
    const std::wstring wide = wideText(text);
    const auto opened = platform::createKey(owner(), wideText(path));
    if (platform::writeValue(opened.key.get(), std::wstring(), REG_SZ, platform::dataOf(wide)) !=
        ERROR_SUCCESS) {
      throw std::runtime_error("no such type can be registered");
    }
  }

  std::string name_;
};

class WindowsProgramsBed : public ProgramsBed {
 public:
  WindowsProgramsBed() { SetEnvironmentVariableW(kEar, wideText(folder_ / "said").c_str()); }
  ~WindowsProgramsBed() override { SetEnvironmentVariableW(kEar, nullptr); }

  platform::Programs& programs() override { return programs_; }

  void install() override { installAs("\"" + browser() + "\" -osint -url \"%1\""); }
  void installAs(const std::string& command) {
    std::wstring own(32'768, L'\0');
    own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
    if (CopyFileW(own.c_str(), wideText(browser()).c_str(), FALSE) == 0) {
      throw std::runtime_error("no browser");
    }
    type_.openWith(command);
  }
  void spoil() override { fs::remove(wideText(browser())); }

  std::string page(const std::string& name) override {
    return folder_.write(name + type_.extension());
  }
  std::string stranger() override { return folder_.write("page.zelvane-nobody"); }

  std::string argument() override {
    const std::string line = said();
    const std::size_t begin = line.find(".exe\" \"");
    return begin == std::string::npos || !line.ends_with('"')
               ? line
               : line.substr(begin + 7, line.size() - begin - 8);
  }

  // How it was started. Waits for that.
  std::string said() const {
    for (int attempt = 0; attempt < 6000; ++attempt) {
      if (folder_.has("said")) {
        std::string all = folder_.read("said");
        fs::remove(wideText(folder_ / "said"));
        return all;
      }
      Sleep(10);
    }
    return "nothing";
  }

  std::string browser() const { return folder_ / "a browser.exe"; }

 private:
  ThrowAwayFolder folder_;
  FileType type_{"zelvane" + std::to_string(GetCurrentProcessId())};
  WindowsPrograms programs_{[] { return nullptr; }};
};

INSTANTIATE_TEST_SUITE_P(Windows, ProgramsContract,
                         testing::Values([]() -> std::unique_ptr<ProgramsBed> {
                           return std::make_unique<WindowsProgramsBed>();
                         }));

class WindowsProgramsTest : public testing::Test {
 protected:
  // How the program was started with that argument.
  std::string saidOf(const std::string& argument) {
    bed.install();
    return bed.programs().start(bed.browser(), argument) ? bed.said() : "not started";
  }

  WindowsProgramsBed bed;
};

TEST_F(WindowsProgramsTest, ExecutablesHaveASuffixAndTheFoundOneIsThere) {
  bed.install();

  const std::string found = bed.programs().programFor(bed.page("page")).value();

  EXPECT_TRUE(bed.programs().executablesHaveSuffix());
  EXPECT_TRUE(isThere(found.substr(0, found.find(".exe") + 4))) << found;
}

TEST_F(WindowsProgramsTest, TheArgumentStandsBetweenQuotesBehindTheProgramAndNothingElseDoes) {
  EXPECT_TRUE(saidOf("https://a.example/").ends_with("a browser.exe\" \"https://a.example/\""));
}

TEST_F(WindowsProgramsTest, QuotesAndLineBreaksInTheArgumentStayAsTheyAre) {
  EXPECT_TRUE(saidOf("say \"hi\"\\").ends_with(".exe\" \"say \"hi\"\\\""));
  EXPECT_TRUE(saidOf("a\r\nb").ends_with(".exe\" \"a\r\nb\""));
}

TEST_F(WindowsProgramsTest, TheWindowIsShownWithoutBeingActivated) {
  EXPECT_EQ(saidOf("a").substr(0, 2), std::to_string(SW_SHOWNOACTIVATE) + " ");
}

TEST_F(WindowsProgramsTest, WhatNoCommandLineHoldsStartsNothing) {
  EXPECT_EQ(saidOf(std::string(65'536, 'a')), "not started");
}

}  // namespace
}  // namespace zelvane::test
