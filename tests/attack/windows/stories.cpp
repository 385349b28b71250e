#include "tests/attack/windows/stories.h"

#include <stdexcept>

#include <windows.h>

#include "cleaner/erasure.h"
#include "platform/windows/wide_text.h"
#include "tests/attack/kills/users_steps.h"

namespace zelvane::test {

const Story kUse{"use", [](const World& world, const std::function<void()>& done) {
                   HeadlessProgram program(world);
                   for (const auto& step : usersSteps<HeadlessProgram>()) {
                     step(program);
                     done();
                   }
                 }};

const Story kStart{"start", [](const World& world, const std::function<void()>& done) {
                     HeadlessProgram(world).start();
                     done();
                   }};

const Story kErase{
    "erase", [](const World& world, const std::function<void()>& done) {
      using platform::SpecialFolder;
      HeadlessDesktop desktop(world);
      for (const SpecialFolder special :
           {SpecialFolder::history, SpecialFolder::cookies, SpecialFolder::internetCache}) {
        const auto path = desktop.folders.path(special);
        if (path) cleaner::eraseContents(desktop.folders, desktop.pump, *path);
      }
      desktop.browserTraces.eraseTyped();
      done();
    }};

const Story kReplaceFile{"replace file", [](const World& world, const std::function<void()>& done) {
                           platform::WindowsFiles files;
                           const auto file = files.createBeside(world.folder + "\\target");
                           file->write("new ");
                           file->write("content");
                           file->publish();
                           done();
                         }};

const Story kMakeFolders{"make folders", [](const World& world, const std::function<void()>& done) {
                           for (const std::string name : {"a", "b", "c"}) {
                             CreateDirectoryW(
                                 platform::wideText(world.folder + "\\" + name).c_str(), nullptr);
                             done();
                           }
                         }};

const Story kFail{"fail", [](const World&, const std::function<void()>&) {
                    throw std::runtime_error("expected here");
                  }};

std::vector<Story> allStories() {
  return {kUse, kStart, kErase, kReplaceFile, kMakeFolders, kFail};
}

}  // namespace zelvane::test
