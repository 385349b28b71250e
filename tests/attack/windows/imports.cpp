#include "tests/attack/windows/imports.h"

#include <stdexcept>

namespace zelvane::test {
namespace {

// Everything in a module is told by how far it lies behind the module's beginning.
template <typename Thing>
Thing* at(HMODULE module, DWORD offset) {
  return reinterpret_cast<Thing*>(reinterpret_cast<char*>(module) + offset);
}

void addImportsOf(HMODULE module, const IMAGE_IMPORT_DESCRIPTOR& library,
                  std::vector<Import>& imports) {
  const std::string name = at<const char>(module, library.Name);
  const auto* entry = at<const IMAGE_THUNK_DATA>(module, library.OriginalFirstThunk);
  auto* place = at<void*>(module, library.FirstThunk);
  for (; entry->u1.AddressOfData != 0; ++entry, ++place) {
    if (IMAGE_SNAP_BY_ORDINAL(entry->u1.Ordinal)) {
      throw std::runtime_error("a function of " + name + " without a name");
    }
    const auto offset = static_cast<DWORD>(entry->u1.AddressOfData);
    const auto* function = at<const IMAGE_IMPORT_BY_NAME>(module, offset)->Name;
    imports.push_back({name, reinterpret_cast<const char*>(function), place});
  }
}

}  // namespace

std::vector<Import> importsOf(HMODULE module) {
  const auto start = static_cast<DWORD>(at<const IMAGE_DOS_HEADER>(module, 0)->e_lfanew);
  const auto& header = at<const IMAGE_NT_HEADERS>(module, start)->OptionalHeader;
  const DWORD table = header.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  std::vector<Import> imports;
  for (const auto* library = at<const IMAGE_IMPORT_DESCRIPTOR>(module, table); library->Name != 0;
       ++library) {
    addImportsOf(module, *library, imports);
  }
  return imports;
}

}  // namespace zelvane::test
