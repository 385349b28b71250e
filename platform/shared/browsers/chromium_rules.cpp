#include "platform/shared/browsers/extension_parts.h"
#include "platform/shared/browsers/family_rules.h"
#include "platform/shared/browsers/known_pages.h"

namespace zelvane::platform {
namespace {

const std::vector<RowRule> kIconsOfPages = {
    {"icon_mapping", "page_url IN (SELECT url FROM pages)"},
    {"favicons", "id IN (SELECT icon_id FROM icon_mapping)"},
    {"favicon_bitmaps", "icon_id IN (SELECT id FROM favicons)"}};

}  // namespace

// Sources: the schemas that Chromium itself makes. Its history grows new tables with every other
// version, so those of its databases that hold nothing but traces are emptied of all but a few.
const FamilyRules& chromiumRules() {
  using enum Trace;
  static const FamilyRules rules = {
      .databases =
          {
              {.trace = history,
               .name = "visits",
               .file = "History",
               .knownBy = {"urls", "visits"},
               .rows = {},
               .othersGo = true,
               .kept = {"meta"}},
              {.trace = history,
               .name = "icons",
               .file = "Favicons",
               .knownBy = {"icon_mapping", "favicons", "favicon_bitmaps"},
               .rows = kIconsOfPages,
               .pages = bookmarksOfChromium},
              {.trace = favorites,
               .name = "icons of bookmarks",
               .file = "Favicons",
               .knownBy = {"icon_mapping", "favicons", "favicon_bitmaps"},
               .rows = kIconsOfPages,
               .pages = visitedByChromium},
              {.trace = history,
               .name = "top sites",
               .file = "Top Sites",
               .knownBy = {"top_sites"},
               .rows = {{"top_sites"}}},
              {.trace = cookies,
               .name = "cookies",
               .file = "Cookies",
               .knownBy = {"cookies"},
               .rows = {{"cookies"}}},
              {.trace = cookies,
               .name = "cookies",
               .file = "Network/Cookies",
               .knownBy = {"cookies"},
               .rows = {{"cookies"}}},
              {.trace = typed,
               .name = "shortcuts",
               .file = "Shortcuts",
               .knownBy = {"omni_box_shortcuts"},
               .rows = {{"omni_box_shortcuts"}}},
              {.trace = typed,
               .name = "predictions",
               .file = "Network Action Predictor",
               .knownBy = {"network_action_predictor"},
               .rows = {},
               .othersGo = true,
               .kept = {"meta"}},
              {.trace = typed,
               .name = "typed addresses",
               .file = "History",
               .knownBy = {"urls", "visits"},
               .rows = {},
               .columns = {{"urls", "typed_count", "0"}}},
              {.trace = typed,
               .name = "forms",
               .file = "Web Data",
               .knownBy = {"autofill", "keywords"},
               .rows = {{"autofill"}}},
          },
      .files =
          {
              {favorites, "copies of bookmarks", {"Bookmarks.bak", "AccountBookmarks.bak"}},
              {history,
               "sessions",
               {"Sessions/*", "Current Session", "Current Tabs", "Last Session", "Last Tabs"}},
              {history, "visited links", {"Visited Links"}},
              {history,
               "usage",
               {"segmentation_platform/ukm_db", "segmentation_platform/ukm_db-*"},
               In::root},
              {history, "sites", {"DIPS", "DIPS-*", "MediaDeviceSalts", "MediaDeviceSalts-*"}},
              {history, "downloads", {"DownloadMetadata"}},
              {cookies,
               "network",
               {"Network Persistent State", "TransportSecurity", "Reporting and NEL",
                "Reporting and NEL-*", "Network/Network Persistent State",
                "Network/TransportSecurity", "Network/Reporting and NEL"}},
          },
      .folders =
          {
              {cookies, In::profile, "Session Storage"},
              {cookies, In::profile, "Service Worker/CacheStorage", {}, cachesOfExtensions},
              {cookies, In::profile, "Service Worker/ScriptCache", {}, scriptsOfExtensions},
              {history, In::profile, "Site Characteristics Database"},
              {cookies, In::profile, "IndexedDB", {"http*", "file*"}},
              {cookies, In::profile, "databases", {"http*"}},
              {cookies, In::profile, "File System"},
              {cookies, In::profile, "WebStorage"},
              {cache, In::cache, "Cache"},
              {cache, In::cache, "Code Cache"},
              {cache, In::profile, "GPUCache"},
              {cache, In::profile, "DawnCache"},
              {cache, In::profile, "DawnGraphiteCache"},
              {cache, In::profile, "DawnWebGPUCache"},
              {cache, In::profile, "Media Cache"},
              {cache, In::root, "ShaderCache"},
              {cache, In::root, "GrShaderCache"},
              {cache, In::root, "GraphiteDawnCache"},
          },
      .json =
          {
              {favorites, "bookmarks", "Bookmarks", {"roots/*/children", "checksum"}},
              {favorites, "bookmarks", "AccountBookmarks", {"roots/*/children", "checksum"}},
              {typed, "suggestions", "Preferences", {"zerosuggest"}},
              {cookies,
               "site permissions",
               "Preferences",
               {"profile/content_settings/exceptions/*/*"}},
          },
      // Extensions keep theirs beside the sites'.
      .levelDbs =
          {
              {cookies,
               "local storage",
               "Local Storage/leveldb",
               {"VERSION", "chrome-extension://"}},
              {.trace = cookies,
               .name = "service workers",
               .folder = "Service Worker/Database",
               .staying = {"INITDATA_DB", "INITDATA_NEXT", "chrome-extension://"},
               .valuesCount = true},
              {.trace = history,
               .name = "running downloads",
               .folder = "shared_proto_db",
               .staying = {},
               .going = {"_download,"}},
          },
  };
  return rules;
}

}  // namespace zelvane::platform
