#!/usr/bin/env bash
# Loads the package in a root that has Python, the C and C++ runtime, and nothing else, and imports a file there.
#
#     bare_root.sh PACKAGE_DIR
#
# The root is made of this machine's own packages, without those that only some modules of Python's library need: OpenSSL
# and bzip2 are among them. Exit code 77 when this user cannot enter a root of his own.
set -euo pipefail

here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
python=$(readlink -f /usr/bin/python3)
version=${python##*/}
packages=(libc6 libgcc-s1 libstdc++6 "$version-minimal" "lib$version-minimal" "lib$version-stdlib" libexpat1 zlib1g)

root=$(mktemp -d)
trap 'rm -rf -- "$root"' EXIT
enter=(chroot)
((EUID == 0)) || enter=(unshare --map-root-user chroot)
"${enter[@]}" / true 2>/dev/null || {
  echo 'the package was not tried: neither root nor allowed to make a namespace of his own' >&2
  exit 77
}

dpkg-query -L "${packages[@]}" | grep -v '^/usr/share' | sort -u |
  while read -r file; do [[ -d $file ]] || printf "%s\n" "${file#/}"; done |
  tar -C / -c --files-from=- | tar -C "$root" -x
cp -r -- "$1" "$root/vexo_xyz"
cp -r -- "$here/../python/pygcad" "$here/import_files.py" "$here/../../examples/warszawa.csv" "$root"
"${enter[@]}" "$root" "$python" -B /import_files.py /warszawa.csv
