#include "tests/architecture/include_arrows.h"

#include <string>

#include <gtest/gtest.h>

namespace zelvane::architecture {

namespace {

std::string complaint(const std::string& path, const std::string& include) {
  return list(forbiddenIncludes({path, "// what it is\n#include " + include + "\n"}));
}

}  // namespace

TEST(IncludeArrows, AViolationNamesFileLineFolderAndInclude) {
  EXPECT_EQ(complaint("cleaner/options.cpp", "\"scheduler/page.h\""),
            "cleaner/options.cpp:2: cleaner may not include scheduler/page.h\n");
}

TEST(IncludeArrows, EveryFolderMayIncludeItselfAndTheStandardLibrary) {
  EXPECT_EQ(complaint("cleaner/options.cpp", "\"cleaner/options.h\""), "");
  EXPECT_EQ(complaint("platform/port.h", "\"platform/error.h\""), "");
  EXPECT_EQ(complaint("core/identity.h", "<string_view>"), "");
}

TEST(IncludeArrows, ASubsystemStandsOnTheCoreItsControlsAndThePorts) {
  EXPECT_EQ(complaint("about/about_box.cpp", "\"core/identity.h\""), "");
  EXPECT_EQ(complaint("about/about_box.cpp", "\"core/controls/label.h\""), "");
  EXPECT_EQ(complaint("about/about_box.cpp", "\"platform/clock.h\""), "");
}

TEST(IncludeArrows, ASubsystemMayNotIncludeTheRoofAShellOrATenant) {
  EXPECT_NE(complaint("cleaner/a.cpp", "\"core/main_window/frm_main.h\""), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "\"ui/qt/mirror.h\""), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "\"platform/linux/linux_files.h\""), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "\"platform/memory/memory_desktop.h\""), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "\"platform/shared/live_folders.h\""), "");
}

TEST(IncludeArrows, ASubsystemMayNotIncludeTheSystemALibraryOrTheToolkit) {
  EXPECT_NE(complaint("cleaner/a.cpp", "<unistd.h>"), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "<sys/stat.h>"), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "<nlohmann/json.hpp>"), "");
  EXPECT_NE(complaint("cleaner/a.cpp", "<QString>"), "");
}

TEST(IncludeArrows, TheCoreMayNotIncludeWhatStandsOnIt) {
  EXPECT_NE(complaint("core/settings_store.h", "\"cleaner/options.h\""), "");
  EXPECT_NE(complaint("core/settings_store.h", "\"core/main_window/load.h\""), "");
  EXPECT_NE(complaint("core/controls/label.h", "\"core/identity.h\""), "");
}

TEST(IncludeArrows, APortIncludesOnlyPorts) {
  EXPECT_NE(complaint("platform/clock.h", "\"platform/linux/linux_clock.h\""), "");
  EXPECT_NE(complaint("platform/clock.h", "\"core/identity.h\""), "");
  EXPECT_NE(complaint("platform/clock.h", "<unistd.h>"), "");
}

TEST(IncludeArrows, TheMemoryTenantKnowsOnlyThePortsAndWhatTenantsShare) {
  EXPECT_EQ(complaint("platform/memory/a.cpp", "\"platform/shared/ini_text.h\""), "");
  EXPECT_EQ(complaint("platform/memory/a.cpp", "\"platform/clock.h\""), "");
  EXPECT_NE(complaint("platform/memory/a.cpp", "\"core/identity.h\""), "");
  EXPECT_NE(complaint("platform/memory/a.cpp", "\"platform/linux/linux_files.h\""), "");
  EXPECT_NE(complaint("platform/memory/a.cpp", "<unistd.h>"), "");
}

