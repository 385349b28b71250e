# shellcheck shell=bash
# Runs test programs in the sandbox and hands what they showed to the tally. To be sourced.
#
# Three words in a test's name say when it runs. "Mount": it needs mounts of its own, so it runs in a user
# namespace, where it may mount. All others run outside: inside, a user overcomes the permissions of
# files, as root does, and a test of permissions would prove nothing. "OtherOwner": it gives files away,
# so it runs as root where root runs the check, and skips itself elsewhere. "BigVolume": it takes minutes,
# so it runs in the long check alone.

checkFolder=build/check
programTime=900 # seconds

# A result that cannot be counted must not get lost, so that ends the check.
tally() {
  /usr/bin/python3 -B tests/support/tally.py "$checkFolder/results" "$@" || exit 3
}

# runGTest PRESET PROGRAM FILTER [WRAPPER...]: the tests of a program that the filter selects.
runGTest() {
  local preset=$1 program=$2 filter=$3 suite=$2 ended=0 log
  shift 3
  [[ $preset == dev ]] || suite="$program ($preset)"
  [[ -z $abroad ]] || suite="$suite (abroad)"
  log=$(newLog "$preset-$program")
  # The place is a new folder, and the program starts in its home.
  inSandbox "$programTime" "$@" "$project/build/$preset/tests/$program" --gtest_color=no \
    --gtest_filter="$filter" --gtest_output=json:../result.json >"$log" 2>&1 || ended=$?
  tally gtest "$suite" "$place/result.json" "$log" "$ended"
}

# newLog NAME: a name for a log of which there may be several.
newLog() {
  mktemp "$checkFolder/$1-XXXX.log"
}

# selectedTests PRESET PROGRAM FILTER: their full names, one a line.
selectedTests() {
  inSandbox 60 "$project/build/$1/tests/$2" --gtest_list_tests --gtest_filter="$3" |
    awk '/^[^ ]/ { suite = $1 } /^  / { print suite $1 }'
}

# runTests PRESET PROGRAM [WRAPPER...]: all tests of a program that are not for the long check.
runTests() {
  if isBuilt "$1" "$2"; then
    runGTest "$1" "$2" '-*BigVolume*' "${@:3}"
  fi
}

# runTestsWithMounts PRESET PROGRAM: the same for a program some of whose tests mount, or give away.
runTestsWithMounts() {
  local name
  local -a mounting
  isBuilt "$1" "$2" || return 0
  runGTest "$1" "$2" '-*Mount*:*OtherOwner*:*BigVolume*'
  if [[ -n $(selectedTests "$1" "$2" '*OtherOwner*') ]]; then
    tester=$(id -un) runGTest "$1" "$2" '*OtherOwner*'
  fi
  mapfile -t mounting < <(selectedTests "$1" "$2" '*Mount*-*BigVolume*')
  if ((${#mounting[@]} == 0)); then
    return
  elif mountsAllowed; then
    runGTest "$1" "$2" '*Mount*-*BigVolume*' unshare --user --map-root-user --mount
  else
    for name in "${mounting[@]}"; do
      tally note skipped "$2" "$name" "this system refuses an ordinary user mounts of its own"
    done
  fi
}

# runTestsUnderWine PRESET PROGRAM: the tests of a Windows program that are not for the long check.
runTestsUnderWine() {
  if isBuilt "$1" "$2.exe"; then
    runGTest "$1" "$2.exe" '-*BigVolume*' env WINEPREFIX="$sandbox/wine" "$project/scripts/wine.sh"
  fi
}

openWine() {
  install -d -o "$tester" -m 700 "$sandbox/wine"
}

closeWine() {
  inSandbox 60 env WINEPREFIX="$sandbox/wine" "$project/scripts/wine.sh" --end || true
}

# A program without any test in it is not built; that is a failure, not nothing.
isBuilt() {
  [[ -x build/$1/tests/$2 ]] || { tally note failed "$2" "(the program) is not there" && false; }
}

# runBigVolumes PRESET PROGRAM: the tests for the long check, if it has any.
runBigVolumes() {
  if [[ -n $(selectedTests "$1" "$2" '*BigVolume*') ]]; then
    runGTest "$1" "$2" '*BigVolume*'
  fi
}

mountsAllowed() {
  inSandbox 60 unshare --user --map-root-user --mount sh -c 'mount -t tmpfs none "$TMPDIR"' >/dev/null 2>&1
}

# runScript FILE [NAME=VALUE...]: a test that prints "ok - ...", "not ok - ..." or "skip - ...: reason"
# for each thing that it has tried.
runScript() {
  local name log ended=0
  name=$(basename "$1" .py)
  log=$(newLog "$name")
  [[ -z $abroad ]] || name="$name (abroad)"
  inSandbox "$programTime" env "${@:2}" "$project/$1" >"$log" 2>&1 || ended=$?
  tally lines "$name" "$log" "$ended"
}
