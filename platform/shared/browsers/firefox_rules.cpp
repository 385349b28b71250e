#include "platform/shared/browsers/family_rules.h"
#include "platform/shared/browsers/known_pages.h"

namespace zelvane::platform {
namespace {

const std::vector<std::string_view> kIconTables = {"moz_icons", "moz_pages_w_icons",
                                                   "moz_icons_to_pages"};

const std::vector<RowRule> kIconsOfPages = {
    {"moz_pages_w_icons", "page_url IN (SELECT url FROM pages)"},
    {"moz_icons_to_pages", "page_id IN (SELECT id FROM moz_pages_w_icons)"},
    // The icon of a whole site, "https://site/favicon.ico", belongs to all its pages.
    {"moz_icons",
     "id IN (SELECT icon_id FROM moz_icons_to_pages) OR (root = 1 AND substr(icon_url, 1, "
     "length(icon_url) - length('favicon.ico')) IN (SELECT substr(page_url, 1, "
     "instr(page_url, '://') + 2 + instr(substr(page_url, instr(page_url, '://') + 3), '/')) FROM "
     "moz_pages_w_icons))"}};

}  // namespace

// Sources: the schema of each database as Firefox itself makes it, and its own "clear history",
// whose order is kept: what belongs to a page goes before the page.
const FamilyRules& firefoxRules() {
  using enum Trace;
  static const FamilyRules rules = {
      .databases =
          {
              {.trace = history,
               .name = "visits",
               .file = "places.sqlite",
               .knownBy = {"moz_places", "moz_historyvisits", "moz_bookmarks", "moz_origins"},
               .rows = {{"moz_places_metadata"},
                        {"moz_places_metadata_search_queries"},
                        {"moz_places_metadata_snapshots"},
                        {"moz_places_extra"},
                        {"moz_historyvisits_extra"},
                        {"moz_historyvisits"},
                        {"moz_previews_tombstones"},
                        {"moz_newtab_story_click"},
                        {"moz_newtab_story_impression"},
                        {"moz_newtab_shortcuts_interaction"},
                        {"moz_places",
                         "foreign_count > 0 OR id IN (SELECT fk FROM moz_bookmarks) OR id IN "
                         "(SELECT place_id FROM moz_keywords)"},
                        {"moz_annos",
                         "place_id IN (SELECT id FROM moz_places) AND anno_attribute_id NOT IN "
                         "(SELECT id FROM moz_anno_attributes WHERE name LIKE 'downloads/%')"},
                        {"moz_inputhistory", "place_id IN (SELECT id FROM moz_places)"},
                        {"moz_origins", "id IN (SELECT origin_id FROM moz_places)"},
                        {"moz_meta", "key NOT LIKE 'origin_frecency_%'"}},
               .columns = {{"moz_places", "visit_count", "0"},
                           {"moz_places", "last_visit_date", "NULL"},
                           {"moz_places", "typed", "0"},
                           {"moz_places", "frecency", "-1"},
                           {"moz_places", "recalc_frecency", "1"},
                           {"moz_places", "alt_frecency", "NULL"},
                           {"moz_places", "recalc_alt_frecency", "1"},
                           {"moz_places", "description", "NULL"},
                           {"moz_places", "preview_image_url", "NULL"},
                           {"moz_places", "site_name", "NULL"}},
               .others = Others::named,
               .kept = {"moz_bookmarks", "moz_bookmarks_deleted", "moz_keywords", "moz_items_annos",
                        "moz_anno_attributes"}},
              {.trace = history,
               .name = "icons",
               .file = "favicons.sqlite",
               .knownBy = kIconTables,
               .rows = kIconsOfPages,
               .others = Others::named,
               .pages = bookmarksOfFirefox},
              {.trace = favorites,
               .name = "bookmarks",
               .file = "places.sqlite",
               .knownBy = {"moz_places", "moz_historyvisits", "moz_bookmarks", "moz_origins"},
               .rows = {{"moz_bookmarks",
                         "guid IN ('root________', 'menu________', 'toolbar_____', 'tags________', "
                         "'unfiled_____', 'mobile______')"},
                        {"moz_keywords"},
                        {"moz_items_annos"},
                        {"moz_places", "id IN (SELECT place_id FROM moz_historyvisits)"},
                        {"moz_annos", "place_id IN (SELECT id FROM moz_places)"},
                        {"moz_inputhistory", "place_id IN (SELECT id FROM moz_places)"},
                        {"moz_origins", "id IN (SELECT origin_id FROM moz_places)"}},
               .columns = {{"moz_places", "foreign_count", "0"}}},
              {.trace = favorites,
               .name = "icons of bookmarks",
               .file = "favicons.sqlite",
               .knownBy = kIconTables,
               .rows = kIconsOfPages,
               .others = Others::named,
               .pages = visitedByFirefox},
              {.trace = cookies,
               .name = "cookies",
               .file = "cookies.sqlite",
               .knownBy = {"moz_cookies"},
               .rows = {{"moz_cookies"}},
               .others = Others::named},
              {.trace = cookies,
               .name = "permissions",
               .file = "permissions.sqlite",
               .knownBy = {"moz_perms"},
               .rows = {{"moz_perms", "origin LIKE 'moz-extension:%'"},
                        {"moz_hosts"},
                        {"moz_origin_interactions"}},
               .others = Others::named},
              {.trace = cookies,
               .name = "site settings",
               .file = "content-prefs.sqlite",
               .knownBy = {"groups", "prefs"},
               .rows = {{"prefs", "groupID IS NULL"}, {"groups"}},
               .others = Others::named,
               .kept = {"settings"}},
              {.trace = cookies,
               .name = "bounces",
               .file = "bounce-tracking-protection.sqlite",
               .knownBy = {"sites"},
               .rows = {{"sites"}},
               .others = Others::named},
              {.trace = typed,
               .name = "typed addresses",
               .file = "places.sqlite",
               .knownBy = {"moz_places", "moz_historyvisits", "moz_inputhistory"},
               .rows = {{"moz_inputhistory"}},
               .columns = {{"moz_places", "typed", "0"},
                           {"moz_historyvisits", "visit_type", "1", "visit_type = 2"}}},
              {.trace = typed,
               .name = "forms",
               .file = "formhistory.sqlite",
               .knownBy = {"moz_formhistory"},
               .rows = {{"moz_history_to_sources"},
                        {"moz_sources"},
                        {"moz_formhistory"},
                        {"moz_deleted_formhistory"}},
               .others = Others::named},
          },
      .files =
          {
              {history,
               "sessions",
               {"sessionstore.jsonlz4", "sessionstore.js", "sessionstore-backups/*",
                "recovery.jsonlz4"}},
              {favorites, "copies of bookmarks", {"bookmarkbackups/*"}},
              {cookies,
               "storage list",
               {"storage.sqlite", "storage.sqlite-*", "ls-archive.sqlite"}},
              {cookies, "old storage", {"webappsstore.sqlite", "webappsstore.sqlite-*"}},
              {cookies,
               "site security",
               {"SiteSecurityServiceState.txt", "SiteSecurityServiceState.bin", "serviceworker.txt",
                "enumerate_devices.txt", "notificationstore.json"}},
              {cache, "services", {"AlternateServices.txt", "AlternateServices.bin"}},
          },
      .folders =
          {
              {cookies, In::profile, "storage/default", {"http*", "file*"}},
              {cookies, In::profile, "storage/temporary"},
              {cookies, In::profile, "storage/private"},
              {cache, In::cache, "cache2"},
              {cache, In::cache, "OfflineCache"},
              {cache, In::cache, "jumpListCache"},
              {cache, In::cache, "thumbnails"},
              {cache, In::cache, "startupCache"},
          },
      .json = {},
      .levelDbs = {},
  };
  return rules;
}

}  // namespace zelvane::platform
