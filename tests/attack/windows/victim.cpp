#include "tests/attack/windows/victim.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <string_view>

#include <windows.h>
#include <shellapi.h>

#include "platform/windows/handle.h"
#include "platform/windows/wide_text.h"
#include "tests/attack/windows/changing_calls.h"

namespace zelvane::test {
namespace {

using platform::Handle;
using platform::plainText;
using platform::wideText;

// A victim's command line:
//
//     program victim STORY FOLDER KEY before|after CALL
//
// CALL is 0 for none. It says each call and each step in a line.
constexpr std::string_view kRole = "victim";
constexpr std::string_view kStep = "step";
constexpr std::string_view kCall = "call ";
constexpr std::string_view kComplaint = "failed: ";
constexpr DWORD kEndedWell = 0;
constexpr DWORD kFailed = 70;
constexpr DWORD kKilled = 9;

void say(std::string_view line) {
  const std::string text = std::string(line) + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
            nullptr);
}

[[noreturn]] void die(DWORD status) {
  for (;;) TerminateProcess(GetCurrentProcess(), status);
}

class Killer : public Listener {
 public:
  explicit Killer(const Moment& moment) : moment_(moment) {}

  void beforeCall(const char* function) override {
    const DWORD code = GetLastError();
    say(std::string(kCall) + function);
    ++calls_;
    dieOn(Side::before);
    SetLastError(code);
  }
  void afterCall() override { dieOn(Side::after); }

 private:
  void dieOn(Side side) const {
    if (calls_ == moment_.call && side == moment_.side) die(kKilled);
  }

  Moment moment_;
  std::size_t calls_ = 0;
};

struct FreeLocal {
  void operator()(wchar_t** words) const { LocalFree(words); }
};

std::vector<std::string> commandLine() {
  int count = 0;
  const std::unique_ptr<wchar_t*, FreeLocal> words(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> texts;
  std::transform(words.get(), words.get() + count, std::back_inserter(texts),
                 [](const wchar_t* word) { return plainText(word); });
  return texts;
}

std::wstring commandLineOf(const Story& story, const World& world, const Moment& moment) {
  std::string line = "program";
  for (const std::string& word :
       {std::string(kRole), std::string(story.name), world.folder, world.key,
        std::string(moment.side == Side::before ? "before" : "after"),
        std::to_string(moment.call)}) {
    line += " \"" + word + "\"";  // neither paths nor keys end in "\" or hold a quotation mark
  }
  return wideText(line);
}

std::wstring thisProgram() {
  std::wstring path(32'768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

struct Process {
  Handle handle;
  Handle ear;
};

Process start(std::wstring line) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE ear = nullptr;
  HANDLE mouth = nullptr;
  if (CreatePipe(&ear, &mouth, &inherited, 0) == 0) throw std::runtime_error("no pipe");
  Process process{Handle(), Handle(ear)};
  const Handle ownMouth(mouth);  // closed at the end of this, so that the victim's end is heard
  SetHandleInformation(ear, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = mouth;
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  if (CreateProcessW(thisProgram().c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                     nullptr, &startup, &started) == 0) {
    throw std::runtime_error("no second process");
  }
  CloseHandle(started.hThread);
  process.handle = Handle(started.hProcess);
  return process;
}

std::string hearAll(HANDLE ear) {
  std::string all;
  std::array<char, 4096> piece{};
  DWORD read = 0;
  while (ReadFile(ear, piece.data(), static_cast<DWORD>(piece.size()), &read, nullptr) != 0) {
    all.append(piece.data(), read);
  }
  return all;
}

void takeLine(std::string_view line, Life& life) {
  if (line == kStep) {
    ++life.steps;
  } else if (line.starts_with(kCall)) {
    life.calls.emplace_back(line.substr(kCall.size()));
  } else {
    throw std::runtime_error("the victim says: " + std::string(line));
  }
}

}  // namespace

Life live(const Story& story, const World& world, const std::optional<Moment>& moment) {
  const Process process =
      start(commandLineOf(story, world, moment.value_or(Moment{Side::before, 0})));
  const std::string said = hearAll(process.ear.get());
  WaitForSingleObject(process.handle.get(), INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process.handle.get(), &status);
  Life life;
  for (std::string_view rest = said; !rest.empty();) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    takeLine(rest.substr(0, end), life);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  if (status != kKilled && status != kEndedWell) {
    throw std::runtime_error("the victim ends with " + std::to_string(status));
  }
  life.killed = status == kKilled;
  return life;
}

void liveIfVictim(const std::vector<Story>& stories) {
  const std::vector<std::string> words = commandLine();
  if (words.size() != 7 || words[1] != kRole) return;
  const auto story = std::ranges::find(stories, words[2], &Story::name);
  Killer killer({words[5] == "before" ? Side::before : Side::after, std::stoul(words[6])});
  try {
    if (story == stories.end()) throw std::runtime_error("no story of that name");
    hearChanges(killer);
    story->tell({words[3], words[4]}, [] { say(kStep); });
  } catch (const std::exception& error) {
    say(std::string(kComplaint) + error.what());
    die(kFailed);
  }
  die(kEndedWell);
}

}  // namespace zelvane::test
