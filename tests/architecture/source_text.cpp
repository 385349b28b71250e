#include "tests/architecture/source_text.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zelvane::architecture {

namespace {

bool isWordLetter(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

void blank(std::string& text, std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < std::min(to, text.size()); ++at) {
    if (text[at] != '\n') {
      text[at] = ' ';
    }
  }
}

std::size_t endOf(std::string_view text, std::string_view closing, std::size_t from) {
  const std::size_t at = text.find(closing, from);
  return at == std::string_view::npos ? text.size() : at + closing.size();
}

std::size_t endOfLine(std::string_view text, std::size_t from) {
  return std::min(text.find('\n', from), text.size());
}

// The place behind the literal whose opening quote is at `at`.
std::size_t endOfLiteral(std::string_view text, std::size_t at) {
  if (text[at] == '"' && at > 0 && text[at - 1] == 'R') {
    const std::size_t open = std::min(text.find('(', at), text.size());
    const std::string closing = ")" + std::string(text.substr(at + 1, open - at - 1)) + "\"";
    return endOf(text, closing, open);
  }
  for (std::size_t end = at + 1; end < text.size(); ++end) {
    if (text[end] == '\\') {
      ++end;
    } else if (text[end] == text[at] || text[end] == '\n') {
      return end + 1;
    }
  }
  return text.size();
}

// A quote within a word parts the digits of a number.
bool opensLiteral(std::string_view text, std::size_t at) {
  return text[at] == '"' || (text[at] == '\'' && (at == 0 || !isWordLetter(text[at - 1])));
}

std::string strip(std::string_view text, bool literalsToo) {
  std::string stripped(text);
  for (std::size_t at = 0; at < text.size();) {
    if (text.substr(at, 2) == "//" || text.substr(at, 2) == "/*") {
      const std::size_t end = text[at + 1] == '/' ? endOfLine(text, at) : endOf(text, "*/", at + 2);
      blank(stripped, at, end);
      at = end;
    } else if (opensLiteral(text, at)) {
      const std::size_t end = endOfLiteral(text, at);
      if (literalsToo) {
        blank(stripped, at + 1, end - 1);
      }
      at = end;
    } else {
      ++at;
    }
  }
  return stripped;
}

std::string_view withoutLeading(std::string_view text, std::string_view letters) {
  return text.substr(std::min(text.find_first_not_of(letters), text.size()));
}

}  // namespace

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = endOfLine(text, at);
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

std::string withoutComments(std::string_view text) { return strip(text, false); }

std::string codeOnly(std::string_view text) { return strip(text, true); }

std::vector<Include> includesOf(std::string_view text) {
  const std::string code = withoutComments(text);
  std::vector<Include> includes;
  int number = 0;
  for (std::string_view line : linesOf(code)) {
    ++number;
    line = withoutLeading(line, " \t");
    if (!line.starts_with('#')) {
      continue;
    }
    line = withoutLeading(line.substr(1), " \t");
    if (!line.starts_with("include")) {
      continue;
    }
    line = withoutLeading(line.substr(std::string_view("include").size()), " \t");
    const bool quoted = line.starts_with('"');
    const std::size_t end = line.find(quoted ? '"' : '>', 1);
    if (end != std::string_view::npos) {
      includes.push_back({number, std::string(line.substr(1, end - 1)), quoted});
    }
  }
  return includes;
}

std::size_t findWord(std::string_view text, std::string_view word, std::size_t start) {
  for (std::size_t at = text.find(word, start); at != std::string_view::npos;
       at = text.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    const bool begins = at == 0 || !isWordLetter(text[at - 1]);
    const bool ends = end == text.size() || !isWordLetter(text[end]);
    if (begins && ends) {
      return at;
    }
  }
  return std::string_view::npos;
}

bool isBelow(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && path.size() > folder.size() && path[folder.size()] == '/';
}

std::string_view folderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

bool isHeader(std::string_view path) { return path.ends_with(".h"); }

bool isCpp(std::string_view path) { return isHeader(path) || path.ends_with(".cpp"); }

bool isProduct(std::string_view path) {
  static constexpr auto kFolders =
      std::to_array<std::string_view>({"about", "browser", "cleaner", "core", "filesecurity",
                                       "platform", "popupkiller", "scheduler", "ui"});
  return isCpp(path) && std::ranges::any_of(kFolders, [&](std::string_view folder) {
           return isBelow(path, folder);
         });
}

}  // namespace zelvane::architecture
