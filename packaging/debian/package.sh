#!/bin/bash
# Makes build/zelvane_VERSION_ARCHITECTURE.deb. The same sources, made by the same tools, give the same
# package, byte for byte, whoever makes it and where.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
for script in packages build; do
  source "scripts/$script.sh"
done
umask 022

ensurePackages build debian
buildPreset release zelvane

here=$PWD/packaging/debian
root=$PWD/build/release/debian
version=$(<VERSION)
architecture=$(dpkg --print-architecture)
package=build/zelvane_${version}_$architecture.deb
# All times in the package are that of the changelog's last entry.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog --file "$here/changelog" --show-field Timestamp)
export SOURCE_DATE_EPOCH

# put MODE SOURCE PLACE: below the package's root.
put() {
  install -D --mode "$1" "$2" "$root/$3"
}

# pack NAME PLACE: a compressed copy, as manuals and changelogs are kept.
pack() {
  mkdir -p "$(dirname "$root/$2")"
  gzip --best --no-name --stdout "$here/$1" >"$root/$2"
  chmod 644 "$root/$2"
}

rm -rf "$root"
put 755 build/release/zelvane usr/bin/zelvane
strip --strip-unneeded --remove-section=.comment "$root/usr/bin/zelvane"
put 644 "$here/zelvane.desktop" usr/share/applications/zelvane.desktop
put 644 "$here/example.zelvane.Zelvane.metainfo.xml" usr/share/metainfo/example.zelvane.Zelvane.metainfo.xml
put 644 "$here/copyright" usr/share/doc/zelvane/copyright
pack changelog usr/share/doc/zelvane/changelog.gz
pack zelvane.1 usr/share/man/man1/zelvane.1.gz
put 644 packaging/icons/zelvane.svg usr/share/icons/hicolor/scalable/apps/zelvane.svg
for size in 16 22 24 32 48 64 128 256 512; do
  icon=$root/usr/share/icons/hicolor/${size}x$size/apps/zelvane.png
  mkdir -p "$(dirname "$icon")"
  rsvg-convert --width "$size" --height "$size" packaging/icons/zelvane.svg >"$icon"
done

# The tool that knows which packages hold the libraries wants to stand in a source package.
mkdir -p build/release/debian-libraries/debian
touch build/release/debian-libraries/debian/control
depends=$(cd build/release/debian-libraries && dpkg-shlibdeps -O "$root/usr/bin/zelvane" 2>/dev/null)
size=$(du --summarize --apparent-size --block-size=1024 "$root/usr" | cut -f 1)
mkdir "$root/DEBIAN"
sed -e "s/@VERSION@/$version/; s/@ARCHITECTURE@/$architecture/; s/@SIZE@/$size/" \
  -e "s/@DEPENDS@/${depends#shlibs:Depends=}/" "$here/control.in" >"$root/DEBIAN/control"
(cd "$root" && find usr -type f -print0 | sort -z | xargs -0 md5sum) >"$root/DEBIAN/md5sums"
find "$root" -exec touch --no-dereference --date "@$SOURCE_DATE_EPOCH" {} +
dpkg-deb --root-owner-group --uniform-compression -Zxz --build "$root" "$package"
sha256sum "$package"
