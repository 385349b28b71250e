// The list of what Zelvane has put outside its own folders, so that a machine can be left clean.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelvane::platform {

//     Zelvane ledger 1
//     file /home/ada/.config/autostart/zelvane.desktop
//     value HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Run\Zelvane
//
// Each line says what kind of thing it is, and where. Of a place, control characters and "%" are
// written as "%" and two hexadecimal digits. Lines of other kinds are a later version's and stay.
//
// A thing is noted before it is made and struck out after it is gone: however the program ends,
// what is there is in the list. What is in the list need not be there any more.
class Ledger {
 public:
  enum class Kind { file, registryValue };

  struct Entry {
    Kind kind;
    std::string place;  // an absolute path; root, key and name of a value

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  // Replaces the ledger's text by what `change` makes of the present one (nothing: there is none
  // yet), durably and in one step. Where it makes nothing, the text stays as it is. Throws where
  // that fails.
  using Change = std::function<std::optional<std::string>(const std::optional<std::string>& text)>;
  using Update = std::function<void(const Change& change)>;

  // Touches nothing yet.
  explicit Ledger(Update update);

  // Once this returns the entry is in the list, once. Where it throws, nobody may make the thing:
  // the ledger cannot be written, or it is none that this version understands (accessError).
  void note(const Entry& entry);

  // The same for taking it out; without a ledger none is made.
  void strike(const Entry& entry);

  // In the order in which they were noted.
  std::vector<Entry> entries() const;

 private:
  Update update_;
};

}  // namespace zelvane::platform
