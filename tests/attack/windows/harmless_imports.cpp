#include "tests/attack/windows/changing_calls.h"

namespace zelvane::test {
namespace {

// Libraries for what is seen and heard: windows, drawing, controls, sounds. What their dialogs
// remember between two questions is the system's own affair.
constexpr std::string_view kLibraries = R"(
    COMCTL32.dll comdlg32.dll GDI32.dll IPHLPAPI.DLL ole32.dll USER32.dll VERSION.dll WINMM.dll
)";

// Reading, and syncs. The one that acquires keys is asked for random numbers alone.
constexpr std::string_view kOfRegistryAndRights = R"(
    ConvertSidToStringSidW ConvertStringSecurityDescriptorToSecurityDescriptorW
    CryptAcquireContextA CryptGenRandom CryptReleaseContext GetSecurityInfo GetSidSubAuthority
    GetSidSubAuthorityCount GetTokenInformation InitializeSecurityDescriptor OpenProcessToken
    RegCloseKey RegEnumKeyExW RegEnumValueW RegFlushKey RegOpenKeyExW RegQueryInfoKeyW
    RegQueryValueExW SetSecurityDescriptorDacl
)";

// Asking for folders without making them, asking for programs, and showing a notice.
constexpr std::string_view kOfShell = R"(
    CommandLineToArgvW FindExecutableW SHBrowseForFolderW SHGetKnownFolderPath SHGetPathFromIDListEx
    SHGetSpecialFolderPathW SHQueryRecycleBinW Shell_NotifyIconW
)";

// Reading, syncs, locks, and what lives no longer than its process.
constexpr std::string_view kOfSystem = R"(
    AddVectoredExceptionHandler AreFileApisANSI CloseHandle CreateEventA CreateEventW
    CreateMutexExW CreateMutexW CreatePipe CreateSemaphoreA CreateThread DebugBreak
    DeleteCriticalSection DuplicateHandle EnterCriticalSection FileTimeToSystemTime FindClose
    FindFirstFileA FindFirstFileW FindFirstVolumeW FindNextFileA FindNextFileW FindNextVolumeW
    FindResourceW FindVolumeClose FlushFileBuffers FlushViewOfFile FormatMessageA FormatMessageW
    FreeLibrary GetCommandLineA GetCommandLineW GetComputerNameW GetCurrentProcess
    GetCurrentProcessId GetCurrentThread GetCurrentThreadId GetDiskFreeSpaceA
    GetDiskFreeSpaceExW GetDiskFreeSpaceW
    GetExitCodeProcess GetFileAttributesA GetFileAttributesExA GetFileAttributesExW
    GetFileAttributesW GetFileInformationByHandle GetFileInformationByHandleEx GetFileSize
    GetFileSizeEx GetFileType GetFinalPathNameByHandleW GetFullPathNameA GetFullPathNameW
    GetHandleInformation GetLastError GetLocalTime GetModuleFileNameA GetModuleFileNameW
    GetModuleHandleA GetModuleHandleW GetPrivateProfileStringW GetProcAddress
    GetProcessAffinityMask GetProcessHeap GetProcessTimes GetStartupInfoA GetStartupInfoW
    GetStdHandle GetSystemInfo GetSystemTime GetSystemTimeAdjustment GetSystemTimeAsFileTime
    GetSystemTimePreciseAsFileTime GetSystemWindowsDirectoryW GetTempPathA GetTempPathW
    GetThreadContext GetThreadPriority GetThreadTimes GetTickCount GetTickCount64
    GetVolumeInformationW GlobalAddAtomW GlobalDeleteAtom HeapAlloc HeapCompact HeapCreate
    HeapDestroy HeapFree HeapReAlloc HeapSize HeapValidate InitializeCriticalSection
    IsDBCSLeadByteEx IsDebuggerPresent LeaveCriticalSection LoadLibraryExW LoadLibraryW
    LoadResource LocalFree LockFile LockFileEx LockResource MulDiv MultiByteToWideChar
    OpenFileById OpenProcess OpenThread OutputDebugStringA OutputDebugStringW
    QueryPerformanceCounter QueryPerformanceFrequency RaiseException ReadFile ReleaseSemaphore
    RemoveVectoredExceptionHandler ResetEvent ResumeThread RtlCaptureContext
    RtlLookupFunctionEntry RtlUnwindEx RtlVirtualUnwind SetErrorMode SetEvent SetFilePointer
    SetFilePointerEx SetHandleInformation SetLastError SetProcessAffinityMask SetSystemTime
    SetThreadContext SetThreadPriority SetUnhandledExceptionFilter SizeofResource Sleep
    SuspendThread SystemTimeToFileTime SystemTimeToTzSpecificLocalTime TerminateProcess TlsAlloc
    TlsGetValue TlsSetValue TryEnterCriticalSection UnlockFile UnlockFileEx UnmapViewOfFile
    VirtualProtect VirtualQuery WaitForMultipleObjects WaitForSingleObject WaitForSingleObjectEx
    WideCharToMultiByte __C_specific_handler NtQueryInformationFile RtlGetVersion
    RtlNtStatusToDosError
)";

// The C library, which writes to nothing but what it has opened.
constexpr std::string_view kOfLanguage = R"(
    ___lc_codepage_func ___mb_cur_max_func __getmainargs __initenv __iob_func __set_app_type
    __setusermatherr __wgetmainargs __winitenv _acmdln _amsg_exit _assert _beginthreadex _cexit
    _close _commode _dup _dup2 _endthreadex _errno _exit _fdopen _filelengthi64 _fileno _findclose
    _fmode _fstat64 _get_osfhandle _getcwd _initterm _isatty _localtime64 _lock _lseeki64
    _nextafter _onexit _open_osfhandle _read _set_error_mode _setjmp _splitpath_s _stat64 _strdup
    _stricmp _telli64 _ultoa _unlock _wassert _wchdir _wcmdln _wcsicmp _wfindfirst64 _wfindnext64
    _wfullpath _wgetcwd _write _wstat64 abort calloc exit fclose fflush fgetpos fprintf fputc
    fputs fputwc fread free fseek fsetpos ftell fwprintf fwrite getc getenv getwc iscntrl islower
    isspace isupper iswctype isxdigit localeconv longjmp malloc memchr memcmp memcpy memmove
    memset printf putc putwc qsort realloc setlocale setvbuf signal sprintf strchr strcmp strcoll
    strcspn strerror strftime strlen strncmp strrchr strstr strtol strtoul strxfrm toupper
    towlower towupper ungetc ungetwc vfprintf wcscat wcscmp wcscoll wcscpy wcsftime wcslen wcsstr
    wcsxfrm
)";

bool isBlank(char letter) { return letter == ' ' || letter == '\n'; }

// A list begins and ends with a blank.
bool has(std::string_view list, std::string_view name) {
  for (std::size_t at = list.find(name); at != list.npos; at = list.find(name, at + 1)) {
    if (isBlank(list[at - 1]) && isBlank(list[at + name.size()])) return true;
  }
  return false;
}

}  // namespace

bool isHarmless(const Import& import) {
  const std::string& function = import.function;
  return has(kLibraries, import.library) || has(kOfRegistryAndRights, function) ||
         has(kOfShell, function) || has(kOfSystem, function) || has(kOfLanguage, function);
}

}  // namespace zelvane::test
