// The window when the session ends: first it is asked, then it is told whether it does.
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include <windows.h>

#include "platform/process_end.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/modal_user_windows.h"
#include "tests/contract/shell_bed_windows.h"
#include "ui/win32/win32_dialogs.h"

namespace zelvane::test {
namespace {

// The end of a second process, because nobody comes back from it. One without last words is not
// expected, and takes the whole test program along.
class LastWords : public platform::ProcessEnd {
 public:
  void set(std::function<void()> say) { say_ = std::move(say); }

  [[noreturn]] void end() override {
    if (!say_) endWith(kNotExpected);
    say_();
    endWith(kEnded);
  }

  static constexpr std::uint32_t kEnded = 0;

 private:
  static constexpr std::uint32_t kNotExpected = 73;

  std::function<void()> say_;
};

// Boxes are real here, all other ports are in memory.
class SessionEndTest : public testing::Test {
 protected:
  SessionEndTest() {
    dialogs.attach(shell.handle());
    window.mainPage.form.queryUnload.connect(
        [this](bool&, controls::UnloadMode mode) { asked = mode; });
    desktop.specialFolders.setTemporary("/tmp/");
    for (const char* file : {"/tmp/a", "/tmp/b", "/tmp/c"}) desktop.fileSystem.addFile(file);
    main_window::GenFunc::Main(ports(), window);
    desktop.settings.forgetSaves();
  }

  LRESULT ask() const { return SendMessageW(shell.handle(), WM_QUERYENDSESSION, 0, 0); }
  void tell(bool ends) const {
    SendMessageW(shell.handle(), WM_ENDSESSION, ends ? TRUE : FALSE, 0);
  }

  void pressClean() const {
    const win32::Window* button =
        win32::Window::find(shell.handle(), window.cleanerPage.cmdBasicClean.name());
    SendMessageW(button->handle(), BM_CLICK, 0, 0);
  }

  // In a run, once the first file is gone.
  void inTheRun(const std::function<void()>& deed) {
    desktop.pump.post([this, deed] {
      if (desktop.fileSystem.has("/tmp/a")) {
        inTheRun(deed);
      } else {
        deed();
      }
    });
  }

  // What has become of everything that an end may change.
  std::string account() const {
    const controls::Form& form = window.mainPage.form;
    std::string text = "StartUp " + desktop.settings.find("Options", "StartUp").value_or("-");
    text += ", saves " + std::to_string(desktop.settings.saves().size());
    text += asked ? ", unload " + std::to_string(static_cast<int>(*asked)) : "";
    text += form.visible() ? "" : ", hidden";
    text += form.state() == controls::Form::State::normal ? "" : ", minimised";
    for (const std::string file : {"/tmp/a", "/tmp/b", "/tmp/c"}) {
      if (!desktop.fileSystem.has(file)) text += ", without " + file;
    }
    text += window.cleanerPage.rtfMessage.text().ends_with("Done") ? ", done" : "";
    return text;
  }

  // For a second process: it tells what it leaves.
  void sayTheEnd(const Say& say) {
    process.set([this, say] { say(account()); });
  }

  platform::MemoryDesktop desktop;
  controls::OpenBoxes boxes;
  win32::Win32Dialogs dialogs{boxes};
  LastWords process;
  main_window::frmMain window{ports()};
  win32::Look look;
  win32::MainWindow shell{window, boxes, look};
  std::optional<controls::UnloadMode> asked;

