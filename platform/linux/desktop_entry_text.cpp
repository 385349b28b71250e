#include "platform/linux/desktop_entry_text.h"

#include <QString>
#include <algorithm>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

bool isUtf8(std::string_view text) {
  const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
  return QString::fromUtf8(bytes).toUtf8() == bytes;
}

std::string quoted(std::string_view argument) {
  constexpr std::string_view kProtected = "\"`$\\";
  std::string text = "\"";
  for (const char letter : argument) {
    if (kProtected.find(letter) != std::string_view::npos) text += '\\';
    text += letter;
    if (letter == '%') text += '%';
  }
  return text + '"';
}

}  // namespace

std::string entryValue(std::string_view text) {
  if (!isUtf8(text)) {
    throw Error(ErrorNumber::accessError, "A desktop entry cannot hold a name that is not UTF-8.");
  }
  const std::size_t blanks = std::min(text.find_first_not_of(' '), text.size());
  std::string value;
  for (std::size_t i = 0; i < blanks; ++i) value += R"(\s)";
  for (const char letter : text.substr(blanks)) {
    switch (letter) {
      case '\\':
        value += R"(\\)";
        break;
      case '\n':
        value += R"(\n)";
        break;
      case '\r':
        value += R"(\r)";
        break;
      case '\t':
        value += R"(\t)";
        break;
      default:
        if (static_cast<unsigned char>(letter) < ' ' || letter == 0x7F) {
          throw Error(ErrorNumber::accessError,
                      "A desktop entry cannot hold a name with a control character.");
        }
        value += letter;
    }
  }
  return value;
}

std::string execValue(std::string_view path) {
  const std::string program = quoted(path);
  if (path.find_first_of("=%") == std::string_view::npos) return entryValue(program);
  return entryValue(quoted("/bin/sh") + " -c " + quoted("exec \"$0\"") + " " + program);
}

}  // namespace zelvane::platform
