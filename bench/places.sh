# shellcheck shell=bash
# Where trees are made to be erased: in memory, because the time of a disk is its own and that of
# whoever else is using it. To be sourced.

memory='' places=()

# Afterwards $places names each as FILE-SYSTEM=FOLDER. Root has two: a file system that lives in memory
# by nature, and ext4 in an image that lies in memory.
openPlaces() {
  local base=/tmp
  if [[ -d /dev/shm && -w /dev/shm ]]; then
    base=/dev/shm
  fi
  memory=$(mktemp -d "$base/zelvane-bench.XXXXXX")
  mkdir "$memory/plain"
  places=("$(stat -f -c %T "$memory")=$memory/plain")
  if ((EUID == 0)) && [[ $base == /dev/shm ]] && openExt4 >/dev/null; then
    places+=("ext4 (an image in memory)=$memory/ext4")
  else
    echo "No ext4 is measured: it takes root, a loop device, and 4 GiB of free memory."
  fi
}

# Everything of the file system is made now: what it puts off would be made while it is measured.
openExt4() {
  (($(awk '/^MemAvailable:/ { print int($2 / 1048576) }' /proc/meminfo) >= 4)) &&
    mkdir "$memory/ext4" &&
    truncate --size 3G "$memory/image" &&
    mkfs.ext4 -q -N 1100000 -E lazy_itable_init=0,lazy_journal_init=0 "$memory/image" &&
    mount -o loop "$memory/image" "$memory/ext4"
}

closePlaces() {
  if [[ -n $memory ]]; then
    if mountpoint --quiet "$memory/ext4"; then
      umount "$memory/ext4" || umount --lazy "$memory/ext4"
    fi
    rm -rf --one-file-system "$memory"
    memory=''
  fi
}
