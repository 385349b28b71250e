#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/linux_programs.h"
#include "tests/contract/programs_contract.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::LinuxPrograms;

constexpr int kPatience = 60'000;  // milliseconds

// A home and a system with nothing in them but what a test installs.
class Place {
 public:
  Place() {
    environment.configDirs = {folder / "system/etc"};
    environment.dataDirs = {folder / "system/share", folder / "other/share"};
    environment.programDirs = {folder / "bin"};
    environment.desktops = {"ubuntu", "gnome"};
    mkfifo((folder / "ear").c_str(), S_IRUSR | S_IWUSR);
    ear_ = platform::Descriptor(open((folder / "ear").c_str(), O_RDWR | O_CLOEXEC));
  }

  // An executable that says what its commands write.
  std::string program(const std::string& name, const std::string& commands) const {
    std::string path =
        folder.write("bin/" + name, "#!/bin/sh\n{ " + commands + R"(; printf '\000'; } > ')" +
                                        folder / "ear" + "'\n");
    fs::permissions(path, fs::perms::owner_all);
    return path;
  }

  // One that says how many arguments it has, and all of them.
  std::string talker(const std::string& name = "a browser") const {
    return program(name, R"(printf '%s:' "$#"; printf '[%s]' "$@")");
  }

  // An entry in the folder ("home/.local/share", "system/share") with these lines.
  std::string entry(const std::string& where, const std::string& name,
                    const std::string& lines) const {
    return folder.write(where + "/applications/" + name + ".desktop",
                        "[Desktop Entry]\nType=Application\nName=" + name + "\n" + lines);
  }
  std::string browser(const std::string& where, const std::string& name) const {
    return entry(where, name, "MimeType=text/plain;text/html;\nExec=\"" + talker() + "\" %u\n");
  }

  // What such a program says, which ends it with a zero byte. Waits for it.
  std::string heard() const {
    pollfd waiting{.fd = ear_.get(), .events = POLLIN, .revents = 0};
    std::string all;
    while (!all.ends_with('\0')) {
      char piece[4096];
      if (poll(&waiting, 1, kPatience) <= 0) return all + " ... and nothing more";
      const ssize_t count = read(ear_.get(), piece, sizeof piece);
      all.append(piece, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    all.pop_back();
    return all;
  }

  const ThrowAwayFolder folder;
  platform::Environment environment = environmentIn(folder);

 private:
  platform::Descriptor ear_;
};

class LinuxProgramsBed : public ProgramsBed {
 public:
  platform::Programs& programs() override { return programs_; }
  void install() override { place_.browser("system/share", "browser"); }
  void spoil() override { fs::remove(place_.folder / "bin/a browser"); }
  std::string page(const std::string& name) override { return place_.folder.write(name + ".htm"); }
  std::string stranger() override { return place_.folder.write("page.zelvane-nobody"); }
  std::string argument() override {
    const std::string said = place_.heard();
    return said.starts_with("1:[") ? said.substr(3, said.size() - 4) : said;
  }

 private:
  Place place_;
  LinuxPrograms programs_{place_.environment};
};

INSTANTIATE_TEST_SUITE_P(Linux, ProgramsContract,
                         testing::Values([]() -> std::unique_ptr<ProgramsBed> {
                           return std::make_unique<LinuxProgramsBed>();
                         }));

class LinuxProgramsTest : public testing::Test {
 protected:
  std::string chosen() const {
    return LinuxPrograms(place.environment).programFor("/tmp/page.htm").value_or("none");
  }

  // Starts a program with that command line.
  bool startCommand(const std::string& command, const std::string& argument,
                    const std::string& lines = "") {
    const std::string entry =
        place.entry("system/share", "command", "Exec=" + command + "\n" + lines);
    return programs.start(entry, argument);
  }
  std::string saidBy(const std::string& command, const std::string& argument,
                     const std::string& lines = "") {
    return startCommand(command, argument, lines) ? place.heard() : "not started";
  }

  Place place;
  LinuxPrograms programs{place.environment};
};

// Which program.

TEST_F(LinuxProgramsTest, WithoutAnythingInstalledThereIsNone) { EXPECT_EQ(chosen(), "none"); }

TEST_F(LinuxProgramsTest, AProgramThatOnlySaysThatItOpensTheTypeIsFound) {
  place.entry("system/share", "a", "MimeType=image/png\nExec=\"" + place.talker() + "\"\n");
  const std::string browser = place.browser("system/share", "b");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, TheUsersOwnProgramsComeBeforeTheSystems) {
  place.browser("system/share", "a");
  const std::string own = place.browser("home/.local/share", "b");

  EXPECT_EQ(chosen(), own);
}

TEST_F(LinuxProgramsTest, WhatTheUserChoseComesFirst) {
  place.browser("home/.local/share", "a");
  const std::string browser = place.browser("other/share", "b");
  place.folder.write("home/.config/mimeapps.list",
                     "# mine\n[Default Applications]\ntext/html = gone.desktop;b.desktop;\n");
  place.folder.write("system/etc/mimeapps.list", "[Default Applications]\ntext/html=a.desktop\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, WhatWasChosenForOneDesktopComesBeforeWhatIsForAll) {
  place.browser("system/share", "a");
  const std::string browser = place.browser("system/share", "b");
  place.folder.write("home/.config/mimeapps.list", "[Default Applications]\ntext/html=a.desktop\n");
  place.folder.write("home/.config/gnome-mimeapps.list",
                     "[Default Applications]\ntext/html=b.desktop\n");
  place.folder.write("home/.config/kde-mimeapps.list",
                     "[Default Applications]\ntext/html=a.desktop\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, WhatTheSystemChoseComesBeforeAnyOther) {
  place.browser("home/.local/share", "a");
  const std::string browser = place.browser("system/share", "b");
  place.folder.write("system/share/applications/mimeapps.list",
                     "[Default Applications]\ntext/html=b.desktop\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, WhatTheUserAddedComesBeforeAnyOther) {
  place.browser("home/.local/share", "a");
  const std::string browser = place.browser("system/share", "b");
  place.folder.write("home/.config/mimeapps.list", "[Added Associations]\ntext/html=b.desktop;\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, WhatTheUserRemovedIsNotFound) {
  place.browser("system/share", "a");
  const std::string browser = place.browser("system/share", "b");
  place.folder.write("home/.config/mimeapps.list",
                     "[Removed Associations]\ntext/html=a.desktop;\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, AnEntryInAFolderIsKnownByBothNames) {
  place.browser("system/share", "a");
  const std::string browser = place.browser("system/share", "vendor/net-browser");
  place.folder.write("home/.config/mimeapps.list",
                     "[Default Applications]\ntext/html=vendor-net-browser.desktop\n");

  EXPECT_EQ(chosen(), browser);
}

TEST_F(LinuxProgramsTest, AnEntryThatTheUserHidIsNotFoundInTheSystemEither) {
  place.browser("system/share", "a");
  place.entry("home/.local/share", "a", "Hidden=true\n");

  EXPECT_EQ(chosen(), "none");
}

TEST_F(LinuxProgramsTest, AListNamesEntriesAndNoPaths) {
  place.entry("elsewhere", "a", "Exec=\"" + place.talker() + "\" %u\n");
  place.folder.write("home/.config/mimeapps.list",
                     "[Default Applications]\ntext/html=../../elsewhere/applications/a.desktop\n");

  EXPECT_EQ(chosen(), "none");
}

TEST_F(LinuxProgramsTest, WhatCannotBeStartedIsNotFound) {
  const std::string html = "MimeType=text/html\n";
  const std::string good = html + "Exec=\"" + place.talker() + "\" %u\n";
  place.folder.write("bin/text", "no executable");
  place.entry("system/share", "gone", html + "Exec=/nowhere/browser %u\n");
  place.entry("system/share", "missing", html + "Exec=nowhere %u\n");
  place.entry("system/share", "relative", html + "Exec=bin/browser %u\n");
  place.entry("system/share", "no-executable", html + "Exec=text %u\n");
  place.entry("system/share", "no-command", html);
  place.entry("system/share", "empty", html + "Exec=\n");
  place.entry("system/share", "terminal", good + "Terminal=true\n");
  place.entry("system/share", "tried", good + "TryExec=nowhere\n");
  place.folder.write("system/share/applications/link.desktop",
                     "[Desktop Entry]\nType=Link\n" + good);

  EXPECT_EQ(chosen(), "none");
}

TEST_F(LinuxProgramsTest, FilesThatAreNoEntriesAreNoHarm) {
  place.folder.write("system/share/applications/noise.desktop", "\0\xff[[=\n=\n\n[Desktop Entry");
  place.folder.write("system/share/applications/page.txt", "[Desktop Entry]\n");
  fs::create_directory(place.folder / "system/share/applications/folder.desktop");
  place.folder.write("home/.config/mimeapps.list", std::string(3'000'000, '['));
  const std::string browser = place.browser("system/share", "z");

  EXPECT_EQ(chosen(), browser);
}

// Its command line.

TEST_F(LinuxProgramsTest, TheAddressTakesThePlaceOfTheFieldForFilesOrAddresses) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser %u", "a"), "1:[a]");
  EXPECT_EQ(saidBy("browser %U --x", "a"), "2:[a][--x]");
  EXPECT_EQ(saidBy("browser -f %f", "a"), "2:[-f][a]");
  EXPECT_EQ(saidBy("browser %F", "a"), "1:[a]");
  EXPECT_EQ(saidBy("browser --url=%u", "a b"), "1:[--url=a b]");
  EXPECT_EQ(saidBy("browser @@u %u @@", "a"), "3:[@@u][a][@@]");
}

TEST_F(LinuxProgramsTest, WithoutAFieldTheAddressComesLast) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser", "a"), "1:[a]");
  EXPECT_EQ(saidBy("browser --new", "a"), "2:[--new][a]");
}

TEST_F(LinuxProgramsTest, OtherFieldsAreReplacedOrLeftOut) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser %i %c 100%% %d%D %m %u", "a", "Icon=net\n"),
            "5:[--icon][net][command][100%][a]");
  EXPECT_EQ(saidBy("browser %i %u", "a"), "1:[a]");
}

TEST_F(LinuxProgramsTest, QuotesKeepAWordTogetherAndAreNoPartOfIt) {
  place.talker("my browser");

  EXPECT_EQ(saidBy(R"("my browser" "two words" a"b c"d "" %u)", "x"), "4:[two words][ab cd][][x]");
  EXPECT_EQ(saidBy(R"("my browser" "\\"\\$\\`\\\\" %u)", "x"), R"(2:["$`\][x])");
}

TEST_F(LinuxProgramsTest, NothingInTheAddressIsAFieldOrAQuote) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser %u", "%u %U \"a\" \\b"), R"(1:[%u %U "a" \b])");
}

TEST_F(LinuxProgramsTest, LineBreaksAndQuotesInAnAddressStayInItsOneArgument) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser %u", "a\n\"b\"\r\n'c'\t"), "1:[a\n\"b\"\r\n'c'\t]");
}

