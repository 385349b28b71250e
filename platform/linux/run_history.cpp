#include "platform/linux/run_history.h"

#include <QProcess>
#include <algorithm>
#include <functional>
#include <string_view>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestFile = std::uint64_t{4} << 20U;

void resetSetting(const char* schema, const char* key) {
  constexpr int kPatience = 2000;  // milliseconds
  QProcess gsettings;
  gsettings.start("gsettings", {"reset", schema, key});
  gsettings.waitForFinished(kPatience);
}

// The text without the lines of which `goes`, told the line and the group that it is in, says so.
std::string withoutLines(
    std::string_view text,
    const std::function<bool(std::string_view group, std::string_view line)>& goes) {
  std::string kept;
  std::string_view group;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    if (line.starts_with('[')) group = line.substr(0, line.find_last_of(']') + 1);
    if (!goes(group, line)) kept += line;
  }
  return kept;
}

bool isOfRunnersHistory(std::string_view group, std::string_view line) {
  return group.starts_with("[PlasmaRunnerManager][History]") ||
         (group == "[General]" && line.starts_with("history"));
}

}  // namespace

RunHistory::RunHistory(const Environment& environment, Files& files)
    : environment_(environment), files_(files) {}

void RunHistory::erase() const {
  // Starting a program for nothing would take longer than all the rest.
  if (files_.exists(environment_.configHome + "/dconf/user")) {
    resetSetting("org.gnome.shell", "command-history");
    resetSetting("org.gnome.shell", "looking-glass-history");
    resetSetting("org.cinnamon", "command-history");
    resetSetting("org.mate.panel", "history-mate-run");
  }
  const auto ifThere = [&](const std::string& path, const std::function<void()>& act) {
    try {
      if (files_.exists(path)) act();
    } catch (const Error&) {
      // It stays.
    }
  };
  const std::string ofXfce = environment_.cacheHome + "/xfce4/xfce4-appfinder/history";
  ifThere(ofXfce, [&] { files_.remove(ofXfce); });
  for (const std::string& path :
       {environment_.dataHome + "/krunnerstaterc", environment_.configHome + "/krunnerrc"}) {
    ifThere(path, [&] {
      const std::string before = files_.readWhole(path, kLongestFile);
      const std::string after = withoutLines(before, isOfRunnersHistory);
      if (after == before) return;
      const auto file = files_.createBeside(path);
      file->write(after);
      file->publish();
    });
  }
}

}  // namespace zelvane::platform
