#include "platform/windows/open_within.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <vector>

#include <winternl.h>

#include "platform/error.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kLongestPath = 65536;  // bytes
// In letters. The system counts the bytes in 16 bits, so a longer one would become another name.
constexpr std::size_t kLongestName = 32767;

// The second is newer than the compiler's headers, whose type ends before it.
constexpr auto kRename = FileRenameInformation;
constexpr auto kRenameAtOnce = std::bit_cast<FILE_INFORMATION_CLASS>(65);
constexpr DWORD kReplace = 0x01;
constexpr DWORD kAlsoInUse = 0x02;
constexpr DWORD kAlsoReadOnly = 0x40;

bool succeeded(NTSTATUS status) {
  if (status >= 0) return true;
  SetLastError(RtlNtStatusToDosError(status));
  return false;
}

Handle callNative(HANDLE folder, const std::wstring& name, const OpenHow& how, DWORD disposition,
                  SECURITY_DESCRIPTOR* security) {
  // The structure is one for reading and writing, so it has no const; nothing is written here.
  auto* letters = const_cast<wchar_t*>(name.data());
  const auto bytes = static_cast<USHORT>(name.size() * sizeof(wchar_t));
  UNICODE_STRING text{bytes, bytes, letters};
  OBJECT_ATTRIBUTES object{};
  object.Length = sizeof object;
  object.RootDirectory = folder;
  object.ObjectName = &text;
  object.SecurityDescriptor = security;
  IO_STATUS_BLOCK result{};
  HANDLE handle = nullptr;
  const NTSTATUS status = NtCreateFile(
      &handle, how.access | SYNCHRONIZE, &object, &result, nullptr, FILE_ATTRIBUTE_NORMAL,
      how.share, disposition, how.options | FILE_OPEN_REPARSE_POINT | FILE_SYNCHRONOUS_IO_NONALERT,
      nullptr, 0);
  return succeeded(status) ? Handle(handle) : Handle();
}

// Both forms of the request:
//
//     0  ReplaceIfExists (a byte), or Flags (4 bytes)
//     8  RootDirectory
//    16  FileNameLength in bytes
//    20  FileName, without a zero behind it
//
// Shorter than with a name of two letters it is refused.
std::vector<std::byte> renameRequest(HANDLE folder, const std::wstring& name, DWORD flags) {
  const auto bytes = static_cast<DWORD>(name.size() * sizeof(wchar_t));
  std::vector<std::byte> request(20 + std::max<DWORD>(bytes, 2 * sizeof(wchar_t)));
  const auto put = [&](std::size_t at, const auto& value) {
    std::copy_n(reinterpret_cast<const std::byte*>(&value), sizeof value, request.data() + at);
  };
  put(0, flags);
  put(8, folder);
  put(16, bytes);
  std::copy_n(reinterpret_cast<const std::byte*>(name.data()), bytes, request.data() + 20);
  return request;
}

}  // namespace

std::wstring singleName(std::string_view name) {
  if (name.empty() || name == "." || name == ".." ||
      name.find_first_of("/\\:") != std::string_view::npos) {
    throw Error(ErrorNumber::accessError);
  }
  std::wstring wide = wideName(name);
  if (wide.size() > kLongestName) throw Error(ErrorNumber::pathNotFound);
  return wide;
}

Handle openWithin(HANDLE folder, const std::wstring& name, const OpenHow& how) {
  return callNative(folder, name, how, FILE_OPEN, nullptr);
}

Handle createWithin(HANDLE folder, const std::wstring& name, const OpenHow& how,
                    SECURITY_DESCRIPTOR* security) {
  return callNative(folder, name, how, FILE_CREATE, security);
}

bool renameWithin(HANDLE folder, const std::wstring& name, HANDLE file) {
  const auto ask = [&](FILE_INFORMATION_CLASS how, DWORD flags) {
    std::vector<std::byte> request = renameRequest(folder, name, flags);
    IO_STATUS_BLOCK result{};
    return succeeded(NtSetInformationFile(file, &result, request.data(),
                                          static_cast<ULONG>(request.size()), how));
  };
  // The first way also replaces a file that somebody reads, but not every file system has it.
  return ask(kRenameAtOnce, kReplace | kAlsoInUse | kAlsoReadOnly) || ask(kRename, kReplace);
}

std::uint64_t numberOf(HANDLE entry) {
  IO_STATUS_BLOCK result{};
  FILE_INTERNAL_INFORMATION facts{};
  if (!succeeded(
          NtQueryInformationFile(entry, &result, &facts, sizeof facts, FileInternalInformation))) {
    throwSystemError();
  }
  return static_cast<std::uint64_t>(facts.IndexNumber.QuadPart);
}

std::optional<std::wstring> pathOnVolume(HANDLE entry) {
  std::vector<std::byte> buffer(kLongestPath);
  if (GetFileInformationByHandleEx(entry, FileNameInfo, buffer.data(),
                                   static_cast<DWORD>(buffer.size())) == 0) {
    return std::nullopt;
  }
  const auto* name = reinterpret_cast<const FILE_NAME_INFO*>(buffer.data());
  return std::wstring(name->FileName, name->FileNameLength / sizeof(wchar_t));
}

bool followsUnixLinks() {
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  return system != nullptr && GetProcAddress(system, "wine_get_version") != nullptr;
}

namespace {

// When Wine tells a path it leaves out some of the dots and blanks with which names may end, and
// not always the same ones.
std::wstring withoutEndings(std::wstring_view path) {
  std::wstring result;
  while (!path.empty()) {
    const std::wstring_view name = path.substr(0, path.find(L'\\'));
    path.remove_prefix(std::min(name.size() + 1, path.size()));
    if (!name.empty())
      result.append(L"\\").append(name.substr(0, name.find_last_not_of(L". ") + 1));
  }
  return result;
}

}  // namespace

bool isEntryOf(HANDLE folder, const std::wstring& name, HANDLE entry) {
  const std::optional<std::wstring> above = pathOnVolume(folder);
  const std::optional<std::wstring> path = pathOnVolume(entry);
  return above && path && withoutEndings(*path) == withoutEndings(*above + L"\\" + name);
}

}  // namespace zelvane::platform
