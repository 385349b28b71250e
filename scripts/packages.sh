# shellcheck shell=bash
# What the project needs of the system: one list, and its installation. To be sourced.
#
# Each line: who needs it, Debian's name, how to see it on a system without Debian's packages, and why.

packageList() {
  cat <<'END'
build         g++                 command:g++                        compiles C++20
build,package cmake               command:cmake                      describes the build
build,package ninja-build         command:ninja                      runs it
build         qt6-base-dev        lib:cmake/Qt6Widgets               the window, and Qt D-Bus
build         qt6-svg-dev         lib:cmake/Qt6Svg                   draws the program's icon
build         libqt6svg6          lib:libQt6Svg.so.6                 lets Qt load that icon
build         libxcb1-dev         header:xcb/xcb.h                   takes a clipboard from its owner
build         libleveldb-dev      header:leveldb/db.h                edits the sites' storage of browsers
build         libsnappy-dev       header:snappy.h                    what that library packs with
build         libsqlite3-dev      header:sqlite3.h                   edits the databases of browsers
build,windows,package nlohmann-json3-dev  header:nlohmann/json.hpp   reads and writes JSON
build         fonts-dejavu-core   file:/usr/share/fonts/*            letters, which a small system lacks
display       xvfb                command:Xvfb                       a display without a screen
display       xauth               command:xauth                      closes it to everyone else
display       openbox             command:openbox                    a window manager for it
display       xdotool             command:xdotool                    moves a pointer, types
display       trayer              command:trayer                     a panel that embeds icons
display       xfce4-panel         command:xfce4-panel                a panel that draws icons and menus itself
display       xclip               command:xclip                      reads and fills its clipboard
display       dbus                command:dbus-run-session           a session bus that ends with the run
display       dbus-x11            command:dbus-launch                tells programs of the bus by the display
display       at-spi2-core        file:/usr/share/dbus-1/services/org.a11y.Bus.service  presses buttons
display       gir1.2-atspi-2.0    lib:girepository-1.0/Atspi-2.0.typelib                the same, for scripts
display       python3-gi          lib:python3*/*-packages/gi         the same, for Python
build,display,check,bench,package python3  file:/usr/bin/python3     makes the sound; drives the window; counts the tests; packs
display       desktop-file-utils  command:desktop-file-validate      judges the startup entry
display       imagemagick         command:import                     takes screenshots
display       procps              command:ps                         sees which programs run
display       file                command:file                       says what a screenshot is
display       libcanberra0        lib:libcanberra.so.0               plays sounds
display       libcanberra-pulse   lib:libcanberra-*/libcanberra-pulse.so  hands them to a sound server
display       pulseaudio          command:pulseaudio                 a sound server that nobody hears
display       pulseaudio-utils    command:parec                      hears it all the same
display       sound-theme-freedesktop  file:/usr/share/sounds/freedesktop/stereo/bell.oga  the usual sounds
bench,tidy    libxcb-damage0-dev  header:xcb/damage.h                sees when a window is painted
bench         e2fsprogs           command:mkfs.ext4                  makes a file system to erase in
bench         bleachbit           command:bleachbit                  a cleaner, as a peer
bench         keepassxc           command:keepassxc                  a program with a window, as a peer
check         googletest          header:gtest/gtest.h               the tests' framework, as sources
check         libgtest-dev        header:gtest/gtest.h               its headers
check         ccache              command:ccache                     compiles nothing twice
check         git                 command:git                        says which files have changed
windows,package g++-mingw-w64-x86-64-posix  command:x86_64-w64-mingw32-g++-posix  compiles for Windows
windows,package mingw-w64-x86-64-dev        file:/usr/x86_64-w64-mingw32/include/windows.h  its headers and libraries
windows,package dpkg-dev          command:dpkg-source                unpacks the sources of libraries for Windows
windows,package make              command:make                       puts that of SQLite together
debian        dpkg-dev            command:dpkg-shlibdeps             knows which packages hold a library
debian        librsvg2-bin        command:rsvg-convert               draws the icons in their sizes
debian        appstream           command:appstreamcli               checks what software centres are told
debian        desktop-file-utils  command:desktop-file-validate      checks what menus are told
debian        man-db              command:man                        reads the manual page
debian        mmdebstrap          command:mmdebstrap                 makes a fresh Debian to install in
windows,package tcl8.6            command:tclsh8.6                   the same
windows,package gcc               command:gcc                        the same
windows       wine                command:wine                       runs Windows' programs
windows       wine64              file:/usr/lib/wine/wine64          the same, those of 64 bits
windows       fonts-wine          file:/usr/share/wine/fonts/tahoma.ttf  letters as wide as Windows' own
browsers      firefox-esr         command:firefox-esr                a real browser
browsers      chromium            command:chromium                   a real browser of the other family
glass         python3-brotli      lib:python3*/*-packages/brotli*    unpacks what browsers have packed
glass         python3-lz4         lib:python3*/*-packages/lz4        the same
glass         python3-snappy      lib:python3*/*-packages/snappy*    the same
glass         python3-zstandard   lib:python3*/*-packages/zstandard  the same
abroad        locales             file:/usr/share/i18n/locales/tr_TR  how other languages write
abroad        tzdata              file:/usr/share/zoneinfo/Australia/Lord_Howe  what time it is elsewhere
asan,tidy     clang-14            command:clang++-14                 builds for the sanitizers and for clang-tidy
asan          libclang-rt-14-dev  command:clang++-14                 the sanitizers themselves
format        clang-format-14     command:clang-format-14            lays out the sources
tidy          clang-tidy-14       command:clang-tidy-14              finds mistakes in the sources
END
}

