#include "tests/support/kill/kill_tracer.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using enum KillTracer::Side;

void need(bool done) {
  if (!done) throw std::runtime_error("a call failed");
}

class KillTracerTest : public testing::Test {
 protected:
  // Three calls; the first two never fail, the last needs them.
  KillTracer::Program makesWritesAndMoves() const {
    return [this] {
      const int file = open((folder / "new").c_str(), O_CREAT | O_WRONLY, 0600);
      need(write(file, "text", 4) == 4);
      need(renameat(AT_FDCWD, (folder / "new").c_str(), AT_FDCWD, (folder / "old").c_str()) == 0);
    };
  }
  std::vector<std::string> callsOf(const KillTracer::Program& program) const {
    const auto ending = tracer.run(program);
    EXPECT_EQ(ending.status, 0);
    return ending.calls;
  }
  // What stands before the paths.
  std::vector<std::string> namesOf(const KillTracer::Program& program) const {
    std::vector<std::string> names = callsOf(program);
    for (std::string& name : names) name.resize(std::min(name.find(' '), name.size()));
    return names;
  }

  ThrowAwayFolder folder;
  KillTracer tracer{{.below = folder.path()}};
};

TEST_F(KillTracerTest, EachCallIsToldWithItsPaths) {
  EXPECT_EQ(callsOf(makesWritesAndMoves()),
            (std::vector<std::string>{"openat " + folder / "new", "write " + folder / "new",
                                      "renameat " + folder / "new " + folder / "old"}));
}

TEST_F(KillTracerTest, KilledBeforeACallItIsNotMade) {
  const auto ending = tracer.runUntil({before, 3}, makesWritesAndMoves());

  EXPECT_TRUE(ending.killed);
  EXPECT_TRUE(WIFSIGNALED(ending.status) && WTERMSIG(ending.status) == SIGKILL);
  EXPECT_EQ(ending.calls.size(), 3U);
  EXPECT_EQ(folder.read("new"), "text");
  EXPECT_FALSE(folder.has("old"));
}

TEST_F(KillTracerTest, KilledBeforeTheFirstCallNothingIsDone) {
  tracer.runUntil({before, 1}, makesWritesAndMoves());

  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(KillTracerTest, KilledAfterACallItIsMadeAndNoLaterOne) {
  const auto ending = tracer.runUntil({after, 2}, makesWritesAndMoves());

  EXPECT_TRUE(ending.killed);
  EXPECT_EQ(folder.read("new"), "text");
  EXPECT_FALSE(folder.has("old"));
}

TEST_F(KillTracerTest, KilledAfterTheLastCallNothingMoreIsRun) {
  const auto ending = tracer.runUntil({after, 3}, [this] {
    makesWritesAndMoves()();
    _exit(9);
  });

  EXPECT_TRUE(WIFSIGNALED(ending.status));
  EXPECT_EQ(folder.read("old"), "text");
}

TEST_F(KillTracerTest, AProgramWithFewerCallsRunsToItsEnd) {
  const auto ending = tracer.runUntil({before, 4}, makesWritesAndMoves());

  EXPECT_FALSE(ending.killed);
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.calls.size(), 3U);
}

TEST_F(KillTracerTest, TheStatusIsTheProgramsOwn) {
  EXPECT_EQ(WEXITSTATUS(tracer.run([] { _exit(7); }).status), 7);
  EXPECT_EQ(WTERMSIG(tracer.run([] { raise(SIGTERM); }).status), SIGTERM);
  EXPECT_EQ(WEXITSTATUS(tracer.run([] { throw std::runtime_error("expected here"); }).status), 70);
}

TEST_F(KillTracerTest, EveryWayOfWritingIsCounted) {
  const int file = open(folder.write("file").c_str(), O_RDWR);
  std::array<char, 4> bytes{};
  const iovec piece{bytes.data(), bytes.size()};
  const iovec* pieces = &piece;

  const auto names = namesOf([&] {
    const int other = open((folder / "file").c_str(), O_RDONLY);
    need(write(file, bytes.data(), bytes.size()) > 0);
    need(pwrite(file, bytes.data(), bytes.size(), 0) > 0);
    need(writev(file, pieces, 1) > 0);
    need(pwritev(file, pieces, 1, 0) > 0);
    need(pwritev2(file, pieces, 1, 0, RWF_SYNC) > 0);
    need(ftruncate(file, 8) == 0);
    need(truncate((folder / "file").c_str(), 16) == 0);
    need(syscall(SYS_fallocate, file, 0, 0, 32) == 0);
    need(syscall(SYS_copy_file_range, other, nullptr, file, nullptr, 4, 0) > 0);
    need(syscall(SYS_sendfile, file, other, nullptr, 4) > 0);
    need(fsync(file) == 0 && fdatasync(file) == 0 && syncfs(file) == 0);
  });

  EXPECT_EQ(names,
            (std::vector<std::string>{"write", "pwrite64", "writev", "pwritev", "pwritev2",
                                      "ftruncate", "truncate", "fallocate", "copy_file_range",
                                      "sendfile", "fsync", "fdatasync", "syncfs"}));
  close(file);
}

