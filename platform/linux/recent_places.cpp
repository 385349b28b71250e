#include "platform/linux/recent_places.h"

#include <array>

namespace zelvane::platform {

// Sources: the desktops' own specifications of recent files and of thumbnails, and for packages of
// snap and flatpak where those systems keep what belongs to a program.
std::span<const RecentPlace> recentPlaces() {
  using enum RecentKind;
  static constexpr auto kTable = std::to_array<RecentPlace>({
      {"recent documents", "all", list, "{data}/recently-used.xbel"},
      {"copies that a crash left", "all", copy, "{data}/recently-used.xbel.*"},
      {"recent documents of former days", "all", list, "{home}/.recently-used.xbel"},
      {"recent documents of former days", "all", copy, "{home}/.recently-used"},
      {"recent documents (snap)", "all", list, "{home}/snap/*/*/.local/share/recently-used.xbel"},
      {"copies (snap)", "all", copy, "{home}/snap/*/*/.local/share/recently-used.xbel.*"},
      {"recent documents (flatpak)", "all", list, "{home}/.var/app/*/data/recently-used.xbel"},
      {"copies (flatpak)", "all", copy, "{home}/.var/app/*/data/recently-used.xbel.*"},
      {"recent documents", "KDE", folder, "{data}/RecentDocuments"},
      {"recent documents (snap)", "KDE", folder, "{home}/snap/*/*/.local/share/RecentDocuments"},
      {"recent documents (flatpak)", "KDE", folder, "{home}/.var/app/*/data/RecentDocuments"},
      {"used documents", "KDE", activities, "{data}/kactivitymanagerd/resources/database"},
      {"thumbnails", "all", folder, "{cache}/thumbnails"},
      {"thumbnails of former days", "all", folder, "{home}/.thumbnails"},
      {"thumbnails (snap)", "all", folder, "{home}/snap/*/*/.cache/thumbnails"},
      {"thumbnails (flatpak)", "all", folder, "{home}/.var/app/*/cache/thumbnails"},
  });
  return kTable;
}

}  // namespace zelvane::platform
