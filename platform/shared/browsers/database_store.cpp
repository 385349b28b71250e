#include "platform/shared/browsers/database_store.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/shared/browsers/database.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

using std::string;
using std::string_view;

string goes(const RowRule& rule) {
  return rule.stays.empty() ? string("1") : "NOT coalesce((" + string(rule.stays) + "), 0)";
}

string differs(const ColumnRule& rule) {
  const string change = sqlName(rule.column) + " IS NOT " + string(rule.value);
  return rule.of.empty() ? change : change + " AND (" + string(rule.of) + ")";
}

bool isOfSqliteItself(string_view table) { return table.starts_with("sqlite_"); }

// The rule with what of it applies to this very file.
struct Plan {
  std::vector<RowRule> rows;
  std::vector<ColumnRule> columns;
  std::vector<string> unnamed;  // tables of which it says nothing
};

bool hasColumn(const Database& database, const ColumnRule& rule) {
  const std::vector<string> columns = database.columns(rule.table);
  return std::ranges::find(columns, rule.column) != columns.end();
}

Plan planFor(const Database& database, const DatabaseRule& rule) {
  for (const string_view table : rule.knownBy) {
    if (!database.has(table))
      throw Error(ErrorNumber::typeMismatch, string(rule.file) + " has no " + string(table));
  }
  Plan plan;
  std::ranges::copy_if(rule.rows, std::back_inserter(plan.rows),
                       [&](const RowRule& row) { return database.has(row.table); });
  std::ranges::copy_if(rule.columns, std::back_inserter(plan.columns),
                       [&](const ColumnRule& column) { return hasColumn(database, column); });
  if (rule.others == Others::left) return plan;
  const auto isNamed = [&](const string& table) {
    return isOfSqliteItself(table) || std::ranges::count(rule.kept, table) > 0 ||
           std::ranges::count(rule.rows, table, &RowRule::table) > 0;
  };
  for (string& table : database.tables()) {
    if (!isNamed(table)) plan.unnamed.push_back(std::move(table));
  }
  return plan;
}

bool exists(const Database& database, string_view table, const string& condition) {
  return database.number("SELECT EXISTS (SELECT 1 FROM " + sqlName(table) + " WHERE " + condition +
                         ")") != 0;
}

std::vector<string> filled(const Database& database, std::vector<string> tables) {
  std::erase_if(tables, [&](const string& table) { return !exists(database, table, "1"); });
  return tables;
}

bool holdsAnyOf(const Database& database, const DatabaseRule& rule) {
  const Plan plan = planFor(database, rule);
  return database.hasFreePages() ||
         (rule.others == Others::erased && !filled(database, plan.unnamed).empty()) ||
         std::ranges::any_of(
             plan.rows,
             [&](const RowRule& row) { return exists(database, row.table, goes(row)); }) ||
         std::ranges::any_of(plan.columns, [&](const ColumnRule& column) {
           return exists(database, column.table, differs(column));
         });
}

// Emptying a whole table costs next to nothing, however many rows it has, and few rows stay as a
// rule: they are put by meanwhile.
void eraseRows(const Database& database, const RowRule& rule) {
  const string table = sqlName(rule.table);
  if (rule.stays.empty()) return database.run("DELETE FROM main." + table);
  string columns;
  for (const string& column : database.columns(rule.table)) {
    columns += (columns.empty() ? "" : ", ") + sqlName(column);
  }
  database.run("CREATE TEMP TABLE staying AS SELECT " + columns + " FROM main." + table +
               " WHERE " + string(rule.stays) + ";DELETE FROM main." + table +
               ";INSERT INTO main." + table + " (" + columns + ") SELECT " + columns +
               " FROM temp.staying;DROP TABLE temp.staying");
}

void change(const Database& database, const Plan& plan, Others others) {
  for (const RowRule& rule : plan.rows) eraseRows(database, rule);
  if (others == Others::erased) {
    for (const string& table : plan.unnamed) database.run("DELETE FROM main." + sqlName(table));
  }
  for (const ColumnRule& rule : plan.columns) {
    database.run("UPDATE main." + sqlName(rule.table) + " SET " + sqlName(rule.column) + " = " +
                 string(rule.value) + " WHERE " + differs(rule));
  }
}

// What stays must be sound. It is little by now, and this can still be undone.
void refuseDamaged(const Database& database, string_view file) {
  if (database.number("SELECT count(*) FROM pragma_quick_check(1) WHERE quick_check <> 'ok'") !=
      0) {
    throw Error(ErrorNumber::deviceIo, string(file) + " is damaged");
  }
}

}  // namespace

DatabaseStore::DatabaseStore(string profile, const DatabaseRule& rule,
                             const BrowserDesktop& desktop, Files& files, Leaving leaving)
    : profile_(std::move(profile)),
      rule_(rule),
      desktop_(desktop),
      files_(files),
      leaving_(std::move(leaving)) {}

bool DatabaseStore::holdsAnything() const {
  const PathKind kind = kindBelow(desktop_, profile_, rule_.file);
  if (kind != PathKind::file) return kind == PathKind::other;
  try {
    const Database database(pathOfFile(), Database::Use::reading, desktop_);
    namePages(database);
    return desktop_.kindOf(mark()) != PathKind::nothing || holdsAnyOf(database, rule_);
  } catch (const Error&) {
    return true;
  }
}

void DatabaseStore::erase() {
  eraseMarked();  // the journal goes with the end of it
  files_.remove(mark());
}

void DatabaseStore::eraseMarked() {
  if (kindBelow(desktop_, profile_, rule_.file) != PathKind::file) {
    throw Error(ErrorNumber::accessError, pathOfFile() + " is no file");
  }
  const Database database(pathOfFile(), Database::Use::editing, desktop_);
  namePages(database);
  const Plan plan = planFor(database, rule_);
  files_.createBeside(mark())->publish();
  try {
    database.inOneStep([&] {
      change(database, plan, rule_.others);
      refuseDamaged(database, rule_.file);
    });
  } catch (const Error&) {
    files_.remove(mark());
    throw;
  }
  database.compact();
  if (rule_.others == Others::named) {
    for (const string& table : filled(database, plan.unnamed)) {
      leaving_(string(rule_.file) + " has a table that is not known, " + table);
    }
  }
}

string DatabaseStore::pathOfFile() const { return profile_ + "/" + string(rule_.file); }

void DatabaseStore::namePages(const Database& database) const {
  if (rule_.pages == nullptr) return;
  database.run("CREATE TEMP TABLE pages (url TEXT PRIMARY KEY) WITHOUT ROWID");
  database.runForEach("INSERT OR IGNORE INTO temp.pages VALUES (?)",
                      rule_.pages(profile_, desktop_, files_));
}

}  // namespace zelvane::platform
