#include "tests/attack/windows/changing_calls.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <stdexcept>

#include <windows.h>
#include <shellapi.h>
#include <winternl.h>

namespace zelvane::test {
namespace {

// Whoever hears, there is one at most: a program has one table of imports.
Listener* listening = nullptr;

// A text that a template can be made for.
template <std::size_t kSize>
struct Name {
  consteval Name(const char (&given)[kSize]) { std::copy_n(given, kSize, text); }

  char text[kSize];
};

struct HeardCall {
  const char* function;
  void* heard;      // what is called instead
  void** original;  // where that finds the system's function
};

constexpr auto kAlways = [](auto...) { return true; };

template <Name kName, auto kChanges, typename Function>
struct Heard;

// The function of that name, which changes something whenever `kChanges` says so of its arguments.
template <Name kName, auto kChanges, typename Result, typename... Arguments>
struct Heard<kName, kChanges, Result(Arguments...)> {
  static Result call(Arguments... arguments) {
    if (listening == nullptr || !kChanges(arguments...)) return original(arguments...);
    listening->beforeCall(kName.text);
    const Result result = original(arguments...);
    listening->afterCall();
    return result;
  }

  static inline Result (*original)(Arguments...) = nullptr;
};

template <Name kName, typename Function, auto kChanges = kAlways>
HeardCall heard() {
  using Call = Heard<kName, kChanges, Function>;
  return {kName.text, reinterpret_cast<void*>(&Call::call),
          reinterpret_cast<void**>(&Call::original)};
}

// Opening changes something where it may make a file, or cut one.
constexpr auto kOpensToChange = [](auto, auto, auto, auto, DWORD disposition, auto...) {
  return disposition != OPEN_EXISTING;
};
constexpr auto kOpensToChangeNatively = [](auto, auto, auto, auto, auto, auto, auto,
                                           ULONG disposition, auto...) {
  constexpr ULONG kOpen = 1;
  return disposition != kOpen;
};

// A view of a file changes it where it may be written to, and its making may make the file longer.
constexpr auto kMapsToChange = [](HANDLE, auto, DWORD protection, auto...) {
  return protection == PAGE_READWRITE;
};
constexpr auto kViewsToChange = [](HANDLE, DWORD access, auto...) {
  return (access & FILE_MAP_WRITE) != 0;
};

// Pipes are nobody's disk.
constexpr auto kWritesToDisk = [](HANDLE file, auto...) {
  return GetFileType(file) == FILE_TYPE_DISK;
};

const auto& heardCalls() {
  static const auto calls = std::to_array<HeardCall>({
      // The registry.
      heard<"RegCreateKeyExW", decltype(RegCreateKeyExW)>(),
      heard<"RegDeleteKeyExW", decltype(RegDeleteKeyExW)>(),
      heard<"RegDeleteKeyW", decltype(RegDeleteKeyW)>(),
      heard<"RegDeleteTreeW", decltype(RegDeleteTreeW)>(),
      heard<"RegDeleteValueW", decltype(RegDeleteValueW)>(),
      heard<"RegRenameKey", decltype(RegRenameKey)>(),
      heard<"RegSetKeySecurity", decltype(RegSetKeySecurity)>(),
      heard<"RegSetValueExW", decltype(RegSetValueExW)>(),
      heard<"WritePrivateProfileStringW", decltype(WritePrivateProfileStringW)>(),
      // Files and folders.
      heard<"CopyFileW", decltype(CopyFileW)>(),
      heard<"CreateDirectoryA", decltype(CreateDirectoryA)>(),
      heard<"CreateDirectoryW", decltype(CreateDirectoryW)>(),
      heard<"CreateFileA", decltype(CreateFileA), kOpensToChange>(),
      heard<"CreateFileMappingA", decltype(CreateFileMappingA), kMapsToChange>(),
      heard<"CreateFileMappingW", decltype(CreateFileMappingW), kMapsToChange>(),
      heard<"CreateFileW", decltype(CreateFileW), kOpensToChange>(),
      heard<"CreateHardLinkW", decltype(CreateHardLinkW)>(),
      heard<"CreateSymbolicLinkW", decltype(CreateSymbolicLinkW)>(),
      heard<"DeleteFileA", decltype(DeleteFileA)>(),
      heard<"DeleteFileW", decltype(DeleteFileW)>(),
      heard<"DeviceIoControl", decltype(DeviceIoControl)>(),
      heard<"GetTempFileNameA", decltype(GetTempFileNameA)>(),
      heard<"GetTempFileNameW", decltype(GetTempFileNameW)>(),
      heard<"MapViewOfFile", decltype(MapViewOfFile), kViewsToChange>(),
      heard<"MoveFileA", decltype(MoveFileA)>(),
      heard<"MoveFileExW", decltype(MoveFileExW)>(),
      heard<"MoveFileW", decltype(MoveFileW)>(),
      heard<"NtCreateFile", decltype(NtCreateFile), kOpensToChangeNatively>(),
      heard<"NtSetInformationFile", decltype(NtSetInformationFile)>(),
      heard<"RemoveDirectoryA", decltype(RemoveDirectoryA)>(),
      heard<"RemoveDirectoryW", decltype(RemoveDirectoryW)>(),
      heard<"ReplaceFileA", decltype(ReplaceFileA)>(),
      heard<"ReplaceFileW", decltype(ReplaceFileW)>(),
      heard<"SetEndOfFile", decltype(SetEndOfFile)>(),
      heard<"SetFileAttributesW", decltype(SetFileAttributesW)>(),
      heard<"SetFileInformationByHandle", decltype(SetFileInformationByHandle)>(),
      heard<"SetFileSecurityW", decltype(SetFileSecurityW)>(),
      heard<"SetFileTime", decltype(SetFileTime)>(),
      heard<"WriteFile", decltype(WriteFile), kWritesToDisk>(),
      // The shell, and whoever else is asked to do it.
      heard<"CreateProcessA", decltype(CreateProcessA)>(),
      heard<"CreateProcessW", decltype(CreateProcessW)>(),
      heard<"SHEmptyRecycleBinW", decltype(SHEmptyRecycleBinW)>(),
      heard<"SHFileOperationW", decltype(SHFileOperationW)>(),
      heard<"ShellExecuteW", decltype(ShellExecuteW)>(),
      // The C library, where it opens, makes and names: it writes to nothing else.
      heard<"_creat", int(const char*, int)>(),
      heard<"_mkdir", int(const char*)>(),
      heard<"_open", int(const char*, int, int)>(),
      heard<"_wchmod", int(const wchar_t*, int)>(),
      heard<"_wfopen", decltype(_wfopen)>(),
      heard<"_wmkdir", int(const wchar_t*)>(),
      heard<"_wopen", int(const wchar_t*, int, int)>(),
      heard<"_wremove", int(const wchar_t*)>(),
      heard<"_wrename", int(const wchar_t*, const wchar_t*)>(),
      heard<"_wunlink", int(const wchar_t*)>(),
      heard<"_wutime64", int(const wchar_t*, void*)>(),
      heard<"fopen", decltype(fopen)>(),
      heard<"remove", int(const char*)>(),
      heard<"rename", int(const char*, const char*)>(),
  });
  return calls;
}

const HeardCall* find(std::string_view function) {
  const auto found = std::ranges::find(heardCalls(), function, &HeardCall::function);
  return found == heardCalls().end() ? nullptr : &*found;
}

void replace(void** place, void* address) {
  DWORD before = 0;
  if (VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before) == 0) {
    throw std::runtime_error("the table of imports stays as it is");
  }
  *place = address;
  VirtualProtect(place, sizeof *place, before, &before);
}

}  // namespace

void hearChanges(Listener& listener) {
  for (const Import& import : importsOf(GetModuleHandleW(nullptr))) {
    const HeardCall* call = find(import.function);
    if (call == nullptr || *import.place == call->heard) continue;
    *call->original = *import.place;
    replace(import.place, call->heard);
  }
  listening = &listener;
}

void hearNoMore() { listening = nullptr; }

bool isHeard(std::string_view function) { return find(function) != nullptr; }

}  // namespace zelvane::test