TEST(IncludeArrows, WhatTenantsShareUsesLibrariesButNoSystem) {
  EXPECT_EQ(complaint("platform/shared/a.cpp", "<nlohmann/json.hpp>"), "");
  EXPECT_EQ(complaint("platform/shared/a.cpp", "<sqlite3.h>"), "");
  EXPECT_NE(complaint("platform/shared/a.cpp", "<unistd.h>"), "");
  EXPECT_NE(complaint("platform/shared/a.cpp", "<QString>"), "");
}

TEST(IncludeArrows, TheLinuxTenantUsesTheSystemAndQtWithoutWindows) {
  EXPECT_EQ(complaint("platform/linux/a.cpp", "<sys/stat.h>"), "");
  EXPECT_EQ(complaint("platform/linux/a.cpp", "\"platform/shared/live_folders.h\""), "");
  EXPECT_EQ(complaint("platform/linux/a.cpp", "<QXmlStreamReader>"), "");
  EXPECT_EQ(complaint("platform/linux/a.cpp", "<QDBusConnection>"), "");
  EXPECT_EQ(complaint("platform/linux/a.cpp", "<QtCore/QString>"), "");
}

TEST(IncludeArrows, TheLinuxTenantMayNotIncludeWindowsOfQtOrWhatStandsOnIt) {
  EXPECT_NE(complaint("platform/linux/a.cpp", "<QApplication>"), "");
  EXPECT_NE(complaint("platform/linux/a.cpp", "<QGuiApplication>"), "");
  EXPECT_NE(complaint("platform/linux/a.cpp", "<QtWidgets/QWidget>"), "");
  EXPECT_NE(complaint("platform/linux/a.cpp", "\"ui/qt/mirror.h\""), "");
  EXPECT_NE(complaint("platform/linux/a.cpp", "\"core/identity.h\""), "");
}

TEST(IncludeArrows, AShellMayIncludeEverythingBelowButNoOtherShell) {
  EXPECT_EQ(complaint("ui/qt/main_linux.cpp", "\"core/main_window/startup.h\""), "");
  EXPECT_EQ(complaint("ui/qt/main_linux.cpp", "\"platform/linux/linux_desktop.h\""), "");
  EXPECT_EQ(complaint("ui/qt/mirror.cpp", "\"core/controls/button.h\""), "");
  EXPECT_EQ(complaint("ui/qt/mirror.cpp", "<QWidget>"), "");
  EXPECT_EQ(complaint("ui/qt/mirror.cpp", "\"mirror.moc\""), "");
  EXPECT_NE(complaint("ui/qt/mirror.cpp", "\"ui/win32/mirror.h\""), "");
}

TEST(IncludeArrows, TheShellsMirrorKnowsControlsAndNoPage) {
  EXPECT_EQ(complaint("ui/qt/mirror/follow.h", "\"core/controls/button.h\""), "");
  EXPECT_EQ(complaint("ui/qt/mirror/follow.h", "<QWidget>"), "");
  EXPECT_NE(complaint("ui/qt/mirror/follow.h", "\"cleaner/cleaner_page.h\""), "");
  EXPECT_NE(complaint("ui/qt/mirror/follow.h", "\"ui/qt/main_window.h\""), "");
}

TEST(IncludeArrows, AnIncludeIsWrittenFromTheRoot) {
  EXPECT_NE(complaint("cleaner/options.cpp", "\"options.h\""), "");
  EXPECT_NE(complaint("cleaner/options.cpp", "\"../core/identity.h\""), "");
}

TEST(IncludeArrows, TestsMayIncludeAnything) {
  EXPECT_EQ(complaint("tests/unit/a_test.cpp", "\"cleaner/options.h\""), "");
  EXPECT_EQ(complaint("tests/contract/a_linux.cpp", "<sys/mount.h>"), "");
}

TEST(IncludeArrows, AFolderWithoutARowIsReported) {
  EXPECT_EQ(list(foldersWithoutARule({{"cleaner/a.cpp", ""}, {"cleaner/deep/b.cpp", ""}})),
            "cleaner/deep:0: no row says what this folder may include\n");
}

}  // namespace zelvane::architecture
