#include "tests/attack/stores/used_home.h"

#include <array>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/headless_program.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Registry;
using Texts = std::vector<std::string>;

constexpr const char* kBrowserMain = R"(Software\Microsoft\Internet Explorer\Main)";
constexpr const char* kTrash = "home/.local/share/Trash";
constexpr std::size_t kOption = 12;

Registry::Key browserMain(HeadlessDesktop& desktop) {
  return desktop.registry.open(Registry::Root::currentUser, kBrowserMain).key;
}

std::array<std::string, 2> makeSoundContents() {
  const ThrowAwayFolder folder;
  HeadlessDesktop desktop(folder);
  desktop.settings.save("Zelvane", "Schedule", "LastRunTime", "never");
  desktop.settings.save("Zelvane", "Options", "StartUp", "0");
  desktop.settings.save(desktop.identity.programFolder(), "Settings", "Index12", "0");
  desktop.registry.set(browserMain(desktop), "Start Page", Registry::Type::string, {});
  return {folder.read(fileOf(Store::settings)), folder.read(fileOf(Store::hive))};
}

}  // namespace

std::string fileOf(Store store) {
  return std::string(kStoreFolder) +
         (store == Store::settings ? "/settings.json" : "/registry.json");
}

std::string setAsideFileOf(Store store) { return fileOf(store) + ".set-aside-1"; }

Store otherThan(Store store) { return store == Store::settings ? Store::hive : Store::settings; }

const std::string& soundContentOf(Store store) {
  static const auto contents = makeSoundContents();
  return contents.at(static_cast<std::size_t>(store));
}

UsedHome::UsedHome() {
  folder.write(fileOf(Store::settings), soundContentOf(Store::settings));
  folder.write(fileOf(Store::hive), soundContentOf(Store::hive));
  fs::permissions(folder / kStoreFolder, fs::perms::owner_all);
  folder.write("tmp/forgotten.tmp");
  folder.write(std::string(kTrash) + "/files/letter.txt");
  folder.write(std::string(kTrash) + "/info/letter.txt.trashinfo");
}

bool UsedHome::isClean() const {
  return !folder.has("tmp/forgotten.tmp") &&
         !folder.has(std::string(kTrash) + "/files/letter.txt") &&
         !folder.has(std::string(kTrash) + "/info/letter.txt.trashinfo");
}

Texts UsedHome::leftovers() const {
  Texts names;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(".zelvane-")) names.push_back(name);
  }
  return names;
}

namespace {

Visit visitWith(const UsedHome& home, bool cleaning, const std::function<void()>& afterTheStart) {
  HeadlessProgram program(home.folder);
  Visit seen;
  program.start();
  seen.toldAtTheStart = program.told();
  seen.statusAfterTheLoad = program.status();
  afterTheStart();
  program.window.cleanerPage.chkSettings[kOption].setValue(0);
  program.clickOption(kOption);
  program.window.cleanerPage.chkWebAddress.click();  // which goes into the hive
  if (cleaning) program.clean();
  seen.account = program.account();
  program.window.mainPage.chkStartup.setValue(1);
  program.exit();
  const Texts all = program.told();
  seen.toldLater.assign(all.begin() + static_cast<std::ptrdiff_t>(seen.toldAtTheStart.size()),
                        all.end());
  seen.ended = program.hasEnded();
  return seen;
}

}  // namespace

Visit visit(const UsedHome& home) {
  return visitWith(home, true, [] {});
}

Visit visit(const UsedHome& home, const std::function<void()>& afterTheStart) {
  return visitWith(home, true, afterTheStart);
}

Visit shortVisit(const UsedHome& home) {
  return visitWith(home, false, [] {});
}

void expectThatTheProgramWorked(const Visit& seen, const UsedHome& home) {
  EXPECT_EQ(seen.statusAfterTheLoad, "Ready");
  EXPECT_NE(seen.account.find("Finished Erasing Windows Temporary Files"), std::string::npos);
  EXPECT_TRUE(seen.account.ends_with("\r\nDone"));
  EXPECT_TRUE(home.isClean());
  EXPECT_TRUE(seen.ended);
}

void expectThatAllWasStored(Store store, const UsedHome& home) {
  HeadlessDesktop desktop(home.folder);
  if (store == Store::settings) {
    const std::string program = desktop.identity.programFolder();
    EXPECT_EQ(desktop.settings.find(program, "Settings", "Index12"), "1");
    EXPECT_EQ(desktop.settings.find("Zelvane", "Schedule", "LastRunTime"), "12:00:00");
    EXPECT_EQ(desktop.settings.find("Zelvane", "Options", "StartUp"), "1");
  } else {
    const auto page = desktop.registry.query(browserMain(desktop), "Start Page");
    ASSERT_NE(page, std::nullopt);
    EXPECT_EQ(page->data.size(), sizeof "about:blank");
  }
}

void expectThatAllIsWellAgain(const UsedHome& home) {
  const Visit next = visit(home);

  EXPECT_EQ(next.toldAtTheStart, Texts{});
  EXPECT_EQ(next.toldLater, Texts{});
  expectThatAllWasStored(Store::settings, home);
  expectThatAllWasStored(Store::hive, home);
  EXPECT_EQ(home.leftovers(), Texts{});
}

void expectTold(const Texts& told, std::size_t count, const std::string& path) {
  EXPECT_EQ(told.size(), count);
  for (const std::string& text : told) {
    EXPECT_NE(text.find("\"" + path + "\""), std::string::npos) << text;
  }
}

void expectSetAside(Store store, const std::string& content, const Visit& seen,
                    const UsedHome& home) {
  expectTold(seen.toldAtTheStart, 1, home.folder / setAsideFileOf(store));
  EXPECT_EQ(seen.toldLater, Texts{});
  EXPECT_TRUE(home.folder.read(setAsideFileOf(store)) == content);
  expectThatTheProgramWorked(seen, home);
  expectThatAllWasStored(Store::settings, home);
  expectThatAllWasStored(Store::hive, home);
  expectThatAllIsWellAgain(home);
}

void expectRefused(Store store, const Visit& seen, const UsedHome& home) {
  expectTold(seen.toldAtTheStart, 1, home.path(store));
  // Nobody asks what became of what goes into the hive.
  expectTold(seen.toldLater, store == Store::settings ? kSavesThatTell : 0, home.path(store));
  expectThatTheProgramWorked(seen, home);
  expectThatAllWasStored(otherThan(store), home);
  EXPECT_EQ(home.leftovers(), Texts{});
}

}  // namespace zelvane::test