 private:
  platform::Desktop ports() {
    return {.identity = desktop.identity,
            .machine = desktop.machine,
            .clock = desktop.clock,
            .settings = desktop.settings,
            .registry = desktop.registry,
            .winIni = desktop.winIni,
            .specialFolders = desktop.specialFolders,
            .folderTree = desktop.folderTree,
            .files = desktop.files,
            .recycleBin = desktop.recycleBin,
            .clipboard = desktop.clipboard,
            .dialogs = dialogs,
            .window = desktop.window,
            .pump = desktop.pump,
            .instance = desktop.instance,
            .process = process,
            .notifications = desktop.notifications,
            .tray = desktop.tray,
            .leftTraces = desktop.leftTraces,
            .sound = desktop.sound,
            .programs = desktop.programs};
  }
};

constexpr const char* kUntouched = "StartUp -, saves 0";

TEST_F(SessionEndTest, AskedItAgreesAndDoesNothingElse) {
  EXPECT_TRUE(ask());

  EXPECT_EQ(account(), kUntouched);
  EXPECT_TRUE(IsWindowVisible(shell.handle()));
  EXPECT_FALSE(boxes.any());
}

TEST_F(SessionEndTest, WhereItGoesOnAfterAllNothingChanges) {
  EXPECT_TRUE(ask());
  tell(false);

  EXPECT_EQ(account(), kUntouched);
  EXPECT_TRUE(IsWindowVisible(shell.handle()));
}

TEST_F(SessionEndTest, TheChoiceForTheStartupIsStoredAndTheProcessEndsAtOnce) {
  ChildProcess program([this](const Say& say) {
    sayTheEnd(say);
    window.mainPage.chkStartup.setValue(1);
    ask();
    tell(true);
    say("went on");
  });

  EXPECT_EQ(program.hearAll(), "StartUp 1, saves 1, unload 2\n");
  EXPECT_EQ(program.wait(), LastWords::kEnded);
}

TEST_F(SessionEndTest, ItEndsThoughNobodyAskedBefore) {
  ChildProcess program([this](const Say& say) {
    sayTheEnd(say);
    tell(true);
    say("went on");
  });

  EXPECT_EQ(program.hearAll(), "StartUp 0, saves 1, unload 2\n");
}

TEST_F(SessionEndTest, ABoxThatIsOpenDoesNotHinderTheEnd) {
  ChildProcess program([this](const Say& say) {
    sayTheEnd(say);
    ModalUser user;
    user.atNextDialog([this](HWND box) {
      ask();
      tell(true);
      PostMessageW(box, WM_CLOSE, 0, 0);
    });
    dialogs.show({.text = "text", .title = "title"});
    say("went on");
  });

  EXPECT_EQ(program.hearAll(), "StartUp 0, saves 1, unload 2\n");
  EXPECT_EQ(program.wait(), LastWords::kEnded);
}

TEST_F(SessionEndTest, ABoxStaysOpenWhereTheSessionGoesOn) {
  ModalUser user;
  bool agreed = false;
  bool stayed = false;
  user.atNextDialog([&](HWND box) {
    agreed = ask() != FALSE;
    tell(false);
    stayed = IsWindowVisible(box) != FALSE;
    PostMessageW(box, WM_CLOSE, 0, 0);
  });

  dialogs.show({.text = "text", .title = "title"});

  EXPECT_TRUE(agreed);
  EXPECT_TRUE(stayed);
  EXPECT_EQ(account(), kUntouched);
}

TEST_F(SessionEndTest, ARunEndsWhereItStands) {
  ChildProcess program([this](const Say& say) {
    sayTheEnd(say);
    inTheRun([this] {
      ask();
      tell(true);
    });
    pressClean();
    say("went on");
  });

  EXPECT_EQ(program.hearAll(), "StartUp 0, saves 1, unload 2, without /tmp/a\n");
  EXPECT_EQ(program.wait(), LastWords::kEnded);
}

TEST_F(SessionEndTest, ARunGoesOnWhereTheSessionDoes) {
  inTheRun([this] {
    ask();
    tell(false);
  });

  pressClean();

  EXPECT_EQ(account(),
            std::string(kUntouched) + ", without /tmp/a, without /tmp/b, without /tmp/c, done");
}

TEST_F(SessionEndTest, TheCloseBoxInTheMiddleOfARunHidesAndTheRunGoesOn) {
  inTheRun([this] { SendMessageW(shell.handle(), WM_SYSCOMMAND, SC_CLOSE, 0); });

  pressClean();

  EXPECT_EQ(account(),
            std::string(kUntouched) +
                ", unload 0, hidden, minimised, without /tmp/a, without /tmp/b, without /tmp/c, "
                "done");
}

}  // namespace
}  // namespace zelvane::test
