// What a run does for each option, and the lines that it leaves in the log.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cleaner/options.h"
#include "core/controls/label.h"
#include "core/controls/rich_log.h"
#include "platform/desktop.h"
#include "platform/special_folders.h"

namespace zelvane::cleaner {

// A task that fails part-way leaves what it did and goes on; no message is shown. Those with a log
// caption write three lines, each beginning with a line break and none ending with one:
//
//   Path: /home/ada/Documents            blue
//   Erasing My Documents Files ...       blue
//   Finished Erasing My Documents Files  green
class CleaningTasks {
 public:
  CleaningTasks(controls::RichLog& log, controls::Label& lblStatus,
                const platform::Desktop& desktop)
      : log_(log), lblStatus_(lblStatus), desktop_(desktop) {}

  // Does nothing for an option without a task.
  void perform(const Option& option);

 private:
  void eraseSpecialFolder(std::string_view caption, platform::SpecialFolder folder);
  void eraseTemporaryFolder(std::string_view caption);
  void emptyRecycleBin(std::string_view caption);
  void deleteUserKey(std::string_view caption, const std::string& path);
  void eraseFolder(const std::string& path);

  // The three lines around the work.
  void logged(std::string_view caption, const std::string& path, const std::function<void()>& work);
  void showStatus(std::string_view caption);

  std::string specialFolderPath(platform::SpecialFolder folder) const;

  controls::RichLog& log_;
  controls::Label& lblStatus_;
  platform::Desktop desktop_;
};

}  // namespace zelvane::cleaner
