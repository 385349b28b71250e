#!/bin/bash
# Runs a Windows program in a Windows of its own, which is made at its first use:
#   WINEPREFIX=FOLDER wine.sh PROGRAM [ARGUMENT...]
#   WINEPREFIX=FOLDER wine.sh --end           its services end, which nobody else would
# FOLDER exists and belongs to the caller. Without a display the program's windows are there, unseen.
set -euo pipefail
export WINEPREFIX=$WINEPREFIX/prefix WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES="winemenubuilder.exe=d" # no menu entries in the caller's home

if [[ ${1-} == --end ]]; then
  wineserver -k || true # nobody there
  exec wineserver -w
fi

# The services live on for a while; they must not hold the caller's pipes.
quietly() {
  "$@" </dev/null >/dev/null 2>&1
}

# With a home that does not exist, the folders of its user are plain ones, and no links into a real home.
if [[ ! -d $WINEPREFIX ]]; then
  HOME=$WINEPREFIX/no-home quietly wineboot -i
  quietly wineserver -w
fi
quietly wineserver -p300 || true # they run already
if [[ -z ${DISPLAY-} ]]; then
  quietly wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
fi

# Browsers and mail programs of this system are none of its business.
for user in Browsers Mailers; do
  quietly wine reg add 'HKCU\Software\Wine\WineBrowser' /v "$user" /d /bin/true /f
done

exec wine "$@" </dev/null
