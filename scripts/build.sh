# shellcheck shell=bash
# Configures and builds a preset. To be sourced in the project's root.
source scripts/windows_libraries.sh

# Kept in the project, so that building leaves nothing in the user's home.
export CCACHE_DIR=${CCACHE_DIR:-$PWD/build/ccache}

configurePreset() {
  if [[ $1 == windows* ]]; then
    ensureWindowsLibraries || return
  fi
  cmake --preset "$1" --log-level=NOTICE
}

# buildPreset PRESET [TARGET...]: everything, or only the targets.
buildPreset() {
  local preset=$1
  shift
  configurePreset "$preset" && cmake --build "build/$preset" --parallel "$(jobCount)" ${1:+--target "$@"}
}

# As many compilers as there are processors and gigabytes of free memory, at least one.
jobCount() {
  local processors gigabytes
  processors=$(nproc)
  gigabytes=$(awk '/^MemAvailable:/ { print int($2 / 1048576) }' /proc/meminfo)
  echo $((gigabytes < 1 ? 1 : gigabytes < processors ? gigabytes : processors))
}
