#include <fstream>

#include "platform/shared/browsers/browser.h"
#include "tests/browsers/browser_bed.h"
#include "tests/support/source_folder.h"

namespace zelvane::test {
namespace {

using platform::FamilyRules;
using platform::In;
using platform::Trace;

struct Option {
  Trace trace;
  std::string_view title;
};

constexpr auto kOptions = std::to_array<Option>({{Trace::history, "Clear Browser History Logs"},
                                                 {Trace::cache, "Clear Temporary Internet Files"},
                                                 {Trace::cookies, "Clear Browser Cookies"},
                                                 {Trace::typed, "Clear Site Addresses"},
                                                 {Trace::favorites, "Clear Browser Favorites"}});

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return all;
}

std::string code(std::string_view text) { return "`" + std::string(text) + "`"; }

std::string rowsOfDatabase(const platform::DatabaseRule& rule) {
  std::vector<std::string> what;
  for (const auto& row : rule.rows)
    what.push_back(code(row.table) + (row.stays.empty() ? "" : " in part"));
  for (const auto& column : rule.columns)
    what.push_back(code(std::string(column.table) + "." + std::string(column.column)));
  if (rule.others == platform::Others::erased)
    what.push_back("all tables but " + code(rule.kept.front()));
  return "| " + std::string(rule.name) + " | " + code(rule.file) + ": " + joined(what) + " |\n";
}

std::string listed(std::string_view name, const std::vector<std::string_view>& places) {
  std::vector<std::string> texts;
  texts.reserve(places.size());
  for (const std::string_view place : places) texts.push_back(code(place));
  return "| " + std::string(name) + " | " + joined(texts) + " |\n";
}

// The table of one option for one family, as it stands in docs/traces.md.
std::string table(const FamilyRules& rules, const Option& option) {
  std::string rows;
  for (const auto& rule : rules.databases) {
    if (rule.trace == option.trace) rows += rowsOfDatabase(rule);
  }
  for (const auto& rule : rules.files) {
    if (rule.trace == option.trace) rows += listed(rule.name, rule.patterns);
  }
  for (const auto& rule : rules.json) {
    if (rule.trace == option.trace) {
      rows += "| " + std::string(rule.name) + " | " + code(rule.file) + ": " +
              listed("", rule.members).substr(5);
    }
  }
  for (const auto& rule : rules.levelDbs) {
    if (rule.trace == option.trace) {
      rows += "| " + std::string(rule.name) + " | " + code(rule.folder) +
              ", but what belongs to extensions |\n";
    }
  }
  for (const auto& rule : rules.folders) {
    if (rule.trace != option.trace) continue;
    std::vector<std::string_view> entries;
    std::string where = std::string(rule.path) + "/";
    rows += "| a folder" +
            std::string(rule.in == In::cache  ? " of the cache"
                        : rule.in == In::root ? " beside the profiles"
                                              : "") +
            " | " + code(where);
    for (const std::string_view entry : rule.entries)
      rows += (entry == rule.entries.front() ? ": " : ", ") + code(entry);
    rows += " |\n";
  }
  return rows.empty() ? rows
                      : "\n### \"" + std::string(option.title) +
                            "\"\n\n| what | where |\n|---|---|\n" + rows;
}

std::string tables(platform::Family family) {
  std::string all;
  for (const Option& option : kOptions) all += table(platform::rulesOf(family), option);
  return all;
}

std::string document() {
  std::ifstream file(inSources("docs/traces.md"));
  return {std::istreambuf_iterator<char>(file), {}};
}

// A failure shows the table as it has to stand there.
TEST(DocumentedTraces, TheTablesOfFirefoxAreThoseOfItsRules) {
  EXPECT_NE(document().find("## Firefox and LibreWolf\n" + tables(platform::Family::firefox)),
            std::string::npos)
      << tables(platform::Family::firefox);
}

TEST(DocumentedTraces, TheTablesOfChromiumAreThoseOfItsRules) {
  EXPECT_NE(document().find("## Chromium, Chrome, Brave, Edge, Vivaldi, Opera\n" +
                            tables(platform::Family::chromium)),
            std::string::npos)
      << tables(platform::Family::chromium);
}

TEST(DocumentedTraces, EveryBrowserIsNamed) {
  for (const auto& installation : platform::knownInstallations()) {
    EXPECT_NE(document().find(code(installation.root)), std::string::npos) << installation.root;
  }
}

}  // namespace
}  // namespace zelvane::test
