// Each decorator passes calls on, and fails the one that is to fail in its port's own way.
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/faulty_desktop.h"
#include "tests/unit/faults/facts.h"

namespace zelvane::faults {
namespace {

using platform::FaultyDesktop;
using Root = platform::Registry::Root;
using Type = platform::Registry::Type;
using Result = platform::Registry::Result;

// One kind of call and what comes of it, told as a text.
struct Decorated {
  std::string name;
  std::string subject;
  std::function<std::string(FaultyDesktop&)> call;
  std::string answer;
  std::string failure;
};

std::string told(const std::optional<std::string>& text) { return text.value_or("nothing"); }
std::string told(bool yes) { return yes ? "true" : "false"; }
std::string told(Result result) { return "result " + std::to_string(static_cast<int>(result)); }

// Brings the desktop to where the call is made, without a call that counts.
using Opened = std::unique_ptr<platform::OpenFolder>;
Opened openDocuments(FaultyDesktop& desktop) {
  return desktop.folderTree.openRoot("/home/user/Documents/");
}

std::uint64_t openMain(FaultyDesktop& desktop) {
  return desktop.registry.open(Root::currentUser, kBrowserMain).key;
}

std::string thrown(const std::function<std::string()>& call) {
  try {
    return call();
  } catch (const platform::Error& error) {
    return "error " + std::to_string(static_cast<int>(error.number()));
  }
}

constexpr auto kLetter = "/home/user/Documents/letter.txt";
constexpr auto kNew = "/home/user/Documents/new.txt";

// The last call that each makes is the one that it is about.
std::vector<Decorated> everyCall() {
  const std::string main = inUserRoot(kBrowserMain);
  return {
      {"SettingsBackend::find", "Options/StartUp",
       [](auto& d) { return told(d.settings.find("Zelvane", "Options", "StartUp")); }, "1",
       "nothing"},
      {"SettingsBackend::save", "Options/StartUp",
       [](auto& d) {
         d.settings.save("Zelvane", "Options", "StartUp", "0");
         return told(d.memory.settings.find("Options", "StartUp"));
       },
       "0", "error 61"},
      {"SettingsBackend::check", "", [](auto& d) { return told(d.settings.check()); }, "nothing",
       "The settings cannot be read."},
      {"Registry::check", "", [](auto& d) { return told(d.registry.check()); }, "nothing",
       "The registry cannot be read."},
      {"Registry::open", main,
       [](auto& d) { return told(d.registry.open(Root::currentUser, kBrowserMain).result); },
       "result 0", "result 5"},
      {"Registry::create", R"(HKEY_CLASSES_ROOT\.new)",
       [](auto& d) { return told(d.registry.create(Root::classes, ".new").result); }, "result 0",
       "result 5"},
      {"Registry::query", main + R"(\Start Page)",
       [](auto& d) { return told(d.registry.query(openMain(d), "Start Page").has_value()); },
       "true", "false"},
      {"Registry::set", main + R"(\Start Page)",
       [](auto& d) { return told(d.registry.set(openMain(d), "Start Page", Type::string, {})); },
       "result 0", "result 5"},
      {"Registry::deleteValue", main + R"(\Start Page)",
       [](auto& d) { return told(d.registry.deleteValue(openMain(d), "Start Page")); }, "result 0",
       "result 5"},
      {"Registry::deleteKey", R"(HKEY_LOCAL_MACHINE\gone)",
       [](auto& d) { return told(d.registry.deleteKey(Root::localMachine, "gone")); }, "result 0",
       "result 5"},
      {"ProfileFile::find", "Extensions/DVK",
       [](auto& d) { return told(d.winIni.find("Extensions", "DVK")); }, "entry", "nothing"},
      {"ProfileFile::write", "Extensions/DVK",
       [](auto& d) { return told(d.winIni.write("Extensions", "DVK", "other")); }, "true", "false"},
      {"SpecialFolders::path", "5",
       [](auto& d) { return told(d.specialFolders.path(platform::SpecialFolder::personal)); },
       "/home/user/Documents", "nothing"},
      {"SpecialFolders::temporaryPath", "",
       [](auto& d) { return told(d.specialFolders.temporaryPath()); }, "/tmp/", "nothing"},
      {"FolderTree::openRoot", "/home/user/Documents/",
       [](auto& d) { return told(openDocuments(d) != nullptr); }, "true", "error 76"},
      {"OpenFolder::list", "/home/user/Documents",
       [](auto& d) { return std::to_string(openDocuments(d)->list(d.memory.pump).files.size()); },
       "1", "error 57"},
      {"OpenFolder::openSubfolder", "/home/user/Documents/a",
       [](auto& d) {
         const Opened documents = openDocuments(d);
         return told(documents->openSubfolder("a") != nullptr);
       },
       "true", "error 70"},
      {"OpenFolder::removeFile", kLetter,
       [](auto& d) {
         openDocuments(d)->removeFile("letter.txt");
         return told(d.memory.fileSystem.has(kLetter));
       },
       "false", "error 70"},
      {"OpenFolder::removeFolder", "/home/user/Documents/a",
       [](auto& d) {
         openDocuments(d)->removeFolder("a");
         return told(d.memory.fileSystem.has("/home/user/Documents/a"));
       },
       "false", "error 75"},
      {"Files::exists", kLetter, [](auto& d) { return told(d.files.exists(kLetter)); }, "true",
       "false"},
      {"Files::open", kLetter, [](auto& d) { return told(d.files.open(kLetter) != nullptr); },
       "true", "error 53"},
      {"ReadStream::read", kLetter, [](auto& d) { return d.files.open(kLetter)->read(4); }, "Dear",
       "error 57"},
      {"Files::readWhole", kLetter, [](auto& d) { return d.files.readWhole(kLetter, 100); },
       "Dear Ada", "error 57"},
      {"Files::remove", kLetter,
       [](auto& d) {
         d.files.remove(kLetter);
         return told(d.memory.fileSystem.has(kLetter));
       },
       "false", "error 70"},
      {"Files::createBeside", kNew,
       [](auto& d) { return told(d.files.createBeside(kNew) != nullptr); }, "true", "error 70"},
      {"Files::createInPlaceOf", kLetter,
       [](auto& d) { return told(d.files.createInPlaceOf(kLetter) != nullptr); }, "true",
       "error 70"},
      {"PendingFile::write", kNew,
       [](auto& d) {
         d.files.createBeside(kNew)->write("text");
         return told(d.memory.fileSystem.has(kNew));
       },
       "false", "error 61"},
      {"PendingFile::publish", kNew,
       [](auto& d) {
         d.files.createBeside(kNew)->publish();
         return told(d.memory.fileSystem.has(kNew));
       },
       "true", "error 70"},
      {"RecycleBin::empty", "",
       [](auto& d) { return std::to_string(d.recycleBin.empty(d.memory.pump)); }, "3", "error 70"},
      {"Clipboard::clear", "",
       [](auto& d) {
         d.clipboard.clear();
         return d.memory.clipboard.content;
       },
       "", "error 70"},
  };
}

void fill(platform::MemoryDesktop& desktop) {
  desktop.settings.put("Options", "StartUp", "1");
  desktop.registry.put(Root::currentUser, kBrowserMain, "Start Page", "https://mine.example/");
  desktop.registry.addKey(Root::localMachine, "gone");
  desktop.winIni.write("Extensions", "DVK", "entry");
  desktop.specialFolders.set(platform::SpecialFolder::personal, "/home/user/Documents");
  desktop.specialFolders.setTemporary("/tmp");
  desktop.fileSystem.addFolder("/tmp");
  desktop.fileSystem.addFile(kLetter, "Dear Ada");
  desktop.fileSystem.addFolder("/home/user/Documents/a");
  desktop.recycleBin.put({.name = "thrown away", .bytes = 3});
  desktop.clipboard.content = "copied last";
}

// How many calls come before the one that it is about.
std::size_t callsOf(const Decorated& decorated) {
  FaultyDesktop desktop;
  fill(desktop.memory);
  decorated.call(desktop);
  return desktop.faults.calls().size();
}

TEST(Decorators, PassACallOnUnderItsName) {
  for (const Decorated& decorated : everyCall()) {
    SCOPED_TRACE(decorated.name);
    FaultyDesktop desktop;
    fill(desktop.memory);

    EXPECT_EQ(thrown([&] { return decorated.call(desktop); }), decorated.answer);

    EXPECT_EQ(desktop.faults.calls().back().name, decorated.name);
    EXPECT_EQ(desktop.faults.calls().back().subject, decorated.subject);
    EXPECT_TRUE(desktop.faults.failed().empty());
  }
}

TEST(Decorators, FailTheCallThatIsToFailInItsPortsWayAndDoNothing) {
  for (const Decorated& decorated : everyCall()) {
    SCOPED_TRACE(decorated.name);
    FaultyDesktop desktop;
    fill(desktop.memory);
    Facts before = factsOf(desktop.memory);
    desktop.faults.failCall(callsOf(decorated));

    EXPECT_EQ(thrown([&] { return decorated.call(desktop); }), decorated.failure);

    Facts after = factsOf(desktop.memory);
    after.erase("opened 00");  // on the way to the call
    EXPECT_EQ(after, before);
    EXPECT_EQ(desktop.faults.failed(), std::vector{desktop.faults.calls().back()});
  }
}

TEST(Decorators, FailOnceAndThenPassTheSameCallOn) {
  for (const Decorated& decorated : everyCall()) {
    SCOPED_TRACE(decorated.name);
    FaultyDesktop desktop;
    fill(desktop.memory);
    desktop.faults.failCall(callsOf(decorated));
    thrown([&] { return decorated.call(desktop); });

    EXPECT_EQ(thrown([&] { return decorated.call(desktop); }), decorated.answer);
  }
}

TEST(Faults, CountTheCallsOfAllPortsInOneSequence) {
  FaultyDesktop desktop;
  desktop.faults.failCall(2);

  desktop.clipboard.clear();
  EXPECT_EQ(desktop.specialFolders.temporaryPath(), std::nullopt);
  desktop.clipboard.clear();

  using Call = platform::Faults::Call;
  EXPECT_EQ(desktop.faults.calls(), (std::vector<Call>{{"Clipboard::clear", "", 1},
                                                       {"SpecialFolders::temporaryPath", "", 1},
                                                       {"Clipboard::clear", "", 2}}));
  EXPECT_EQ(desktop.faults.failed(), (std::vector<Call>{{"SpecialFolders::temporaryPath", "", 1}}));
}

TEST(Faults, ThatStartOverCountFromOneAndFailNothing) {
  FaultyDesktop desktop;
  desktop.clipboard.clear();
  desktop.faults.failCall(2);

  desktop.faults.startOver();
  desktop.clipboard.clear();
  EXPECT_NO_THROW(desktop.clipboard.clear());

  EXPECT_EQ(desktop.faults.calls().size(), 2U);
}

}  // namespace
}  // namespace zelvane::faults