TEST_F(KillTracerTest, EveryWayOfNamingIsCounted) {
  const auto names = namesOf([&] {
    const int here = open(folder.path().c_str(), O_RDONLY | O_DIRECTORY);
    need(mkdirat(here, "folder", 0700) == 0);
    need(syscall(SYS_mknodat, here, "file", S_IFREG | 0600, 0) == 0);
    need(linkat(here, "file", here, "link", 0) == 0);
    need(symlinkat("nowhere", here, "symbolic") == 0);
    need(renameat(here, "link", here, "other") == 0);
    need(renameat2(here, "other", here, "third", RENAME_NOREPLACE) == 0);
    need(fchmodat(here, "file", 0400, 0) == 0);
    need(fchownat(here, "file", getuid(), getgid(), 0) == 0);
    need(utimensat(here, "file", nullptr, 0) == 0);
    need(unlinkat(here, "third", 0) == 0);
    need(unlinkat(here, "folder", AT_REMOVEDIR) == 0);
    need(fchmod(here, 0700) == 0);
  });

  EXPECT_EQ(names, (std::vector<std::string>{"mkdirat", "mknodat", "linkat", "symlinkat",
                                             "renameat", "renameat2", "fchmodat", "fchownat",
                                             "utimensat", "unlinkat", "unlinkat", "fchmod"}));
}

TEST_F(KillTracerTest, AnUnnamedFileIsCountedUntilItHasAName) {
  const auto names = namesOf([&] {
    const int file = open(folder.path().c_str(), O_TMPFILE | O_RDWR, 0600);
    need(write(file, "x", 1) == 1);
    const std::string self = "/proc/self/fd/" + std::to_string(file);
    need(linkat(AT_FDCWD, self.c_str(), AT_FDCWD, (folder / "named").c_str(), AT_SYMLINK_FOLLOW) ==
         0);
  });

  EXPECT_EQ(names, (std::vector<std::string>{"openat", "write", "linkat"}));
}

TEST_F(KillTracerTest, CallsMadeWithoutTheLibraryAreCounted) {
  const std::string path = folder / "raw";
  struct {
    std::uint64_t flags, mode, resolve;
  } how{O_CREAT | O_WRONLY, 0600, 0};

  const auto names = namesOf([&] {
    const long file = syscall(SYS_openat2, AT_FDCWD, path.c_str(), &how, sizeof how);
    need(syscall(SYS_write, file, "x", 1) == 1);
    need(syscall(SYS_unlinkat, AT_FDCWD, path.c_str(), 0) == 0);
  });

  EXPECT_EQ(names, (std::vector<std::string>{"openat2", "write", "unlinkat"}));
}

TEST_F(KillTracerTest, WhatChangesNoFileIsNotCounted) {
  folder.write("file");

  const auto calls = KillTracer().run([&] {
    std::array<int, 2> ends{};
    need(pipe(ends.data()) == 0);
    need(write(ends[1], "x", 1) == 1);
    const int file = open((folder / "file").c_str(), O_RDWR);
    char byte = 0;
    need(read(file, &byte, 1) == 1);
    const int nothing = open("/dev/null", O_WRONLY);
    need(write(nothing, "x", 1) == 1);
    const int memory = memfd_create("memory", 0);
    need(ftruncate(memory, 4096) == 0);
  });

  EXPECT_EQ(calls.calls, std::vector<std::string>{});
  EXPECT_EQ(calls.status, 0);
}

TEST_F(KillTracerTest, CallsOutsideTheFolderAreNotCounted) {
  const ThrowAwayFolder other;
  fs::create_directory_symlink(folder.path(), other / "way in");

  const auto calls = callsOf([&] {
    other.write("outside");
    need(chdir(other.path().c_str()) == 0);
    need(mkdir("here", 0700) == 0);
    need(mkdirat(AT_FDCWD, "way in/through a link", 0700) == 0);
    need(mkdir((folder.path().string() + "x").c_str(), 0700) == 0);
    need(rmdir((folder.path().string() + "x").c_str()) == 0);
  });

  EXPECT_EQ(calls, (std::vector<std::string>{"mkdirat " + folder / "through a link"}));
}

TEST_F(KillTracerTest, CallsOfThreadsAreCounted) {
  const auto calls = callsOf([this] {
    for (int i = 0; i < 8; ++i) {
      std::thread([this, i] {
        need(mkdir((folder / std::to_string(i)).c_str(), 0700) == 0);
      }).join();
    }
  });

  EXPECT_EQ(calls.size(), 8U);
}

