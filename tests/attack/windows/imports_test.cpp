// That no change of the disk or of the registry goes unheard.
#include "tests/attack/windows/imports.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/attack/windows/changing_calls.h"

namespace zelvane::test {
namespace {

using Texts = std::vector<std::string>;

// One a line.
std::string unknownIn(HMODULE module) {
  std::string unknown;
  for (const Import& import : importsOf(module)) {
    if (isHeard(import.function) || isHarmless(import)) continue;
    unknown += import.library + " " + import.function + "\n";
  }
  return unknown;
}

// The program lies in the folder above this one.
std::wstring pathOfTheProgram() {
  std::wstring path(32'768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  for (int level = 0; level < 2; ++level) path.resize(path.rfind(L'\\'));
  return path + L"\\Zelvane.exe";
}

TEST(Imports, AllOfThisProgramAreEitherHeardOrKnownToChangeNothing) {
  EXPECT_EQ(unknownIn(GetModuleHandleW(nullptr)), "");
}

TEST(Imports, AllOfTheRealProgramAreEitherHeardOrKnownToChangeNothing) {
  // Not to run it: nothing that it asks for is looked for.
  const HMODULE program =
      LoadLibraryExW(pathOfTheProgram().c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
  ASSERT_NE(program, nullptr);

  EXPECT_EQ(unknownIn(program), "");
  FreeLibrary(program);
}

// Otherwise what changes the disk in the real program would not be killed here.
TEST(Imports, WhatTheRealProgramChangesAnythingByIsAlsoInThisOne) {
  const HMODULE program =
      LoadLibraryExW(pathOfTheProgram().c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
  ASSERT_NE(program, nullptr);
  Texts own;
  std::ranges::transform(importsOf(GetModuleHandleW(nullptr)), std::back_inserter(own),
                         &Import::function);

  for (const Import& import : importsOf(program)) {
    if (!isHeard(import.function)) continue;
    EXPECT_NE(std::ranges::find(own, import.function), own.end()) << import.function;
  }
  FreeLibrary(program);
}

TEST(Imports, NothingIsBothHeardAndHarmless) {
  for (const Import& import : importsOf(GetModuleHandleW(nullptr))) {
    EXPECT_FALSE(isHeard(import.function) && isHarmless(import)) << import.function;
  }
}

}  // namespace
}  // namespace zelvane::test
