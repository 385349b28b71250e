#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/error.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/linux_ledger.h"
#include "platform/memory/memory_identity.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::AutostartEntry;
using platform::Error;
using platform::ErrorNumber;
using platform::Ledger;

constexpr auto kEntry = "home/.config/autostart/zelvane.desktop";
constexpr auto kLedger = "home/.config/zelvane/ledger.txt";
constexpr auto kTheirs = "[Desktop Entry]\nType=Application\nName=Zelvane\nExec=other\n";

class AutostartEntryTest : public testing::Test {
 protected:
  std::string line(const std::string& key) const {
    const std::string text = "\n" + folder.read(kEntry);
    const std::size_t at = text.find("\n" + key + "=");
    return at == std::string::npos ? "" : text.substr(at + 1, text.find('\n', at + 1) - at - 1);
  }

  ErrorNumber refusal() {
    try {
      entry.write();
    } catch (const Error& error) {
      return error.number();
    }
    ADD_FAILURE() << "written";
    return {};
  }

  const ThrowAwayFolder folder;
  const platform::Environment environment = environmentIn(folder);
  platform::MemoryIdentity identity;
  Ledger ledger = platform::linuxLedger(environment);
  AutostartEntry entry{environment, identity, ledger};
};

TEST_F(AutostartEntryTest, StartsTheRunningExecutableAndNotTheNameInTheList) {
  entry.write();

  EXPECT_EQ(line("Exec"), "Exec=\"/opt/zelvane/zelvane\"");
  EXPECT_EQ(line("TryExec"), "TryExec=/opt/zelvane/zelvane");
  EXPECT_EQ(line("Name"), "Name=Zelvane");
  EXPECT_TRUE(folder.read(kEntry).starts_with("[Desktop Entry]\nType=Application\n"));
}

TEST_F(AutostartEntryTest, OfAProgramAtTheRootHasOneSeparator) {
  identity.facts.programFolder = "/";

  entry.write();

  EXPECT_EQ(line("Exec"), "Exec=\"/zelvane\"");
}

TEST_F(AutostartEntryTest, OfAnOddFolderIsQuoted) {
  identity.facts.programFolder = "/home/ada/\"my\" $tools\\";

  entry.write();

  EXPECT_EQ(line("Exec"), R"(Exec="/home/ada/\\"my\\" \\$tools\\\\/zelvane")");
  EXPECT_EQ(line("TryExec"), R"(TryExec=/home/ada/"my" $tools\\/zelvane)");
}

