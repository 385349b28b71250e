# shellcheck shell=bash
# Sees whether anything in the user's own home was touched. To be sourced.

# Names, times and sizes. Where someone is at work (a display is there) other programs write all the
# time: then it is the places that this program knows how to change or erase. Left out are the project
# itself and compiler caches, which builds outside this run may be using.
listHome() {
  local home
  home=$(getent passwd "$EUID" | cut -d: -f6)
  local -a places=("$home")
  if [[ $home == / || -n ${DISPLAY-}${WAYLAND_DISPLAY-} ]]; then
    places=("$home"/.config/{zelvane,autostart} "$home"/.cache/zelvane
      "$home"/.local/share/{zelvane,applications,mime,Trash,RecentDocuments,recently-used.xbel})
  fi
  find "${places[@]}" -xdev -maxdepth 6 \
    \( -path "$PWD" -o -path '*/.cache/ccache' -o -path '*/.ccache' \) -prune \
    -o -printf '%p %T@ %s\n' 2>/dev/null | sort
}

watchHome() {
  listHome >"$checkFolder/home-before"
}

checkHome() {
  local outcome=passed
  diff "$checkFolder/home-before" <(listHome) >"$checkFolder/home.log" || outcome=failed
  tally note "$outcome" home "nothing in the user's own home was touched" "$checkFolder/home.log"
}
