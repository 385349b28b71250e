#!/bin/bash
# Builds the program and takes the pictures of these pages anew. Run it when the window has changed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
for script in packages build sandbox; do
  source "scripts/$script.sh"
done

ensurePackages build display
buildPreset release zelvane
trap closeSandbox EXIT
openSandbox
offerBuild release
pictures=$sandbox/pictures
install -d -m 777 "$pictures"
inSandbox 300 /usr/bin/python3 "$project/docs/user/make_pictures.py" "$project/build/release/zelvane" "$pictures"
cp "$pictures"/*.png docs/user/pictures
