#!/bin/bash
# Runs a command on a display, a session bus and a window manager of its own, all gone at its end:
#   virtual_display.sh COMMAND [ARGUMENT...]
set -euo pipefail

if [[ ${1-} != --inside ]]; then
  # Without "-noreset" the display starts over when its last program leaves, and takes along whoever
  # comes just then.
  # Its own temporary files have to lie in a folder whose name has no blanks.
  exec env TMPDIR=/tmp xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp -noreset" \
    env TMPDIR="${TMPDIR:-/tmp}" dbus-run-session -- "$0" --inside "$@"
fi
shift

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb
openbox >/dev/null 2>&1 & # it misses a menu that nobody opens
windowManager=$!
trap 'kill "$windowManager" 2>/dev/null || true' EXIT

# A window manager that is there has told how many desktops it has.
for attempt in {1..200}; do
  xdotool get_num_desktops >/dev/null 2>&1 && break
  sleep 0.05
done
if ((attempt == 200)); then
  echo "The window manager does not start." >&2
  exit 1
fi

"$@"
