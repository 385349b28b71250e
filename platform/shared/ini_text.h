// The text of an initialisation file: sections of "key=text" lines between lines of any kind.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

//     ; a comment, kept
//     [Extensions]          names are told apart without regard to ASCII case
//     DVK = "C:\app ^.DVK"  blanks around name and text do not count, nor one pair of quotes
//
// Changes one line and keeps every other byte: comments, order, unknown lines, blank lines, line
// ends of either kind, a byte order mark.
class IniText {
 public:
  explicit IniText(std::string_view text);

  // The text of the first such key in the first such section that has it, whole.
  std::optional<std::string> find(std::string_view section, std::string_view key) const;

  // Replaces that text, or adds the key at the end of the first such section, or the section at the
  // end. False, and nothing changed, where the entry could not be read again: a line break in one
  // of the three, an empty key, "]" in the section, "=" in the key, or a key that looks like a
  // comment or a section.
  bool set(std::string_view section, std::string_view key, std::string_view text);

  std::string text() const;

 private:
  // Index of the key's line, and of the line before which a new key goes.
  struct Place {
    std::optional<std::size_t> line;
    std::optional<std::size_t> end;
  };
  Place place(std::string_view section, std::string_view key) const;

  std::vector<std::string> lines_;  // each with its line end, but perhaps the last
  std::string_view lineEnd_ = "\r\n";
};

// At most `limit` bytes from the start of `text`, without a part of a UTF-8 character at the end.
std::string cutText(std::string_view text, std::size_t limit);

}  // namespace zelvane::platform
