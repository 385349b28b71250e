# shellcheck shell=bash
# The libraries that Windows' programs link in: made by the cross compiler from the sources of Debian's
# packages, each version once. To be sourced in the project's root.
#
# build/windows-libraries/
#   NAME-VERSION/    what was made: include, lib, and the package's copyright
#   current/NAME     leads to the one in use; cmake/toolchains/mingw64.cmake looks there
#   apt/             what apt knows of sources, apart from what the system's own apt knows
#   asked            when Debian was last asked for new versions, and by which recipe

windowsLibraries=$PWD/build/windows-libraries

# Makes sure that they are there. Debian is asked once a day; a recipe that has changed makes all anew.
ensureWindowsLibraries() {
  local recipe name
  recipe=$(sha256sum scripts/windows_libraries.sh cmake/toolchains/mingw64.cmake)
  recipe+=$(x86_64-w64-mingw32-g++-posix --version)
  if [[ -n $(find "$windowsLibraries/asked" -mtime -1 2>/dev/null) ]] &&
    [[ $(<"$windowsLibraries/asked") == "$recipe" ]]; then
    return
  fi
  if [[ -e $windowsLibraries/asked && $(<"$windowsLibraries/asked") != "$recipe" ]]; then
    rm -rf "$windowsLibraries"
  fi
  mkdir -p "$windowsLibraries"/{current,apt/lists/partial,apt/cache}
  askForSources
  for name in snappy leveldb sqlite3; do
    takeLibrary "$name" || return
  done
  takeJsonHeaders && echo "$recipe" >"$windowsLibraries/asked"
}

# The system's own sources of packages, for sources, in lists of our own: no root, and no change to the
# system. Where they cannot be reached, what was known before has to do.
askForSources() {
  local release
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
    awk -v release="$release" '$2 ~ "^" release "(-|$)" { print "deb-src", $1, $2, $3 }' |
    sort -u >"$windowsLibraries/apt/sources.list"
  if [[ ! -s $windowsLibraries/apt/sources.list ]]; then
    echo "deb-src http://deb.debian.org/debian $release main" >"$windowsLibraries/apt/sources.list"
  fi
  sourcesApt apt-get update || true
}

# sourcesApt COMMAND [ARGUMENT...]: apt-get or apt-cache, with these lists.
sourcesApt() {
  "$1" -qq -o Dir::Etc::sourcelist="$windowsLibraries/apt/sources.list" -o Dir::Etc::sourceparts=/dev/null \
    -o Dir::State::lists="$windowsLibraries/apt/lists" -o Dir::Cache="$windowsLibraries/apt/cache" \
    -o APT::Sandbox::User=root "${@:2}"
}

# takeLibrary NAME: the newest version whose source can be had. Lists may name one that is not there yet.
takeLibrary() {
  local name=$1 version folder
  for version in $(sourcesApt apt-cache showsrc --only-source "$name" | awk '/^Version:/ { print $2 }' | sort -Vru); do
    folder=$windowsLibraries/$name-$version
    if [[ ! -d $folder ]]; then
      fetchSource "$name" "$version" || continue
      makeLibrary "$name" "$version" || return
    fi
    useLibrary "$name" "$version"
    return
  done
  echo "There is no source of $name to be had." >&2
  return 1
}

# fetchSource NAME VERSION: with the distribution's changes, in NAME-VERSION.work/source.
fetchSource() {
  local work=$windowsLibraries/$1-$2.work
  rm -rf "$work"
  mkdir "$work"
  (cd "$work" && sourcesApt apt-get source --download-only "$1=$2") &&
    dpkg-source --no-check -x "$work"/*.dsc "$work/source" >"$work/log" 2>&1
}

# makeLibrary NAME VERSION: whole or not at all.
makeLibrary() {
  local work=$windowsLibraries/$1-$2.work
  echo "Making $1 $2 for Windows"
  if ! (cd "$work" && "make_$1") >>"$work/log" 2>&1; then
    tail -n 30 "$work/log" >&2
    return 1
  fi
  cp "$work/source/debian/copyright" "$work/made"
  mv "$work/made" "$windowsLibraries/$1-$2"
  rm -rf "$work"
}

useLibrary() {
  ln -sfn "../$1-$2" "$windowsLibraries/current/$1"
  echo "Windows' programs link $1 $2."
}

# Each makes "made" of "source", and runs where both are. No path of this machine gets in, and no time.

# The distribution's source makes the static library beside the shared one alone.
make_snappy() {
  crossBuild -DBUILD_SHARED_LIBS=ON -DSNAPPY_BUILD_TESTS=OFF -DSNAPPY_BUILD_BENCHMARKS=OFF &&
    rm -r made/bin made/lib/libsnappy.dll.a
}

# Browsers pack their folders of this format with snappy.
make_leveldb() {
  local snappy=$windowsLibraries/current/snappy
  CXXFLAGS=-I$snappy/include LDFLAGS=-L$snappy/lib crossBuild \
    -DBUILD_SHARED_LIBS=OFF -DHAVE_SNAPPY=ON -DLEVELDB_BUILD_TESTS=OFF -DLEVELDB_BUILD_BENCHMARKS=OFF
}

# crossBuild OPTION...: by cmake.
crossBuild() {
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake -S source -B built -G Ninja --toolchain "$windowsLibraries/../../cmake/toolchains/mingw64.cmake" \
    "${launcher[@]}" "$@" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG -ffile-prefix-map=$PWD=." -DCMAKE_INSTALL_PREFIX="$PWD/made" &&
    cmake --build built --parallel "$(jobCount)" --target install
}

# All of it in one file, as its makers recommend, with the kinds of tables that the distribution's knows.
# Nothing is loaded into it from anywhere.
make_sqlite3() {
  mkdir -p native made/include made/lib &&
    (cd native && ../source/configure --disable-tcl --disable-readline && make sqlite3.c) &&
    x86_64-w64-mingw32-gcc-posix -O2 -DNDEBUG -fstack-protector-strong -ffile-prefix-map="$PWD=." \
      -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION \
      -DSQLITE_ENABLE_FTS3 -DSQLITE_ENABLE_FTS3_PARENTHESIS -DSQLITE_ENABLE_RTREE \
      -c native/sqlite3.c -o native/sqlite3.o &&
    x86_64-w64-mingw32-ar rcsD made/lib/libsqlite3.a native/sqlite3.o &&
    cp native/sqlite3.h made/include
}

# Headers are for every system, but the folder in which the system keeps them is not.
takeJsonHeaders() {
  local folder=$windowsLibraries/current/nlohmann-json3
  rm -rf "$folder"
  mkdir -p "$folder/include" "$folder/share/cmake"
  ln -s /usr/include/nlohmann "$folder/include"
  cp -R /usr/share/cmake/nlohmann_json "$folder/share/cmake"
}
