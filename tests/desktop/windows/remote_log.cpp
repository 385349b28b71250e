#include "tests/desktop/windows/remote_log.h"

#include <string_view>

#include <richedit.h>

#include "platform/windows/wide_text.h"
#include "tests/desktop/windows/remote_control.h"
#include "tests/desktop/windows/remote_memory.h"

namespace zelvane::test {
namespace {

constexpr std::wstring_view kLineBreak = L"\r\n";

std::string nameOf(COLORREF colour) {
  switch (colour) {
    case RGB(0, 0, 0):
      return "black";
    case RGB(0, 0, 255):
      return "blue";
    case RGB(0, 128, 0):
      return "green";
    default:
      return std::to_string(colour);
  }
}

// Of the letters from `first` up to `end`; of several colours it is that of the last letter.
std::string colourOf(HANDLE process, HWND log, std::size_t first, std::size_t end) {
  const RemoteMemory<CHARFORMAT2W> memory(process);
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  memory.write(format);
  askWindow(log, EM_SETSEL, first, static_cast<LPARAM>(end));
  askWindow(log, EM_GETCHARFORMAT, SCF_SELECTION, memory.place());
  format = memory.read();
  return (format.dwMask & CFM_COLOR) == 0 ? "several" : nameOf(format.crTextColor);
}

}  // namespace

void PrintTo(const LogLine& line, std::ostream* out) {
  *out << line.colour << " \"" << line.text << "\"";
}

// The text has two characters for each line break, and the log counts one.
std::vector<LogLine> readLog(HANDLE process, HWND log) {
  const std::wstring text = platform::wideText(textOfWindow(log));
  std::vector<LogLine> lines;
  std::size_t first = 0;
  for (std::wstring_view rest = text;;) {
    const std::size_t length = std::min(rest.find(kLineBreak), rest.size());
    if (length > 0) {
      lines.push_back({platform::plainText(rest.substr(0, length)),
                       colourOf(process, log, first, first + length)});
    }
    if (length == rest.size()) return lines;
    first += length + 1;
    rest.remove_prefix(length + kLineBreak.size());
  }
}

bool logShowsItsEnd(HWND log) {
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_ALL;
  return GetScrollInfo(log, SB_VERT, &bar) == FALSE ||
         bar.nPos + static_cast<int>(bar.nPage) >= bar.nMax;
}

}  // namespace zelvane::test
