#!/bin/bash
# Makes build/Zelvane-VERSION-windows.zip, which a user unpacks and starts. The same sources, made by the
# same tools, give the same zip, byte for byte, whoever makes it and where.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
for script in packages build; do
  source "scripts/$script.sh"
done

ensurePackages package
buildPreset windows-release zelvane

build=build/windows-release
folder=$build/package/Zelvane
zip=build/Zelvane-$(<VERSION)-windows.zip
export PYTHONDONTWRITEBYTECODE=1
rm -rf "$build/package"
mkdir -p "$folder"
cp "$build/Zelvane.exe" "$folder"
printf '\r\n' >"$folder/wavpath.txt" # no sound was chosen yet
packaging/sounds/make_ding.py "$folder/ding.wav"
sed "s/@VERSION@/$(<VERSION)/; s/\$/\r/" packaging/windows/user_readme.txt >"$folder/README.txt"
packaging/windows/licences.py "$build" "$folder/licences"
packaging/make_zip.py "$folder" "$zip"
sha256sum "$zip"
