#include "platform/shared/browsers/browser.h"

namespace zelvane::platform {

// Sources: the browsers' own documentation of where their profiles lie, and for packages of snap
// and flatpak where those systems keep what belongs to a program.
const std::vector<Installation>& knownInstallations() {
  using enum Family;
  static const std::vector<Installation> table = {
      // Linux: the distribution's or the maker's package, snap, flatpak
      {"Firefox", firefox, "{home}/.mozilla/firefox", "{cache}/mozilla/firefox"},
      {"Firefox", firefox, "{config}/mozilla/firefox", "{cache}/mozilla/firefox"},
      {"Firefox (snap)", firefox, "{home}/snap/firefox/common/.mozilla/firefox",
       "{home}/snap/firefox/common/.cache/mozilla/firefox"},
      {"Firefox (snap)", firefox, "{home}/snap/firefox/common/.config/mozilla/firefox",
       "{home}/snap/firefox/common/.cache/mozilla/firefox"},
      {"Firefox (flatpak)", firefox, "{home}/.var/app/org.mozilla.firefox/.mozilla/firefox",
       "{home}/.var/app/org.mozilla.firefox/cache/mozilla/firefox"},
      {"Firefox (flatpak)", firefox, "{home}/.var/app/org.mozilla.firefox/config/mozilla/firefox",
       "{home}/.var/app/org.mozilla.firefox/cache/mozilla/firefox"},
      {"LibreWolf", firefox, "{home}/.librewolf", "{cache}/librewolf"},
      {"LibreWolf", firefox, "{config}/librewolf/librewolf", "{cache}/librewolf/librewolf"},
      {"LibreWolf (flatpak)", firefox, "{home}/.var/app/io.gitlab.librewolf-community/.librewolf",
       "{home}/.var/app/io.gitlab.librewolf-community/cache/librewolf"},
      {"Chromium", chromium, "{config}/chromium", "{cache}/chromium"},
      {"Chromium (snap)", chromium, "{home}/snap/chromium/common/chromium",
       "{home}/snap/chromium/common/.cache/chromium"},
      {"Chromium (flatpak)", chromium, "{home}/.var/app/org.chromium.Chromium/config/chromium",
       "{home}/.var/app/org.chromium.Chromium/cache/chromium"},
      {"Ungoogled Chromium (flatpak)", chromium,
       "{home}/.var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium",
       "{home}/.var/app/io.github.ungoogled_software.ungoogled_chromium/cache/chromium"},
      {"Chrome", chromium, "{config}/google-chrome", "{cache}/google-chrome"},
      {"Chrome Beta", chromium, "{config}/google-chrome-beta", "{cache}/google-chrome-beta"},
      {"Chrome Dev", chromium, "{config}/google-chrome-unstable", "{cache}/google-chrome-unstable"},
      {"Chrome (flatpak)", chromium, "{home}/.var/app/com.google.Chrome/config/google-chrome",
       "{home}/.var/app/com.google.Chrome/cache/google-chrome"},
      {"Brave", chromium, "{config}/BraveSoftware/Brave-Browser",
       "{cache}/BraveSoftware/Brave-Browser"},
      {"Brave (snap)", chromium, "{home}/snap/brave/current/.config/BraveSoftware/Brave-Browser",
       "{home}/snap/brave/common/.cache/BraveSoftware/Brave-Browser"},
      {"Brave (flatpak)", chromium,
       "{home}/.var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser",
       "{home}/.var/app/com.brave.Browser/cache/BraveSoftware/Brave-Browser"},
      {"Edge", chromium, "{config}/microsoft-edge", "{cache}/microsoft-edge"},
      {"Edge Beta", chromium, "{config}/microsoft-edge-beta", "{cache}/microsoft-edge-beta"},
      {"Edge Dev", chromium, "{config}/microsoft-edge-dev", "{cache}/microsoft-edge-dev"},
      {"Edge (flatpak)", chromium, "{home}/.var/app/com.microsoft.Edge/config/microsoft-edge",
       "{home}/.var/app/com.microsoft.Edge/cache/microsoft-edge"},
      {"Vivaldi", chromium, "{config}/vivaldi", "{cache}/vivaldi"},
      {"Vivaldi Snapshot", chromium, "{config}/vivaldi-snapshot", "{cache}/vivaldi-snapshot"},
      {"Vivaldi (snap)", chromium, "{home}/snap/vivaldi/current/.config/vivaldi",
       "{home}/snap/vivaldi/common/.cache/vivaldi"},
      {"Vivaldi (flatpak)", chromium, "{home}/.var/app/com.vivaldi.Vivaldi/config/vivaldi",
       "{home}/.var/app/com.vivaldi.Vivaldi/cache/vivaldi"},
      {"Opera", chromium, "{config}/opera", "{cache}/opera"},
      {"Opera (snap)", chromium, "{home}/snap/opera*/current/.config/opera*",
       "{home}/snap/opera*/common/.cache/opera*"},
      {"Opera (flatpak)", chromium, "{home}/.var/app/com.opera.Opera/config/opera",
       "{home}/.var/app/com.opera.Opera/cache/opera"},

      // Windows: installed as usual, or from the Microsoft Store
      {"Firefox", firefox, "{roaming}/Mozilla/Firefox", "{local}/Mozilla/Firefox"},
      {"Firefox (Store)", firefox,
       "{local}/Packages/Mozilla.Firefox_*/LocalCache/Roaming/Mozilla/Firefox",
       "{local}/Packages/Mozilla.Firefox_*/LocalCache/Local/Mozilla/Firefox"},
      {"LibreWolf", firefox, "{roaming}/librewolf", "{local}/librewolf"},
      {"Chromium", chromium, "{local}/Chromium/User Data", ""},
      {"Chrome", chromium, "{local}/Google/Chrome/User Data", ""},
      {"Chrome Beta", chromium, "{local}/Google/Chrome Beta/User Data", ""},
      {"Chrome Dev", chromium, "{local}/Google/Chrome Dev/User Data", ""},
      {"Chrome Canary", chromium, "{local}/Google/Chrome SxS/User Data", ""},
      {"Brave", chromium, "{local}/BraveSoftware/Brave-Browser/User Data", ""},
      {"Edge", chromium, "{local}/Microsoft/Edge/User Data", ""},
      {"Edge Beta", chromium, "{local}/Microsoft/Edge Beta/User Data", ""},
      {"Vivaldi", chromium, "{local}/Vivaldi/User Data", ""},
      {"Opera", chromium, "{roaming}/Opera Software/Opera Stable",
       "{local}/Opera Software/Opera Stable"},
      {"Opera GX", chromium, "{roaming}/Opera Software/Opera GX Stable",
       "{local}/Opera Software/Opera GX Stable"},
  };
  return table;
}

}  // namespace zelvane::platform
