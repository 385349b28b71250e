// The whole program, killed beside each of its changes of the disk in turn.
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/mman.h>

#include "tests/attack/kills/stored_values.h"
#include "tests/attack/kills/users_steps.h"
#include "tests/support/headless_program.h"
#include "tests/support/kill/kill_tracer.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Registry;
using Texts = std::vector<std::string>;

constexpr const char* kStores = "home/.config/zelvane/";
constexpr const char* kTrash = "home/.local/share/Trash/";
constexpr const char* kLedger = "home/.config/zelvane/ledger.txt";
constexpr const char* kAutostart = "home/.config/autostart/zelvane.desktop";
constexpr const char* kList = "home/.local/share/recently-used.xbel";

using Step = std::function<void(HeadlessProgram&)>;
const std::vector<Step> kSteps = usersSteps<HeadlessProgram>();

// Things for a run to erase.
void litter(const ThrowAwayFolder& folder) {
  folder.write("tmp/forgotten.tmp");
  folder.write("tmp/folder/inner/forgotten.tmp");
  for (const std::string name : {"letter.txt", "picture.png", ".hidden"}) {
    folder.write(std::string(kTrash) + "files/" + name);
    folder.write(std::string(kTrash) + "info/" + name + ".trashinfo");
  }
  folder.write(std::string(kTrash) + "files/folder/inner.txt");
  folder.write(std::string(kTrash) + "info/folder.trashinfo");
  folder.write(std::string(kTrash) + "info/of nothing.trashinfo");
  folder.write(std::string(kTrash) + "directorysizes");
  folder.write(kList, R"(<xbel version="1.0"><bookmark href="file:///letter.txt"/></xbel>)");
  folder.write(std::string(kList) + ".ABC123", "a copy");
}

// A home in which every value has been stored before, and some that only a later version knows.
void use(const ThrowAwayFolder& folder) {
  folder.write(std::string(kStores) + "settings.json",
               R"({"format": 1, "future": [1, {"a": 2.5}], "applications": {
                   "Zelvane": {"future": {"x": "y"}, "Schedule": {"RunOn": "7"}}}})");
  folder.write(std::string(kStores) + "win.ini", "; kept\r\n[Other]\r\na=b\r\n");
  folder.write(std::string(kStores) + ".zelvane-00000000000000000000000000000000", "half of it");
  HeadlessDesktop desktop(folder);
  const std::string program = desktop.identity.programFolder();
  for (int option = 0; option < 16; ++option) {
    desktop.settings.save(program, "Settings", "Index" + std::to_string(option), "0");
  }
  for (const char* option : {"Index2", "Index3", "Index5", "Index11"}) {
    desktop.settings.save(program, "Settings", option, "1");
  }
  desktop.settings.save("Zelvane", "HomePage", "StartPage", "https://former.example/");
  desktop.settings.save("Zelvane", "Options", "StartUp", "0");
  for (const char* key : {R"(Software\Microsoft\Internet Explorer\TypedURLs)",
                          R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)"}) {
    const auto opened = desktop.registry.create(Registry::Root::currentUser, key);
    desktop.registry.set(opened.key, "url1", Registry::Type::string, {});
  }
}

// Files in the trash whose note is gone: nobody would know any more where they came from.
Texts filesWithoutNote(const ThrowAwayFolder& folder) {
  Texts names;
  const std::string files = folder / (std::string(kTrash) + "files");
  if (!fs::exists(files)) return names;
  for (const auto& entry : fs::directory_iterator(files)) {
    const std::string name = entry.path().filename().string();
    if (!folder.has(std::string(kTrash) + "info/" + name + ".trashinfo")) names.push_back(name);
  }
  return names;
}

Texts filesIn(const ThrowAwayFolder& folder, const std::function<bool(const fs::path&)>& which) {
  Texts paths;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    if (!entry.is_directory() && which(entry.path())) paths.push_back(entry.path().string());
  }
  return paths;
}

Texts leftoversIn(const ThrowAwayFolder& folder) {
  return filesIn(folder, [](const fs::path& path) {
    return path.filename().string().starts_with(".zelvane-");
  });
}

Texts litterIn(const ThrowAwayFolder& folder) {
  return filesIn(folder, [&](const fs::path& path) {
    const std::string name = fs::relative(path, folder.path()).string();
    return name.starts_with("tmp/") || name.starts_with(kTrash) ||
           name.starts_with(std::string(kList) + ".");
  });
}

