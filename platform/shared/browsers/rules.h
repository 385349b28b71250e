// What a family of browsers keeps in a profile, and what of it is whose trace: as data.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

class BrowserDesktop;

// Each kind of trace that a browser keeps belongs to exactly one of them.
enum class Trace {
  history,    // visits, sessions, downloads list, search terms, icons of pages that are not
              // bookmarked
  cache,      // caches, compiled code, thumbnails
  cookies,    // cookies, site storage, site permissions
  typed,      // typed addresses, input and form history, shortcuts, predictions
  favorites,  // bookmarks and their icons
};

// The rows that go from one table. `stays` is a condition of SQL on a row; without one, none stays.
// What it asks of another file must not change when that file's own traces go: both are listed
// before either is erased. A table that is not there, as in an older or newer version of the
// browser, is passed over.
struct RowRule {
  std::string_view table;
  std::string_view stays = {};
};

// What a column of the rows that stay becomes; in those alone to which `of` applies, if it is
// given.
struct ColumnRule {
  std::string_view table;
  std::string_view column;
  std::string_view value;  // an expression of SQL that is no NaN of its own: NULL, 0, 'text'
  std::string_view of = {};
};

// What becomes of the tables of a database of which its rule says nothing. A later version of the
// browser may have added them.
enum class Others {
  left,    // another rule of the same file answers for them
  named,   // left, and those with rows in them are named to the user
  erased,  // emptied: the file holds nothing but traces
};

struct DatabaseRule {
  Trace trace;
  std::string_view name;  // as the erasure lists it
  std::string_view file;  // in the profile
  // Without all of these the file is not what it is taken for, and is left.
  std::vector<std::string_view> knownBy;
  std::vector<RowRule> rows;  // in their order
  std::vector<ColumnRule> columns = {};
  Others others = Others::left;
  std::vector<std::string_view> kept = {};  // tables that are known and stay as they are
  // Conditions may ask "pages(url)", the addresses that this gives for the profile.
  std::vector<std::string> (*pages)(const std::string& profile, const BrowserDesktop& desktop,
                                    const Files& files) = nullptr;
};

// Where a path begins: in the profile; in the profile's own folder below the desktop's folder for
// caches, which may be the same; or in the folder that holds all profiles of the browser.
enum class In { profile, cache, root };

// Files that are deleted. A pattern is a path in the profile; "*" stands for any part of a name.
struct FilesRule {
  Trace trace;
  std::string_view name;
  std::vector<std::string_view> patterns;
  In in = In::profile;
};

// A folder whose content is erased. Of its own entries those alone to which one of the patterns
// applies, if there are any; below them everything. The folder stays.
struct FolderRule {
  Trace trace;
  In in;
  std::string_view path;
  std::vector<std::string_view> entries = {};
  // Names of entries that stay all the same.
  std::vector<std::string> (*spared)(const std::string& folder, const BrowserDesktop& desktop,
                                     const Files& files) = nullptr;
};

// Members that go from a file of JSON: paths like "profile/content_settings/exceptions/*". A list
// does not go, but becomes empty, because its owner counts on it.
struct JsonRule {
  Trace trace;
  std::string_view name;
  std::string_view file;
  std::vector<std::string_view> members;
};

// Entries that go from a folder in the format of LevelDB: those with one of the texts `going` in
// their keys; without any such text all but those with one of `staying`, in their keys or, where
// `valuesCount`, in their values.
struct LevelDbRule {
  Trace trace;
  std::string_view name;
  std::string_view folder;  // in the profile
  std::vector<std::string_view> staying;
  bool valuesCount = false;
  std::vector<std::string_view> going = {};
};

struct FamilyRules {
  std::vector<DatabaseRule> databases;
  std::vector<FilesRule> files;
  std::vector<FolderRule> folders;
  std::vector<JsonRule> json;
  std::vector<LevelDbRule> levelDbs;
};

}  // namespace zelvane::platform
