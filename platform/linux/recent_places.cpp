#include "platform/linux/recent_places.h"

#include <array>

namespace zelvane::platform {

// Sources: the desktops' own specifications of recent files and of thumbnails, and for packages of
// snap and flatpak where those systems keep what belongs to a program.
std::span<const RecentPlace> recentPlaces() {
  using enum RecentKind;
  static constexpr auto kTable = std::to_array<RecentPlace>({
      {"recent documents", list, "{data}/recently-used.xbel"},
      {"copies that a crash left", copy, "{data}/recently-used.xbel.*"},
      {"recent documents of former days", list, "{home}/.recently-used.xbel"},
      {"recent documents of former days", copy, "{home}/.recently-used"},
      {"recent documents (snap)", list, "{home}/snap/*/*/.local/share/recently-used.xbel"},
      {"copies (snap)", copy, "{home}/snap/*/*/.local/share/recently-used.xbel.*"},
      {"recent documents (flatpak)", list, "{home}/.var/app/*/data/recently-used.xbel"},
      {"copies (flatpak)", copy, "{home}/.var/app/*/data/recently-used.xbel.*"},
      {"recent documents of KDE", folder, "{data}/RecentDocuments"},
      {"recent documents of KDE (snap)", folder, "{home}/snap/*/*/.local/share/RecentDocuments"},
      {"recent documents of KDE (flatpak)", folder, "{home}/.var/app/*/data/RecentDocuments"},
      {"activities of KDE", activities, "{data}/kactivitymanagerd/resources/database"},
      {"thumbnails", folder, "{cache}/thumbnails"},
      {"thumbnails of former days", folder, "{home}/.thumbnails"},
      {"thumbnails (snap)", folder, "{home}/snap/*/*/.cache/thumbnails"},
      {"thumbnails (flatpak)", folder, "{home}/.var/app/*/cache/thumbnails"},
  });
  return kTable;
}

}  // namespace zelvane::platform
