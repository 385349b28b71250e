// The text of a file of preferences of Firefox: prefs.js, user.js.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

namespace zelvane::platform {

//     // a comment
//     user_pref("browser.startup.page", 1);
//     user_pref("browser.startup.homepage", "https://home.example/");
//
// A value is a text, a whole number, true or false. Whatever is not changed stays byte for byte.
class PreferenceText {
 public:
  explicit PreferenceText(std::string text);

  const std::string& text() const { return text_; }

  // Whether something in it is no preference. Firefox passes over that up to the next ";", and so
  // does this.
  bool isDamaged() const { return isDamaged_; }

  // The last one of that name counts.
  std::optional<nlohmann::json> find(std::string_view name) const;

  // Gives every preference of that name the value; where there is none, a line at the end has it.
  // Throws typeMismatch where the value is a text that is no UTF-8.
  void set(std::string_view name, const nlohmann::json& value);

 private:
  struct Entry {
    std::string name;
    nlohmann::json value;
    std::size_t begin;  // of the value in the text
    std::size_t end;
  };

  void read();

  std::string text_;
  std::vector<Entry> entries_;
  bool isDamaged_ = false;
};

}  // namespace zelvane::platform
