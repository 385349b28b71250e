#include "platform/linux/private_folder.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/system_error.h"

namespace zelvane::platform {
void makeMissingFolders(const std::string& path) {
  for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
    const std::string folder = path.substr(0, slash);
    // One that is there already, in whatever form, is judged when it is opened.
    if (mkdir(kernelPath(folder), S_IRWXU) != 0 && errno != EEXIST) {
      throw Error(errorFor(errno).number(), "The folder \"" + folder + "\" cannot be made.");
    }
    if (slash == std::string::npos) return;
  }
}

Descriptor openPrivateFolder(const std::string& path) {
  Descriptor folder(open(kernelPath(path), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder.isOpen()) {
    // A link gives ENOTDIR here and not ELOOP, because a folder was asked for.
    if (errno == ENOENT) throw Error(ErrorNumber::pathNotFound);
    if (errno == ENOTDIR || errno == ELOOP) {
      throw Error(ErrorNumber::accessError, "\"" + path + "\" is not a folder, or it is a link.");
    }
    throw Error(errorFor(errno).number(), "The folder \"" + path + "\" cannot be opened.");
  }
  struct stat status {};
  if (fstat(folder.get(), &status) != 0) throwSystemError();
  if (status.st_uid != geteuid()) {
    throw Error(ErrorNumber::permissionDenied,
                "The folder \"" + path + "\" belongs to another user.");
  }
  constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
  if ((status.st_mode & kOthers) != 0 && fchmod(folder.get(), status.st_mode & S_IRWXU) != 0) {
    throw Error(ErrorNumber::permissionDenied,
                "The folder \"" + path + "\" is open to other users.");
  }
  return folder;
}

Descriptor makePrivateFolder(const std::string& path) {
  try {
    return openPrivateFolder(path);
  } catch (const Error& error) {
    if (error.number() != ErrorNumber::pathNotFound) throw;
  }
  makeMissingFolders(path);
  return openPrivateFolder(path);
}

}  // namespace zelvane::platform
