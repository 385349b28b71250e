# shellcheck shell=bash
# A place and a user to throw away, for the tests and the demonstration. To be sourced in the project's
# root.
#
# Permissions stop everyone but root, so what root starts is run as a user made for the occasion; an
# ordinary user's runs are run as that user. Either way home, temporary and run-time folder lie in the
# sandbox, and nothing of the caller's environment goes in.

sandbox='' tester='' project='' place='' running='' abroad=''

# Afterwards $tester is who runs, and $project is where that user finds the project.
openSandbox() {
  sandbox=$(mktemp -d /tmp/zelvane.XXXXXX)
  tester=$(id -un)
  project=$PWD
  if ((EUID == 0)); then
    # Root's checkout may lie where no other user can look, as in root's home.
    project=$sandbox/project
    chmod 711 "$sandbox"
    copySources "$project"
    chmod -R go=rX "$project"
    useradd --system --home-dir /nonexistent --shell /usr/sbin/nologin "zelvane-$$"
    tester=zelvane-$$
  fi
}

# copySources FOLDER: the project as it stands, without what was built, into a folder that is made.
copySources() {
  mkdir "$1"
  tar --exclude=./build --exclude=./.git -cf - . | tar -xf - -C "$1" --no-same-owner
}

# offerBuild PRESET: puts the programs of a build, and what lies beside the program for Windows, where the
# tester finds them, in $project/build/PRESET.
offerBuild() {
  if ((EUID == 0)); then
    find "build/$1" "build/$1/tests" -maxdepth 1 -type f \
      \( -executable -o -name wavpath.txt -o -name ding.wav \) \
      -exec cp --parents --target-directory "$project" {} + 2>/dev/null || true
    chmod -R go=rX "$project/build"
  fi
}

# From here until comeHome the sandbox lies elsewhere: another language, in which a comma parts
# a number and "I" is no capital "i", clocks that differ by half hours, also between summer and winter,
# no run-time folder, and folders whose names have blanks and letters that are no ASCII.
goAbroad() {
  abroad=yes
  mkdir -p "$sandbox/locales"
  localedef --force -f UTF-8 -i tr_TR "$sandbox/locales/tr_TR.UTF-8"
}

comeHome() {
  abroad=''
}

closeSandbox() {
  stopRunning
  if [[ $tester == "zelvane-$$" ]]; then
    endTester
  fi
  if [[ -n $sandbox ]]; then
    chmod -R u+rwX "$sandbox" 2>/dev/null || true # a test of permissions may have ended early
    rm -rf "$sandbox"
  fi
  tester=''
  sandbox=''
}

# inSandbox SECONDS COMMAND...: runs it with a home of its own in $place, a new folder, for so long at
# most. Returns how it ended, 124 for too long. What it left running ends as well.
inSandbox() {
  local seconds=$1 ended=0
  local -a user=() owner=()
  shift
  if ((EUID == 0)); then
    user=(setpriv --reuid "$tester" --regid "$tester" --clear-groups)
    owner=(-o "$tester" -g "$tester")
  fi
  place=$(mktemp -d "$sandbox/XXXX") # short, as the path of a socket has room for 107 letters
  local home=$place/home temporary=$place/tmp
  local -a world=(LANG=C.UTF-8 XDG_RUNTIME_DIR="$place/run")
  if [[ -n $abroad ]]; then
    home="$place/bizim ev ö"
    temporary="$place/geçici ş"
    world=(LANG=tr_TR.UTF-8 LOCPATH="$sandbox/locales" TZ=Australia/Lord_Howe ZELVANE_TEST_ABROAD=yes)
  fi
  install -d -m 700 "${owner[@]}" "$place" "$home" "$temporary" "$place/run" \
    "$home"/{.config,.cache,.local,.local/share,.local/state}
  local -a environment=(
    PATH=/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin "${world[@]}"
    USER="$tester" LOGNAME="$tester" HOME="$home" TMPDIR="$temporary"
    XDG_CONFIG_HOME="$home/.config" XDG_CACHE_HOME="$home/.cache"
    XDG_DATA_HOME="$home/.local/share" XDG_STATE_HOME="$home/.local/state"
    PYTHONDONTWRITEBYTECODE=1 ZELVANE_SOURCE_DIR="$project"
  )
  # In the background, so that Ctrl-C reaches this shell at once; timeout makes it a group of its own.
  (cd "$home" && exec timeout --kill-after=10 "$seconds" \
    "${user[@]}" env -i "${environment[@]}" "$@") &
  running=$!
  wait "$running" 2>/dev/null || ended=$?
  stopRunning
  return "$ended"
}

# A user goes when the last of its processes has gone, and some take a moment to die.
endTester() {
  local attempt pid
  for attempt in {1..100}; do
    for pid in $(ps -o pid= -u "$tester"); do
      kill -KILL "$pid" 2>/dev/null || true
    done
    userdel "$tester" 2>/dev/null && return
    sleep 0.1
  done
  userdel "$tester" # says why not
}

stopRunning() {
  if [[ -n $running ]]; then
    kill -TERM -- "-$running" 2>/dev/null || true
    running=''
  fi
}
