// Which sound tells of a stopped popup: chosen on the page, kept in a file of one line.
#pragma once

#include <string>

#include "core/handler.h"
#include "popupkiller/popup_page.h"

namespace zelvane::platform {
class Dialogs;
class Files;
class Identity;
}  // namespace zelvane::platform

namespace zelvane::popupkiller {

// The path is the file name of `CommonDialog1`; empty means that none was chosen yet. Nobody asks
// whether the file exists or is a sound: the player has a sound of its own for what it cannot play.
class AlertSound {
 public:
  AlertSound(PopupPage& page, platform::Files& files, platform::Dialogs& dialogs,
             const platform::Identity& identity, const core::Handler& handler);

  // Takes the path from the first line of "wavpath.txt" in the data folder, to its line feed or
  // carriage return. An empty file holds an empty path. Throws where the file cannot be read.
  void readPath();

  // Shows the path on the page.
  void showPath();

  // Asks for a sound. The file is written whatever the answer is, so that a path which was set by
  // other means gets there, too. Where that fails the label stays as it was.
  void Command1_Click();

 private:
  std::string pathOf(const std::string& name) const;
  void ask();
  void writePath();

  PopupPage& page_;
  platform::Files& files_;
  platform::Dialogs& dialogs_;
  const platform::Identity& identity_;
  core::Handler handler_;
};

}  // namespace zelvane::popupkiller