TEST_F(AutostartEntryTest, IsPrivateAndSoIsTheFolderThatIsMadeForIt) {
  entry.write();

  struct stat status {};
  stat((folder / kEntry).c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  stat((folder / "home/.config/autostart").c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(AutostartEntryTest, ReplacesAnEarlierOneAlsoWhereADesktopHasSwitchedItOff) {
  entry.write();
  folder.write(kEntry, folder.read(kEntry) + "Hidden=true\n");
  identity.facts.programFolder = "/new/place";

  entry.write();

  EXPECT_EQ(line("Exec"), "Exec=\"/new/place/zelvane\"");
  EXPECT_EQ(line("Hidden"), "");
}

TEST_F(AutostartEntryTest, IsErasedWithItsNoteAndTheFolderStays) {
  entry.write();
  folder.write("home/.config/autostart/other.desktop");

  entry.erase();

  EXPECT_FALSE(folder.has(kEntry));
  EXPECT_TRUE(folder.has("home/.config/autostart/other.desktop"));
  EXPECT_TRUE(ledger.entries().empty());
}

TEST_F(AutostartEntryTest, ErasingOneThatIsNotThereMakesNothing) {
  entry.erase();

  EXPECT_FALSE(folder.has("home/.config/autostart"));
  EXPECT_FALSE(folder.has(kLedger));
}

TEST_F(AutostartEntryTest, OneWhoseFileTheUserHasDeletedIsStruckOut) {
  entry.write();
  fs::remove(folder / kEntry);

  entry.erase();

  EXPECT_TRUE(ledger.entries().empty());
}

TEST_F(AutostartEntryTest, AFileOfThatNameThatIsSomebodyElsesIsNeitherReplacedNorErased) {
  folder.write(kEntry, kTheirs);

  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
  entry.erase();

  EXPECT_EQ(folder.read(kEntry), kTheirs);
  EXPECT_FALSE(folder.has(kLedger));
}

TEST_F(AutostartEntryTest, TheMarkCountsAsAWholeLineAlone) {
  folder.write(kEntry, "# X-Zelvane-Entry=startup\nX-Zelvane-Entry=startups\n");

  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
}

TEST_F(AutostartEntryTest, AVeryLongFileIsSomebodyElses) {
  folder.write(kEntry, "X-Zelvane-Entry=startup\n" + std::string(70'000, '#'));

  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
}

TEST_F(AutostartEntryTest, ALinkOfThatNameStaysAndWhatItLeadsToAsWell) {
  entry.write();
  const std::string own = folder.read(kEntry);
  folder.write("elsewhere", own);
  fs::remove(folder / kEntry);
  fs::create_symlink(folder / "elsewhere", folder / kEntry);

  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
  entry.erase();

  EXPECT_TRUE(fs::is_symlink(folder / kEntry));
  EXPECT_EQ(folder.read("elsewhere"), own);
}

TEST_F(AutostartEntryTest, AFolderOrAPipeOfThatNameStays) {
  fs::create_directories(folder / kEntry);
  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
  entry.erase();
  EXPECT_TRUE(folder.has(kEntry));

  fs::remove(folder / kEntry);
  mkfifo((folder / kEntry).c_str(), 0600);
  EXPECT_EQ(refusal(), ErrorNumber::fileExists);
  entry.erase();
  EXPECT_TRUE(folder.has(kEntry));
}

TEST_F(AutostartEntryTest, AnAutostartFolderThatIsALinkIsNotEntered) {
  fs::create_directories(folder / "elsewhere");
  fs::create_directories(folder / "home/.config");
  fs::create_directory_symlink(folder / "elsewhere", folder / "home/.config/autostart");

  EXPECT_THROW(entry.write(), Error);
  EXPECT_THROW(entry.erase(), Error);

  EXPECT_TRUE(fs::is_empty(folder / "elsewhere"));
  EXPECT_FALSE(folder.has(kLedger));
}

// Whoever looks while the ledger is being written finds no entry yet.
TEST_F(AutostartEntryTest, IsNotedBeforeItIsWrittenAndStruckOutAfterItIsGone) {
  std::vector<bool> wasThere;
  Ledger watched([&](const Ledger::Change&) { wasThere.push_back(folder.has(kEntry)); });
  AutostartEntry other(environment, identity, watched);

  other.write();
  other.erase();

  EXPECT_EQ(wasThere, (std::vector<bool>{false, false}));
}

TEST_F(AutostartEntryTest, IsInTheLedgerByItsPath) {
  entry.write();

  EXPECT_EQ(ledger.entries(), (std::vector<Ledger::Entry>{{Ledger::Kind::file, folder / kEntry}}));
}

TEST_F(AutostartEntryTest, WhatCannotBeNotedIsNotWritten) {
  folder.write(kLedger, "Zelvane ledger 2\n");

  EXPECT_EQ(refusal(), ErrorNumber::accessError);

  EXPECT_FALSE(folder.has("home/.config/autostart"));
}

TEST_F(AutostartEntryTest, APathThatTheFormatCannotHoldIsNotWritten) {
  identity.facts.programFolder = "/caf\xE9";

  EXPECT_EQ(refusal(), ErrorNumber::accessError);

  EXPECT_FALSE(folder.has("home"));
}

}  // namespace
}  // namespace zelvane::test
