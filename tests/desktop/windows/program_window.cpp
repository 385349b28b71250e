#include "tests/desktop/windows/program_window.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>

#include <commctrl.h>

namespace zelvane::test {
namespace {

constexpr int kOptionCount = 16;

TabPage pageOf(Option option) {
  switch (option) {
    case Option::guardHomePage:
      return TabPage::main;
    case Option::indexDat:
    case Option::myDocuments:
    case Option::recycleBin:
    case Option::freeSpace:
    case Option::temporaryFiles:
    case Option::clipboard:
    case Option::runHistory:
      return TabPage::cleanComputer;
    default:
      return TabPage::cleanInternet;
  }
}

std::vector<Option> allOptions() {
  std::vector<Option> all;
  for (int index = 0; index < kOptionCount; ++index) all.push_back(static_cast<Option>(index));
  return all;
}

}  // namespace

ProgramWindow::ProgramWindow(HANDLE process, HWND window) : process_(process), window_(window) {
  EnumChildWindows(
      window_,
      [](HWND child, LPARAM found) -> BOOL {
        reinterpret_cast<std::map<std::string, HWND>*>(found)->emplace(controlNameOf(child), child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&controls_));
}

bool ProgramWindow::isMinimised() const {
  if (IsWindow(window_) == FALSE) throw std::runtime_error("the window is gone");
  return IsIconic(window_) != FALSE;
}

RemoteControl ProgramWindow::control(const std::string& name) const {
  const auto found = controls_.find(name);
  if (found == controls_.end()) throw std::runtime_error("no control \"" + name + "\"");
  return RemoteControl(found->second);
}

RemoteControl ProgramWindow::option(Option option) const {
  return control("chkSettings_" + std::to_string(static_cast<int>(option)));
}

TabPage ProgramWindow::page() const {
  return static_cast<TabPage>(askWindow(control("tabMain").window(), TCM_GETCURSEL));
}

void ProgramWindow::turnTo(TabPage page) const {
  if (this->page() != page) {
    askWindow(control("tabMain").window(), TCM_SETCURFOCUS, static_cast<WPARAM>(page));
  }
  if (this->page() != page) throw std::runtime_error("the page is not in front");
}

void ProgramWindow::tick(Option option, bool ticked) const {
  turnTo(pageOf(option));
  this->option(option).tick(ticked);
}

void ProgramWindow::tickOnly(std::initializer_list<Option> options) const {
  for (const Option option : allOptions()) {
    const bool wanted = std::ranges::find(options, option) != options.end();
    if (this->option(option).isTicked() != wanted) tick(option, wanted);
  }
}

std::vector<Option> ProgramWindow::ticked() const {
  std::vector<Option> all = allOptions();
  std::erase_if(all, [this](Option option) { return !this->option(option).isTicked(); });
  return all;
}

std::vector<LogLine> ProgramWindow::clean() const {
  turnTo(TabPage::main);
  control("cmdBasicClean").pressAndWait();
  return log();
}

std::vector<LogLine> ProgramWindow::log() const {
  return readLog(process_, control("rtfMessage").window());
}

void ProgramWindow::pressExit() const {
  turnTo(TabPage::main);
  control("cmdClose").press();
}

void PrintTo(Option option, std::ostream* out) { *out << "option " << static_cast<int>(option); }

}  // namespace zelvane::test