TEST_F(KillTracerTest, AKillInOneThreadEndsAllOfThem) {
  const auto ending = tracer.runUntil({after, 40}, [this] {
    const auto makeFolders = [this](const std::string& name) {
      for (int i = 0; i < 1'000; ++i) mkdir((folder / (name + std::to_string(i))).c_str(), 0700);
    };
    std::thread one([&] { makeFolders("a"); });
    std::thread two([&] { makeFolders("b"); });
    one.join();
    two.join();
  });

  const auto made = std::distance(fs::directory_iterator(folder.path()), {});
  EXPECT_TRUE(ending.killed);
  // The other thread may stand before a call of its own that was already let pass.
  EXPECT_GE(made, 39);
  EXPECT_LE(made, 40);
}

TEST_F(KillTracerTest, CallsOfChildrenAreCountedWhenAskedFor) {
  const auto program = [this] {
    const pid_t child = fork();
    if (child == 0) _exit(mkdir((folder / "child's").c_str(), 0700));
    int status = 0;
    need(waitpid(child, &status, 0) == child && status == 0);
    need(mkdir((folder / "own").c_str(), 0700) == 0 && rmdir((folder / "child's").c_str()) == 0 &&
         rmdir((folder / "own").c_str()) == 0);
  };

  EXPECT_EQ(tracer.run(program).calls.size(), 3U);
  EXPECT_EQ(KillTracer({.below = folder.path(), .children = true}).run(program).calls.size(), 4U);
}

TEST_F(KillTracerTest, ChildrenDieWithTheProgram) {
  std::array<int, 2> ends{};
  need(pipe(ends.data()) == 0);

  tracer.run([&] {
    if (fork() == 0) {
      for (;;) pause();
    }
  });
  close(ends[1]);
  char byte = 0;

  EXPECT_EQ(read(ends[0], &byte, 1), 0);  // nobody is left who could write
  close(ends[0]);
}

TEST_F(KillTracerTest, SyncsCanBeSkipped) {
  const int file = open(folder.write("file").c_str(), O_RDWR);
  const auto program = [&] {
    need(fsync(file) == 0 && fdatasync(file) == 0 && write(file, "", 1));
  };

  EXPECT_EQ(tracer.run(program).calls.size(), 3U);
  EXPECT_EQ(KillTracer({.below = folder.path(), .skipSyncs = true}).run(program).calls.size(), 1U);
  close(file);
}

TEST_F(KillTracerTest, SignalsReachTheProgram) {
  const auto ending = tracer.run([] {
    struct sigaction action {};
    action.sa_handler = [](int) { _exit(5); };
    sigaction(SIGUSR1, &action, nullptr);
    raise(SIGUSR1);
  });

  EXPECT_EQ(WEXITSTATUS(ending.status), 5);
}

TEST_F(KillTracerTest, AProgramOfItsOwnIsTraced) {
  const auto program = KillTracer::execute(
      {"/bin/sh", "-c", "mkdir \"$0/made\" && rmdir \"$0/made\"", folder.path()});

  const auto ending = KillTracer({.below = folder.path(), .children = true}).run(program);
  const auto killed =
      KillTracer({.below = folder.path(), .children = true}).runUntil({after, 1}, program);

  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.calls.size(), 2U);
  EXPECT_TRUE(killed.killed);
  EXPECT_TRUE(folder.has("made"));
}

// The tracer as a program lies beside this one. Returns its exit status.
int runTool(const std::string& arguments) {
  const fs::path tool = fs::read_symlink("/proc/self/exe").parent_path() / "kill_tracer";
  return WEXITSTATUS(std::system(("'" + tool.string() + "' " + arguments).c_str()));
}

TEST_F(KillTracerTest, AsAProgramItCountsAndKills) {
  const ThrowAwayFolder reports;
  const std::string options = "--children --below '" + folder.path().string() + "' --report '" +
                              reports / "calls" + "' 2>'" + reports / "said" + "' ";
  const std::string command =
      " -- sh -c 'mkdir \"$0/made\" && rmdir \"$0/made\"; exit 5' '" + folder.path().string() + "'";

  EXPECT_EQ(runTool(options + "count" + command), 5);
  EXPECT_EQ(reports.read("said"), "kill_tracer: 2 calls\n");
  EXPECT_EQ(reports.read("calls"),
            "mkdir " + folder / "made" + "\nrmdir " + folder / "made" + "\n");
  EXPECT_EQ(runTool(options + "before 3" + command), 3);
  EXPECT_FALSE(folder.has("made"));
  EXPECT_EQ(runTool(options + "before 2" + command), 0);
  EXPECT_TRUE(folder.has("made"));
}

TEST_F(KillTracerTest, AsAProgramItRefusesWhatMakesNoSense) {
  for (const std::string words : {"", "count", "count --", "before -- true", "after 0 -- true",
                                  "before 1x -- true", "--all count -- true", "count 3 -- true"}) {
    EXPECT_EQ(runTool(words + " 2>/dev/null"), 2) << words;
  }
}

TEST_F(KillTracerTest, AProgramThatIsNotThereSaysSo) {
  EXPECT_EQ(WEXITSTATUS(tracer.run(KillTracer::execute({"/nowhere/at/all"})).status), 70);
}

}  // namespace
}  // namespace zelvane::test
