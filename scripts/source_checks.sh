# shellcheck shell=bash
# What is checked in the sources themselves: their layout and their habits. To be sourced.

everySource() {
  find . \( -path ./build -o -path ./.git \) -prune -o \( -name '*.h' -o -name '*.cpp' \) -printf '%P\n' |
    sort
}

# What differs from the last commit, or else what that commit changed; all where nobody can say. An
# integration server may be given many commits at once: there it is what was changed last, as many as
# are read in a few minutes.
changedSources() {
  local changed
  if [[ -n ${CI-} ]]; then
    changedLast | head -n 60
    return
  fi
  changed=$(here diff --name-only HEAD && here ls-files --others --exclude-standard) || changed=
  if [[ -z $changed ]]; then
    changed=$(here diff --name-only HEAD~ HEAD) || changed=
  fi 2>/dev/null
  if [[ -z $changed ]]; then
    everySource
  else
    comm -12 <(everySource) <(sort -u <<<"$changed")
  fi
}

# Every source that can be read here, that of the newest commit first.
changedLast() {
  { here log --name-only --format= || true; everySource; } | awk '!seen[$0]++' |
    grep -Fxf <(everySource) | ofThisSystem
}

# git refuses a checkout of another user's unless told that it is meant.
here() {
  git -c safe.directory="$PWD" "$@" 2>/dev/null
}

checkFormat() {
  local log=$checkFolder/format.log outcome=passed
  everySource | xargs clang-format-14 --dry-run -Werror >"$log" 2>&1 || outcome=failed
  tally note "$outcome" format "every source is laid out by .clang-format" "$log"
}

fixFormat() {
  everySource | xargs clang-format-14 -i
}

# Headers are read with the sources that include them. Those of another system cannot be read here: its
# headers are not there.
ofThisSystem() {
  grep '\.cpp$' | grep -Ev '(^|/)(windows|win32)/|_windows(_test)?\.cpp$' || true
}

# checkTidy NAME [OPTION...]: the sources named on standard input.
checkTidy() {
  local log=$checkFolder/tidy.log outcome=passed name=$1
  shift
  configurePreset tidy >"$log" 2>&1 && makeGeneratedSources >>"$log" 2>&1 && : >"$log" &&
    ofThisSystem | xargs -r -P "$(jobCount)" -n 1 clang-tidy-14 -p build/tidy --quiet "$@" >"$log" 2>&1 ||
    outcome=failed
  sed -i '/^[0-9]* warnings\? generated\.$/d' "$log"
  tally note "$outcome" tidy "$name" "$log"
}

# Qt's moc makes sources that others include.
makeGeneratedSources() {
  local -a targets
  mapfile -t targets < <(ninja -C build/tidy -t targets all | sed -n 's/^\([^/]*_autogen\): .*/\1/p')
  ((${#targets[@]} == 0)) || ninja -C build/tidy "${targets[@]}"
}
