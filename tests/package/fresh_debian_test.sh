#!/bin/bash
# The package in a fresh Debian of the host's own release, made for the occasion: it is installed, its
# program started and told to end, and it is removed. Prints a line for each thing that held or not.
#
#     ZELVANE_PACKAGE=DEB fresh_debian_test.sh
#
# Needs somebody who may make a Debian: root, or a user who may have user numbers of his own.
set -euo pipefail
self=$(readlink -f "$0")

# Names as they are in the new system.
package=/tmp/zelvane.deb
log=/tmp/zelvane.log

holds() { # holds SENTENCE COMMAND...
  local sentence=$1
  shift
  if "$@"; then
    echo "ok - $sentence"
  else
    echo "not ok - $sentence"
  fi
}

inside() { chroot "$debian" "$@"; }

# Until COMMAND succeeds; false after a minute.
until_it_holds() {
  local attempt
  for attempt in {1..600}; do
    "$@" && return
    sleep 0.1
  done
  return 1
}

windowIsThere() { xdotool search --name '^Zelvane v' >/dev/null 2>&1; }

apt() { inside env DEBIAN_FRONTEND=noninteractive apt-get -qq --no-install-recommends "$@" >"$debian/$log" 2>&1; }

installs() { apt install --yes "$package" || { sed 's/^/# /' "$debian/$log" && false; }; }

starts() {
  inside useradd --create-home guest
  cp "$XAUTHORITY" "$debian/home/guest/.Xauthority"
  inside chown guest /home/guest/.Xauthority
  # Each of these becomes the next, so that the program is this shell's own child.
  chroot "$debian" setpriv --reuid=guest --regid=guest --clear-groups env -i PATH=/usr/bin:/bin \
    HOME=/home/guest DISPLAY="$DISPLAY" XAUTHORITY=/home/guest/.Xauthority zelvane >"$debian/$log" 2>&1 &
  program=$!
  until_it_holds windowIsThere || { sed 's/^/# /' "$debian/$log" && false; }
}

storesItsChoices() { [[ -f $debian/home/guest/.config/zelvane/settings.json ]]; }

endsWhenTold() { kill -TERM "$program" && wait "$program"; }

listsItself() { inside dpkg --verify zelvane; }

hasAManual() { [[ -f $debian/usr/share/man/man1/zelvane.1.gz ]]; }

isRemoved() {
  apt purge --yes zelvane
  [[ -z $(find "$debian/usr" "$debian/etc" "$debian/var/lib/dpkg/info" -name '*zelvane*') ]]
}

tryEverything() {
  debian=$1
  cp "$ZELVANE_PACKAGE" "$debian$package"
  holds "the package installs with what it needs" installs
  holds "what was installed is what was packed" listsItself
  holds "the manual page is there" hasAManual
  holds "the program starts and shows its window" starts
  holds "the program ends with status 0 when it is told to" endsWhenTold
  holds "it has stored its user's choices" storesItsChoices
  holds "removing it leaves no file of it in the system" isRemoved
}

if [[ ${1-} == --inside ]]; then
  tryEverything "$2"
else
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  exec "$(dirname "$self")/../../scripts/virtual_display.sh" mmdebstrap --quiet --variant=apt \
    --customize-hook="'$self' --inside \"\$1\"" "$release" /dev/null
fi
