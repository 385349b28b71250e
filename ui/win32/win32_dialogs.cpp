#include "ui/win32/win32_dialogs.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include <commdlg.h>
#include <shlobj.h>

#include "platform/windows/wide_text.h"

namespace zelvane::win32 {

namespace {

constexpr DWORD kLongestPath = 32'768;  // letters, with the zero at the end

struct FreeIdList {
  void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};

UINT signOf(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::none:
      return 0;
    case platform::MessageIcon::information:
      return MB_ICONINFORMATION;
    case platform::MessageIcon::exclamation:
      return MB_ICONEXCLAMATION;
    case platform::MessageIcon::critical:
      return MB_ICONERROR;
  }
  return 0;
}

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// "All Files (*.*) | *.*" becomes two texts that end with a zero each, and a zero at the end.
std::wstring systemFilter(std::string_view filter) {
  std::wstring parts;
  while (!filter.empty()) {
    const std::size_t bar = std::min(filter.find('|'), filter.size());
    parts += platform::wideText(trimmed(filter.substr(0, bar))) + L'\0';
    filter.remove_prefix(std::min(bar + 1, filter.size()));
  }
  return parts + L'\0';
}

const wchar_t* orSystems(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

}  // namespace

void Win32Dialogs::show(const platform::MessageBox& box) {
  const controls::OpenBoxes::Opening opening(boxes_);
  MessageBoxW(window_, platform::wideText(box.text).c_str(), platform::wideText(box.title).c_str(),
              MB_OK | signOf(box.icon));
}

// Without the flags that insist on a file that exists. What is chosen is not entered into the list
// of recent documents, which is one of the traces that this program erases; and the process stays
// in its folder.
std::optional<std::string> Win32Dialogs::chooseFile(const platform::FileQuestion& question) {
  const controls::OpenBoxes::Opening opening(boxes_);
  const std::wstring title = platform::wideText(question.title);
  const std::wstring folder = platform::wideText(question.initialFolder);
  const std::wstring filter = systemFilter(question.filter);
  std::wstring path(kLongestPath, L'\0');
  OPENFILENAMEW asked{};
  asked.lStructSize = sizeof asked;
  asked.hwndOwner = window_;
  asked.lpstrFilter = filter.c_str();
  asked.nFilterIndex = 1;
  asked.lpstrFile = path.data();
  asked.nMaxFile = kLongestPath;
  asked.lpstrInitialDir = orSystems(folder);
  asked.lpstrTitle = orSystems(title);
  asked.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_DONTADDTORECENT;
  if (GetOpenFileNameW(&asked) == FALSE) {
    return std::nullopt;
  }
  return platform::plainText(path.c_str());
}

std::optional<std::string> Win32Dialogs::chooseFolder(const std::string& prompt) {
  const controls::OpenBoxes::Opening opening(boxes_);
  const std::wstring title = platform::wideText(prompt);
  BROWSEINFOW asked{};
  asked.hwndOwner = window_;
  asked.lpszTitle = title.c_str();
  asked.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_EDITBOX;
  const std::unique_ptr<ITEMIDLIST, FreeIdList> chosen(SHBrowseForFolderW(&asked));
  std::wstring path(kLongestPath, L'\0');
  if (!chosen ||
      SHGetPathFromIDListEx(chosen.get(), path.data(), kLongestPath, GPFIDL_DEFAULT) == FALSE) {
    return std::nullopt;
  }
  return platform::plainText(path.c_str());
}

}  // namespace zelvane::win32
