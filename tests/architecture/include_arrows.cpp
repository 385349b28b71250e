#include "tests/architecture/include_arrows.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

#include "tests/architecture/source_text.h"

namespace zelvane::architecture {

namespace {

// What a folder may take from outside the project, beyond the standard library.
enum class Outside {
  nothing,
  libraries,    // small libraries, never a toolkit or an operating system
  system,       // the operating system, libraries, and Qt's modules without windows
  wholeToolkit  // all of it
};

struct Row {
  std::string_view folder;  // the folder itself, without those below it
  std::string_view mayUse;  // folders, parted by blanks; its own always; "name/*" with those below
  Outside outside = Outside::nothing;
};

constexpr auto kTable = std::to_array<Row>({
    {"platform", ""},
    {"platform/memory", "platform platform/shared"},
    {"platform/shared", "platform", Outside::libraries},
    {"platform/shared/age", "platform platform/shared", Outside::libraries},
    {"platform/shared/browsers", "platform platform/shared", Outside::libraries},
    {"platform/shared/zip", "platform platform/shared", Outside::libraries},
    {"platform/linux", "platform platform/shared/*", Outside::system},
    {"platform/windows", "platform platform/shared/*", Outside::system},
    {"core/controls", "platform"},
    {"core", "platform core/controls"},
    {"cleaner", "platform core core/controls"},
    {"scheduler", "platform core core/controls"},
    {"popupkiller", "platform core core/controls"},
    {"filesecurity", "platform core core/controls"},
    {"about", "platform core core/controls"},
    {"core/main_window",
     "platform core core/controls cleaner scheduler popupkiller filesecurity about"},
    {"ui/qt/mirror", "platform core/controls", Outside::wholeToolkit},
    {"ui/qt", "ui/qt/mirror platform/* core/* cleaner scheduler popupkiller filesecurity about",
     Outside::wholeToolkit},
    {"ui/win32/mirror", "platform platform/windows core/controls", Outside::wholeToolkit},
    {"ui/win32",
     "ui/win32/mirror platform/* core/* cleaner scheduler popupkiller filesecurity about",
     Outside::wholeToolkit},
    {"browser/host", "platform platform/shared", Outside::system},
});

// Qt Core and Qt D-Bus, which have no windows: what a tenant may include of Qt.
constexpr std::string_view kWindowlessQt =
    " QAbstractNativeEventFilter QBuffer QByteArray QByteArrayList QCoreApplication QDateTime QDir"
    " QElapsedTimer QFile QFileInfo QHash QIODevice QJsonArray QJsonDocument QJsonObject QList"
    " QLocale QMap QMetaObject QMetaType QMimeDatabase QMimeType QObject QPointer QProcess"
    " QSaveFile QSettings QSocketNotifier QStandardPaths QStorageInfo QString QStringList"
    " QStringView QThread QTimeZone QTimer QUrl QUuid QVariant QXmlStreamReader"
    " QXmlStreamWriter ";

bool isStandard(std::string_view header) {
  return header.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") ==
         std::string_view::npos;
}

bool isQt(std::string_view header) {
  return header.size() > 1 && header[0] == 'Q' &&
         header.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZt", 1) == 1;
}

bool isWindowlessQt(std::string_view header) {
  return header.starts_with("QtCore/") || header.starts_with("QtDBus/") ||
         header.starts_with("QDBus") || findWord(kWindowlessQt, header) != std::string_view::npos;
}

bool isSmallLibrary(std::string_view header) {
  static constexpr auto kLibraries = std::to_array<std::string_view>(
      {"leveldb/", "nlohmann/", "openssl/", "sqlite3.h", "libdeflate.h", "zip.h", "zlib.h"});
  return std::ranges::any_of(kLibraries,
                             [&](std::string_view library) { return header.starts_with(library); });
}

bool mayTakeFromOutside(Outside outside, std::string_view header) {
  switch (outside) {
    case Outside::nothing:
      return isStandard(header);
    case Outside::libraries:
      return isStandard(header) || isSmallLibrary(header);
    case Outside::system:
      return !isQt(header) || isWindowlessQt(header);
    case Outside::wholeToolkit:
      return true;
  }
  return false;
}

bool mayUseFolder(const Row& row, std::string_view folder) {
  if (folder == row.folder) {
    return true;
  }
  for (std::string_view rest = row.mayUse; !rest.empty();) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    std::string_view allowed = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const bool withThoseBelow = allowed.ends_with("/*");
    if (withThoseBelow) {
      allowed.remove_suffix(2);
    }
    if (folder == allowed || (withThoseBelow && isBelow(folder, allowed))) {
      return true;
    }
  }
  return false;
}

const Row* rowOf(std::string_view folder) {
  const auto row = std::ranges::find(kTable, folder, &Row::folder);
  return row == kTable.end() ? nullptr : &*row;
}

}  // namespace

std::vector<Violation> forbiddenIncludes(const SourceFile& file) {
  const Row* row = rowOf(folderOf(file.path));
  if (!isProduct(file.path) || row == nullptr) {
    return {};
  }
  std::vector<Violation> violations;
  for (const Include& include : includesOf(file.text)) {
    const bool madeByMoc = include.name.ends_with(".moc") && row->outside == Outside::wholeToolkit;
    const bool allowed = include.quoted ? madeByMoc || mayUseFolder(*row, folderOf(include.name))
                                        : mayTakeFromOutside(row->outside, include.name);
    if (!allowed) {
      violations.push_back(
          {file.path, include.line, std::string(row->folder) + " may not include " + include.name});
    }
  }
  return violations;
}

std::vector<Violation> foldersWithoutARule(const std::vector<SourceFile>& tree) {
  std::set<std::string_view> unknown;
  for (const SourceFile& file : tree) {
    if (isProduct(file.path) && rowOf(folderOf(file.path)) == nullptr) {
      unknown.insert(folderOf(file.path));
    }
  }
  std::vector<Violation> violations;
  violations.reserve(unknown.size());
  for (std::string_view folder : unknown) {
    violations.push_back({std::string(folder), 0, "no row says what this folder may include"});
  }
  return violations;
}

}  // namespace zelvane::architecture
