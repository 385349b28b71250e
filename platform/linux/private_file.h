// One small file of Zelvane's own: private, replaced whole, never written by two at once.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/linux/descriptor.h"

namespace zelvane::platform {

// The file lies in a private folder (see private_folder.h) and is readable by its user alone. It is
// never read or written through a link. What is refused is refused with a text that names the file.
class PrivateFile {
 public:
  // In bytes; a file that is larger is refused.
  static constexpr std::uint64_t kLimit = std::uint64_t{16} * 1024 * 1024;

  // Touches nothing yet. Neither folder nor file needs to exist.
  PrivateFile(std::string folder, std::string name);

  std::string path() const { return folder_ + "/" + name_; }

  // The whole content, or nothing where there is no such file.
  std::optional<std::string> read() const;

  // Replaces the content by what `change` makes of the present one, durably and in one step; where
  // it makes nothing or throws, the file stays as it is. Whoever else changes a file of this folder
  // in this way waits meanwhile, so that nobody's change is lost.
  using Change =
      std::function<std::optional<std::string>(const std::optional<std::string>& content)>;
  void update(const Change& change);

  // Where the content is too big, or `isUnderstood` says no to it, gives the file another name that
  // no file has yet and returns its new path; otherwise nothing.
  std::optional<std::string> setAsideUnless(
      const std::function<bool(const std::string& content)>& isUnderstood);

 private:
  struct Content {
    std::string text;
    bool tooBig = false;
  };
  std::optional<Content> contentIn(const Descriptor& folder) const;
  std::optional<Content> content() const;
  std::optional<std::string> whole(std::optional<Content> content) const;
  std::string renameToFreeName(const Descriptor& folder) const;

  std::string folder_;
  std::string name_;
};

}  // namespace zelvane::platform
