#include "popupkiller/alert_sound.h"

#include <cstddef>
#include <optional>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/identity.h"

namespace zelvane::popupkiller {

namespace {

constexpr auto kFile = "wavpath.txt";
constexpr std::size_t kLongestLine = 65'536;  // bytes; more than any path has

}  // namespace

AlertSound::AlertSound(PopupPage& page, platform::Files& files, platform::Dialogs& dialogs,
                       const platform::Identity& identity, const core::Handler& handler)
    : page_(page), files_(files), dialogs_(dialogs), identity_(identity), handler_(handler) {
  page_.Command1.clicked.connect([this] { Command1_Click(); });
}

void AlertSound::readPath() {
  const std::string text = files_.open(pathOf(kFile))->read(kLongestLine);
  page_.CommonDialog1.fileName = text.substr(0, text.find_first_of("\r\n"));
}

void AlertSound::showPath() { page_.Label14.setCaption(page_.CommonDialog1.fileName); }

void AlertSound::Command1_Click() {
  handler_([this] {
    ask();
    writePath();
    showPath();
  });
}

void AlertSound::ask() {
  controls::FileDialog& dialog = page_.CommonDialog1;
  dialog.initialFolder = identity_.dataFolder();
  dialog.filter = "Wav files |*.wav";
  dialog.title = "Choose a Wav file to open";
  const std::optional<std::string> chosen = dialogs_.chooseFile(
      {.title = dialog.title, .initialFolder = dialog.initialFolder, .filter = dialog.filter});
  dialog.fileName = chosen.value_or(dialog.fileName);
}

void AlertSound::writePath() {
  const auto file = files_.createBeside(pathOf(kFile));
  file->write(page_.CommonDialog1.fileName + "\r\n");
  file->publish();
}

std::string AlertSound::pathOf(const std::string& name) const {
  return identity_.dataFolder() + identity_.separator() + name;
}

}  // namespace zelvane::popupkiller
