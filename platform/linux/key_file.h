// Desktop entries, and lists of which program opens what: groups of "key=value" lines.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

//     # a comment
//     [Desktop Entry]
//     Name = a value        blanks around key and value do not count
//
// Case counts everywhere. Of two keys of one name in one group the first one counts, and lines of
// any other form do not.
class KeyFile {
 public:
  explicit KeyFile(std::string_view text);

  // The value with its escapes (\s, \n, \t, \r, \\) replaced; nothing where there is none.
  std::optional<std::string> text(const std::string& group, const std::string& key) const;

  // The parts between semicolons that are not empty.
  std::vector<std::string> list(const std::string& group, const std::string& key) const;

  // Whether the value is "true".
  bool isTrue(const std::string& group, const std::string& key) const;

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

// Of the file at that path; without any group where it cannot be read.
KeyFile readKeyFile(const std::string& path);

}  // namespace zelvane::platform