// How many steps a process got done, as another one sees it.
class Progress {
 public:
  Progress()
      : done_(static_cast<volatile std::size_t*>(mmap(nullptr, sizeof(std::size_t),
                                                      PROT_READ | PROT_WRITE,
                                                      MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { munmap(const_cast<std::size_t*>(done_), sizeof(std::size_t)); }

  std::size_t done() const { return *done_; }
  void start() const { *done_ = 0; }
  void step() const { *done_ = *done_ + 1; }

 private:
  volatile std::size_t* done_;
};

class KilledProgram : public testing::Test {
 protected:
  using Prepare = std::function<void(const ThrowAwayFolder&)>;

  // What is stored before the first step, and after each.
  static std::vector<StoredValues> statesOf(const Prepare& prepare) {
    const ThrowAwayFolder folder;
    prepare(folder);
    HeadlessProgram program(folder);
    std::vector<StoredValues> states = {storedIn(folder)};
    for (const Step& step : kSteps) {
      step(program);
      states.push_back(storedIn(folder));
    }
    EXPECT_EQ(program.told(), Texts{});
    EXPECT_TRUE(program.hasEnded());
    EXPECT_EQ(litterIn(folder), Texts{});
    return states;
  }

  // Without syncs, which change nothing that a kill leaves, and take the most time of all.
  static KillTracer tracer(const ThrowAwayFolder& folder) {
    return KillTracer({.below = folder.path(), .skipSyncs = true});
  }

  static std::string told(const HeadlessProgram& program) {
    return program.told().empty() ? "nothing" : program.told().front();
  }

  KillTracer::Ending run(const ThrowAwayFolder& folder,
                         const std::optional<KillTracer::Moment>& moment) const {
    HeadlessProgram program(folder);
    progress.start();
    const auto steps = [&] {
      for (const Step& step : kSteps) {
        step(program);
        progress.step();
      }
    };
    return moment ? tracer(folder).runUntil(*moment, steps) : tracer(folder).run(steps);
  }

  // Between two states of the stores, with nothing in the trash that cannot be put back, and
  // nothing outside the program's own folders that is not noted.
  void expectBetween(const ThrowAwayFolder& folder, const StoredValues& before,
                     const StoredValues& after) const {
    EXPECT_EQ(neitherBeforeNorAfter(storedIn(folder), before, after), Texts{});
    EXPECT_EQ(filesWithoutNote(folder), Texts{});
    EXPECT_TRUE(folder.has(kLedger) || !folder.has(kAutostart));
  }

  // The next start, and all that follows, is as if nobody had been killed.
  void expectThatTheNextRunMendsAll(const ThrowAwayFolder& folder, const StoredValues& last) const {
    HeadlessProgram program(folder);
    const ThrowAwayFolder report;
    const auto next = [&] {
      program.start();
      report.write("told at the start", told(program));
      report.write("status", program.status());
      doAllAgain(program);
      report.write("told in all", told(program));
    };

    EXPECT_EQ(tracer(folder).run(next).status, 0);

    EXPECT_EQ(report.read("told at the start"), "nothing");
    EXPECT_EQ(report.read("status"), "Ready");
    EXPECT_EQ(report.read("told in all"), "nothing");
    EXPECT_EQ(litterIn(folder), Texts{});
    EXPECT_EQ(leftoversIn(folder), Texts{});
    EXPECT_EQ(neitherBeforeNorAfter(storedIn(folder), last, last), Texts{});
  }

  void expectThatNoKillLosesAnything(const Prepare& prepare) const {
    const std::vector<StoredValues> states = statesOf(prepare);
    const ThrowAwayFolder whole;
    prepare(whole);
    const Texts calls = run(whole, std::nullopt).calls;
    ASSERT_EQ(progress.done(), kSteps.size());
    ASSERT_GT(calls.size(), 50U);

    for (std::size_t call = 1; call <= calls.size() && !HasFailure(); ++call) {
      for (const auto side : {KillTracer::Side::before, KillTracer::Side::after}) {
        SCOPED_TRACE((side == KillTracer::Side::before ? "before " : "after ") +
                     std::to_string(call) + ": " + calls[call - 1]);
        const ThrowAwayFolder folder;
        prepare(folder);

        const bool killed = run(folder, KillTracer::Moment{side, call}).killed;

        const std::size_t done = progress.done();
        ASSERT_TRUE(killed);
        ASSERT_LT(done, kSteps.size());
        expectBetween(folder, states[done], states[done + 1]);
        // After a call the disk is as it is before the next one; one of the two is enough for what
        // takes the longest.
        if (side == KillTracer::Side::before || call == calls.size()) {
          expectThatTheNextRunMendsAll(folder, states.back());
        }
      }
    }
  }

  const Progress progress;
};

TEST_F(KilledProgram, LosesNothingAtItsFirstStart) { expectThatNoKillLosesAnything(litter); }

TEST_F(KilledProgram, LosesNothingInAHomeThatHasBeenUsed) {
  const ThrowAwayFolder used;
  use(used);
  litter(used);

  expectThatNoKillLosesAnything([&](const ThrowAwayFolder& folder) {
    fs::copy(used.path(), folder.path(), fs::copy_options::recursive);
  });
}

TEST_F(KilledProgram, KeepsABrokenStoreUnderOneOfItsTwoNames) {
  const auto prepare = [](const ThrowAwayFolder& folder) {
    folder.write(std::string(kStores) + "settings.json", "broken settings");
    folder.write(std::string(kStores) + "registry.json", "broken hive");
  };
  const auto keeps = [](const ThrowAwayFolder& folder, const std::string& name,
                        const std::string& content) {
    const std::string file = kStores + name;
    return folder.read(file) == content || folder.read(file + ".set-aside-1") == content;
  };
  const ThrowAwayFolder whole;
  prepare(whole);
  const Texts calls = run(whole, std::nullopt).calls;

  for (std::size_t call = 1; call <= calls.size() && !HasFailure(); ++call) {
    SCOPED_TRACE(std::to_string(call) + ": " + calls[call - 1]);
    const ThrowAwayFolder folder;
    prepare(folder);

    run(folder, KillTracer::Moment{KillTracer::Side::before, call});

    EXPECT_TRUE(keeps(folder, "settings.json", "broken settings"));
    EXPECT_TRUE(keeps(folder, "registry.json", "broken hive"));
  }
}

}  // namespace
}  // namespace zelvane::test
