#include "tests/support/windows/gdi_objects.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include <windows.h>
#include <winternl.h>

namespace zelvane::test {
namespace {

// The table that the system's drawing library shares with every process, as Wine has it:
//
//     0  the object    8  process    12  unique    14  kind, 0 for none    15  flags    16  pointer
struct Entry {
  std::uint64_t object;
  std::uint32_t process;
  std::uint16_t unique;
  std::uint8_t kind;
  std::uint8_t flags;
  std::uint64_t pointer;
};
constexpr std::size_t kEntries = 0x4000;
constexpr std::size_t kPlaceOfTable = 0xF8;  // in what the system keeps of each process

}  // namespace

// Wine's answer to the question is always 0.
std::size_t gdiObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return counted;
  const auto* process = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
  const auto* table = *reinterpret_cast<const Entry* const*>(process + kPlaceOfTable);
  return static_cast<std::size_t>(std::ranges::count_if(
      std::span(table, kEntries), [](std::uint8_t kind) { return kind != 0; }, &Entry::kind));
}

}  // namespace zelvane::test