TEST_F(LinuxProgramsTest, AnAddressOf64KibibytesIsOneArgument) {
  place.talker("browser");
  const std::string address(65'536, 'a');

  EXPECT_EQ(saidBy("browser %u", address), "1:[" + address + "]");
}

TEST_F(LinuxProgramsTest, AnAddressThatNoProgramCanBeGivenStartsNothing) {
  place.talker("browser");

  EXPECT_FALSE(startCommand("browser %u", std::string(std::size_t{16} << 20U, 'a')));
}

TEST_F(LinuxProgramsTest, AnAddressThatWouldBeAnOptionStartsNothing) {
  place.talker("browser");

  EXPECT_FALSE(startCommand("browser %u", "--remote-debugging-port=1"));
  EXPECT_FALSE(startCommand("browser %u", "-"));
}

TEST_F(LinuxProgramsTest, NoShellReadsTheCommand) {
  place.talker("browser");

  EXPECT_EQ(saidBy("browser $HOME * ;touch x %u", "a"), "5:[$HOME][*][;touch][x][a]");
}

TEST_F(LinuxProgramsTest, TheKeyboardIsNotHandedOn) {
  place.program("browser", R"(printf '%s' "${DESKTOP_STARTUP_ID-no}${XDG_ACTIVATION_TOKEN-ne}")");
  setenv("DESKTOP_STARTUP_ID", "1", 1);
  setenv("XDG_ACTIVATION_TOKEN", "2", 1);

  EXPECT_EQ(saidBy("browser", "a"), "none");

  unsetenv("DESKTOP_STARTUP_ID");
  unsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(LinuxProgramsTest, TheProgramHasASessionOfItsOwnAndNoneOfThisOnesChannels) {
  place.program("browser",
                R"(readlink /proc/self/fd/0 /proc/self/fd/2; ps -o sid= -p $$ | grep -qw $$ && )"
                "printf own");

  EXPECT_EQ(saidBy("browser", "a"), "/dev/null\n/dev/null\nown");
}

TEST_F(LinuxProgramsTest, ProgramsThatHaveEndedAreForgottenAtTheNextStart) {
  place.talker("browser");

  for (int start = 0; start < 40; ++start) saidBy("browser", "a");

  // One has said everything before it ends; so some may have been seen alive.
  std::ifstream list("/proc/self/task/" + std::to_string(getpid()) + "/children");
  const std::vector<std::string> children(std::istream_iterator<std::string>(list), {});
  EXPECT_LT(children.size(), 20U);
}

}  // namespace
}  // namespace zelvane::test
