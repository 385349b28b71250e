// Where desktops and their programs keep which documents were used.
#pragma once

#include <span>
#include <string_view>

namespace zelvane::platform {

enum class RecentKind {
  list,       // a list in XBEL: written anew without entries
  copy,       // a copy of one, or one that nobody writes any more: deleted
  folder,     // a folder that belongs to this purpose whole: what is in it is erased
  activities  // the database of KDE's activity manager: the manager is asked to forget
};

struct RecentPlace {
  std::string_view what;     // as the documentation says it, as is the next
  std::string_view desktop;  // whose programs write it; "all" where it is not one desktop's
  RecentKind kind;
  std::string_view path;  // begins with "{home}", "{data}" or "{cache}"; see own_paths.h for "*"
};

// Adding a place is adding a row. No two of them name the same thing: a snap's "current" is a link
// to one of the revisions, which are found themselves.
std::span<const RecentPlace> recentPlaces();

}  // namespace zelvane::platform
