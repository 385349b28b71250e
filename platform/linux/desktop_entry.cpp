#include "platform/linux/desktop_entry.h"

#include <cstddef>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/key_file.h"

namespace zelvane::platform {
namespace {

constexpr auto kGroup = "Desktop Entry";

bool isExecutable(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         access(path.c_str(), X_OK) == 0;
}

// The executable's path; empty where there is none.
std::string found(const std::string& program, const Environment& environment) {
  if (program.starts_with('/')) return isExecutable(program) ? program : "";
  if (program.empty() || program.find('/') != std::string::npos) return "";
  for (const std::string& folder : environment.programDirs) {
    std::string path = folder;
    path.append("/").append(program);
    if (isExecutable(path)) return path;
  }
  return "";
}

// A word of a command as it is written: blanks part words, but not within quotes, where a backslash
// protects the letter behind it.
std::vector<std::string> wordsOf(const std::string& command) {
  std::vector<std::string> words;
  bool inWord = false;
  bool inQuotes = false;
  for (std::size_t at = 0; at < command.size(); ++at) {
    if (!inQuotes && command[at] == ' ') {
      inWord = false;
      continue;
    }
    if (!inWord) words.emplace_back();
    inWord = true;
    if (command[at] == '"') {
      inQuotes = !inQuotes;
    } else {
      if (inQuotes && command[at] == '\\' && at + 1 < command.size()) ++at;
      words.back() += command[at];
    }
  }
  return words;
}

// Replaces the field codes of single words by what they stand for.
class Fields {
 public:
  Fields(const DesktopEntry& entry, const std::string& argument)
      : entry_(entry), argument_(argument) {}

  // Adds what the word becomes; a word of nothing but a field without a value is none.
  void expand(const std::string& word, std::vector<std::string>& words) {
    if (word == "%i") {
      if (!entry_.icon.empty()) words.insert(words.end(), {"--icon", entry_.icon});
      return;
    }
    std::string expanded;
    bool hasCode = false;
    for (std::size_t at = 0; at < word.size(); ++at) {
      const bool isCode = word[at] == '%' && at + 1 < word.size();
      expanded += isCode ? value(word[++at]) : std::string(1, word[at]);
      hasCode = hasCode || isCode;
    }
    if (!hasCode || !expanded.empty() || takesArgument(word)) words.push_back(expanded);
  }

  bool tookArgument() const { return tookArgument_; }

 private:
  static bool isArgument(char code) {
    return code == 'u' || code == 'U' || code == 'f' || code == 'F';
  }
  static bool takesArgument(const std::string& word) {
    return word.size() == 2 && isArgument(word[1]);
  }

  std::string value(char code) {
    if (isArgument(code)) {
      tookArgument_ = true;
      return argument_;
    }
    switch (code) {
      case 'c':
        return entry_.name;
      case 'k':
        return entry_.path;
      case '%':
        return "%";
      default:
        return "";
    }
  }

  const DesktopEntry& entry_;
  const std::string& argument_;
  bool tookArgument_ = false;
};

}  // namespace

std::optional<DesktopEntry> readDesktopEntry(const std::string& path,
                                             const Environment& environment) {
  const KeyFile file = readKeyFile(path);
  const auto text = [&](const char* key) { return file.text(kGroup, key).value_or(""); };
  if (text("Type") != "Application" || file.isTrue(kGroup, "Hidden") ||
      file.isTrue(kGroup, "Terminal")) {
    return std::nullopt;
  }
  const std::optional<std::string> tried = file.text(kGroup, "TryExec");
  const std::vector<std::string> words = wordsOf(text("Exec"));
  if (words.empty() || found(words.front(), environment).empty() ||
      (tried && found(*tried, environment).empty())) {
    return std::nullopt;
  }
  return DesktopEntry{.path = path,
                      .name = text("Name"),
                      .icon = text("Icon"),
                      .command = text("Exec"),
                      .types = file.list(kGroup, "MimeType")};
}

std::vector<std::string> commandWords(const DesktopEntry& entry, const std::string& argument,
                                      const Environment& environment) {
  const std::vector<std::string> written = wordsOf(entry.command);
  const std::string executable = written.empty() ? "" : found(written.front(), environment);
  if (executable.empty()) return {};
  std::vector<std::string> words{executable};
  Fields fields(entry, argument);
  for (std::size_t index = 1; index < written.size(); ++index) {
    fields.expand(written[index], words);
  }
  if (!fields.tookArgument()) words.push_back(argument);
  return words;
}

}  // namespace zelvane::platform
