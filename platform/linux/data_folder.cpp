#include "platform/linux/data_folder.h"

#include <QFile>
#include <functional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/error.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/private_folder.h"

namespace zelvane::platform {
namespace {

std::string ding() {
  QFile packed(QStringLiteral(":/zelvane/ding.wav"));
  if (!packed.open(QIODevice::ReadOnly)) throw Error(ErrorNumber::fileNotFound);
  return packed.readAll().toStdString();
}

// A link that leads nowhere is something, too.
bool isAnything(const Descriptor& folder, const std::string& name) {
  struct stat status {};
  return fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

void refill(const std::string& path, const std::string& name,
            const std::function<std::string()>& content) {
  Descriptor folder = makePrivateFolder(path);
  if (isAnything(folder, name)) return;
  LinuxPendingFile file(std::move(folder), name);
  file.write(content());
  file.publish();
}

}  // namespace

void refillDataFolder(const std::string& folder) {
  try {
    refill(folder, "wavpath.txt", [] { return std::string("\r\n"); });
    refill(folder, "ding.wav", ding);
  } catch (const Error&) {
    // A full disk, or somebody else's folder: whoever needs the files will say so.
  }
}

}  // namespace zelvane::platform
