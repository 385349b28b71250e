#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "platform/linux/recent_places.h"
#include "platform/linux/temporary_rules.h"
#include "tests/support/source_folder.h"

namespace zelvane::test {
namespace {

using platform::RecentKind;

std::string document() {
  std::ifstream file(inSources("docs/traces.md"));
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string_view doneTo(RecentKind kind) {
  switch (kind) {
    case RecentKind::list:
      return "written anew without entries";
    case RecentKind::copy:
      return "deleted";
    case RecentKind::folder:
      return "what is in it is deleted";
    case RecentKind::activities:
      return "the activity manager is asked to forget";
  }
  return "";
}

std::string row(std::initializer_list<std::string_view> cells) {
  std::string text = "|";
  for (const std::string_view cell : cells) text += " " + std::string(cell) + " |";
  return text + "\n";
}

std::string code(std::string_view text) { return "`" + std::string(text) + "`"; }

// A failure shows the table as it has to stand there.
TEST(DocumentedDesktops, TheTableOfRecentDocumentsIsThatOfTheProgram) {
  std::string table = "| what | desktop | where | what is done |\n|---|---|---|---|\n";
  for (const auto& place : platform::recentPlaces()) {
    table += row({place.what, place.desktop, code(place.path), doneTo(place.kind)});
  }

  EXPECT_NE(document().find("\n" + table + "\n"), std::string::npos) << table;
}

TEST(DocumentedDesktops, TheTableOfServicesIsThatOfTheProgram) {
  std::string table = "| name | what it is | whose |\n|---|---|---|\n";
  for (const auto& [pattern, kind, whose] : platform::serviceNames()) {
    table +=
        row({code(pattern), kind == platform::EntryKind::folder ? "a folder" : "a file", whose});
  }

  EXPECT_NE(document().find("\n" + table + "\n"), std::string::npos) << table;
}

TEST(DocumentedDesktops, EachDesktopHasItsRow) {
  for (const std::string desktop : {"GNOME", "KDE", "XFCE", "MATE", "Cinnamon", "Windows"}) {
    EXPECT_NE(document().find("\n| " + desktop + " | "), std::string::npos) << desktop;
  }
}

}  // namespace
}  // namespace zelvane::test
