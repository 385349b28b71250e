#!/bin/bash
# Draws the icons of the Windows program from the drawings of packaging/icons, in the sizes that the
# system asks for at its usual resolutions. To be run when a drawing changes; the icons are kept, so
# that a build needs no tool for drawings. The same drawings give the same icons, byte for byte.
#   apt-get install librsvg2-bin
set -euo pipefail
cd "$(dirname "$0")"

sizes=(16 20 24 32 40 48 60 64 72 96 128 256)
pieces=$(mktemp -d)
trap 'rm -rf "$pieces"' EXIT

# byte NUMBER..., word NUMBER..., double NUMBER...: little-endian numbers of one, two and four bytes.
byte() { local n; for n in "$@"; do printf "\\x$(printf %02x $((n & 255)))"; done; }
word() { local n; for n in "$@"; do byte "$n" $((n >> 8)); done; }
double() { local n; for n in "$@"; do word "$n" $((n >> 16)); done; }

# An icon file: reserved 0, kind 1, count; for each picture its width and height (0 for 256), two
# zeros, planes, bits, length and place; then the pictures, each a whole PNG file.
makeIcon() {
  local drawing=$1 icon=$2 size length place=$((6 + 16 * ${#sizes[@]}))
  word 0 1 ${#sizes[@]} >"$icon"
  for size in "${sizes[@]}"; do
    rsvg-convert --width "$size" --height "$size" "$drawing" >"$pieces/$size.png"
    length=$(stat -c %s "$pieces/$size.png")
    { byte "$size" "$size" 0 0; word 1 32; double "$length" "$place"; } >>"$icon"
    place=$((place + length))
  done
  for size in "${sizes[@]}"; do
    cat "$pieces/$size.png" >>"$icon"
  done
}

makeIcon ../icons/zelvane.svg zelvane.ico
makeIcon ../icons/broom.svg broom.ico
makeIcon ../icons/warning.svg warning.ico
