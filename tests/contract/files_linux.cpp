#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/system_error.h"
#include "tests/contract/files_contract.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Descriptor;
using platform::Error;
using platform::ErrorNumber;
using platform::LinuxFiles;
using platform::LinuxPendingFile;

class LinuxFilesBed : public FilesBed {
 public:
  platform::Files& files() override { return files_; }
  std::string path(const std::string& name) const override { return folder_ / name; }
  void addFile(const std::string& name, const std::string& content) override {
    folder_.write(name, content);
  }
  void addFolder(const std::string& name) override { fs::create_directories(path(name)); }
  void addLink(const std::string& name, const std::string& target) override {
    fs::create_symlink(target, path(name));
  }
  void addSocket(const std::string& name) override {
    const Descriptor descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path(name).copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(descriptor.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }
  void protectFolder(const std::string& name) override {
    fs::permissions(path(name), fs::perms::owner_read | fs::perms::owner_exec);
  }
  std::optional<std::string> content(const std::string& name) const override {
    return fs::exists(path(name)) ? std::optional(folder_.read(name)) : std::nullopt;
  }
  bool isLink(const std::string& name) const override { return fs::is_symlink(path(name)); }
  std::size_t entries(const std::string& folder) const override {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(path(folder)), fs::directory_iterator()));
  }
  std::string whyNoRefusals() const override {
    return geteuid() == 0 ? "root may read and write everything" : "";
  }

 private:
  ThrowAwayFolder folder_;
  LinuxFiles files_;
};

INSTANTIATE_TEST_SUITE_P(Linux, FilesContract, testing::Values([]() -> std::unique_ptr<FilesBed> {
                           return std::make_unique<LinuxFilesBed>();
                         }));

class LinuxFilesTest : public testing::Test {
 protected:
  Descriptor openFolder() const {
    return Descriptor(open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  }

  // The permission bits of the folder's only entry.
  mode_t onlyMode() const {
    struct stat status {};
    stat(fs::directory_iterator(folder.path())->path().c_str(), &status);
    return status.st_mode & 07777U;
  }

  std::ptrdiff_t entries() const {
    return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
  }

  ThrowAwayFolder folder;
  LinuxFiles files;
};

TEST_F(LinuxFilesTest, ANewFileIsReadableByItsUserAlone) {
  files.createBeside(folder / "file")->publish();

  EXPECT_EQ(onlyMode(), 0600U);
}

TEST_F(LinuxFilesTest, AFileThatReplacesAnotherDoesNotTakeOverItsPermissions) {
  folder.write("file");
  fs::permissions(folder / "file", fs::perms::all);

  files.createBeside(folder / "file")->publish();

  EXPECT_EQ(onlyMode(), 0600U);
}

TEST_F(LinuxFilesTest, OneInPlaceOfAnotherHasThatOnesPermissions) {
  folder.write("file");
  fs::permissions(folder / "file", static_cast<fs::perms>(0640));

  files.createInPlaceOf(folder / "file")->publish();

  EXPECT_EQ(onlyMode(), 0640U);
}

TEST_F(LinuxFilesTest, APendingFileHasNoNameAtAll) {
  const auto file = files.createBeside(folder / "file");
  file->write("content");

  EXPECT_EQ(entries(), 0);
}

TEST_F(LinuxFilesTest, AKillLeavesNothingOfAPendingFile) {
  ChildProcess program([this](const Say& say) {
    const auto file = files.createBeside(folder / "file");
    file->write("content");
    say("written");
    stayUntilKilled();
  });
  ASSERT_EQ(program.hearLine(), "written");

  program.kill();

  EXPECT_EQ(entries(), 0);
}

TEST_F(LinuxFilesTest, WithoutUnnamedFilesAPendingFileIsHiddenAndPrivate) {
  LinuxPendingFile file(openFolder(), "file", LinuxPendingFile::Kind::hidden);

  ASSERT_EQ(entries(), 1);
  EXPECT_TRUE(fs::directory_iterator(folder.path())->path().filename().string().starts_with("."));
  EXPECT_EQ(onlyMode(), 0600U);
}

TEST_F(LinuxFilesTest, WithoutUnnamedFilesAFileIsPublishedOverAnotherAllTheSame) {
  folder.write("file", "old");
  {
    LinuxPendingFile file(openFolder(), "file", LinuxPendingFile::Kind::hidden);
    file.write("new");
    file.publish();
  }

  EXPECT_EQ(folder.read("file"), "new");
  EXPECT_EQ(entries(), 1);
}

TEST_F(LinuxFilesTest, WithoutUnnamedFilesADiscardedFileLeavesNothing) {
  LinuxPendingFile(openFolder(), "file", LinuxPendingFile::Kind::hidden).write("content");

  EXPECT_EQ(entries(), 0);
}

TEST_F(LinuxFilesTest, ADiskWithoutRoomIsReportedAsFull) {
  ChildProcess program([this](const Say& say) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit shortFiles{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &shortFiles);
    try {
      files.createBeside(folder / "file")->write(std::string(2000, 'x'));
    } catch (const Error& error) {
      say(error.text());
    }
  });

  EXPECT_EQ(program.hearLine(), "Disk full");
  EXPECT_EQ(entries(), 0);
}

TEST_F(LinuxFilesTest, APipeIsRefusedWithoutWaitingForItsOtherEnd) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);

  EXPECT_THROW(files.open(folder / "pipe"), Error);
  EXPECT_FALSE(files.exists(folder / "pipe"));
}

TEST_F(LinuxFilesTest, ADeviceIsNoFile) {
  EXPECT_THROW(files.open("/dev/null"), Error);
  EXPECT_FALSE(files.exists("/dev/null"));
}

TEST_F(LinuxFilesTest, AZeroByteDoesNotCutAPath) {
  folder.write("file");
  const std::string path = (folder / "file") + std::string("\0more", 5);

  EXPECT_FALSE(files.exists(path));
  EXPECT_THROW(files.open(path), Error);
  EXPECT_THROW(files.remove(path), Error);
  EXPECT_THROW(files.createBeside(path), Error);
  EXPECT_TRUE(folder.has("file"));
}

TEST_F(LinuxFilesTest, AFileThatClaimsToBeEmptyIsReadToItsEnd) {
  EXPECT_FALSE(files.readWhole("/proc/self/status", 1'000'000).empty());
}

TEST(SystemError, EveryNumberOfTheKernelHasANumberAndWordsOfTheProgram) {
  EXPECT_EQ(platform::errorFor(ENOENT).number(), ErrorNumber::fileNotFound);
  EXPECT_EQ(platform::errorFor(ENOTDIR).number(), ErrorNumber::pathNotFound);
  EXPECT_EQ(platform::errorFor(EACCES).number(), ErrorNumber::permissionDenied);
  EXPECT_EQ(platform::errorFor(EROFS).number(), ErrorNumber::permissionDenied);
  EXPECT_EQ(platform::errorFor(ENOSPC).number(), ErrorNumber::diskFull);
  EXPECT_EQ(platform::errorFor(EIO).number(), ErrorNumber::deviceIo);
  EXPECT_EQ(platform::errorFor(ELOOP).number(), ErrorNumber::accessError);
  EXPECT_EQ(platform::errorFor(EACCES).text(), "Permission denied");
}

TEST(SystemError, AnUnforeseenNumberKeepsTheSystemsWords) {
  const Error error = platform::errorFor(EDEADLK);

  EXPECT_EQ(error.number(), ErrorNumber::internal);
  EXPECT_EQ(error.text(), std::strerror(EDEADLK));
}

}  // namespace
}  // namespace zelvane::test