# Installs what is missing for the named users of the list, with sudo where needed, and says so. Fails
# with a list of what is missing where it cannot. Without anything missing it calls nobody.
ensurePackages() {
  local -a missing administrator=()
  local output
  mapfile -t missing < <(missingPackages "$@")
  if ((${#missing[@]} == 0)); then
    return 0
  fi
  if ! command -v apt-get >/dev/null; then
    sayPackages "There is no apt-get here. Please install these (by Debian's names):" "${missing[@]}"
    return 1
  fi
  if ((EUID != 0)); then
    administrator=(sudo)
    if ! command -v sudo >/dev/null; then
      sayPackages "Installing needs root or sudo. Please install these:" "${missing[@]}"
      return 1
    fi
  fi
  sayPackages "Installing with ${administrator:+sudo }apt-get, which may take some minutes:" "${missing[@]}"
  administrator+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
  # Where one of the sources of packages cannot be reached, the others may do.
  if ! output=$("${administrator[@]}" update 2>&1 || true
    "${administrator[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null 2>&1); then
    tail -n 30 <<<"$output"
    sayPackages "The installation failed. Please install these:" "${missing[@]}"
    return 1
  fi
}

missingPackages() {
  local users name sign reason user
  while read -r users name sign reason; do
    for user in "$@"; do
      if [[ ,$users, == *",$user,"* ]] && ! isInstalled "$name" "$sign"; then
        echo "$name"
        break
      fi
    done
  done < <(packageList)
}

# isInstalled NAME SIGN
isInstalled() {
  local place=${2#*:}
  if command -v dpkg-query >/dev/null; then
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
    return
  fi
  case $2 in
    command:*) command -v "$place" ;;
    header:*) echo "#include <$place>" | c++ -E -x c++ - ;;
    lib:*) compgen -G "/usr/lib*/$place" || compgen -G "/usr/lib*/*/$place" ;;
    file:*) compgen -G "$place" ;;
  esac >/dev/null 2>&1
}

# sayPackages HEADLINE NAME...
sayPackages() {
  local name reason list
  list=$(packageList)
  echo "$1"
  for name in "${@:2}"; do
    reason=$(awk -v name="$name" '$2 == name { $1 = $2 = $3 = ""; print; exit }' <<<"$list")
    printf '  %-20s%s\n' "$name" "${reason##+( )}"
  done
}
