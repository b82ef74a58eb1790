#!/usr/bin/env bash
# Makes a folder of extension modules complete: beside them come the libraries that they need beyond the C and C++ runtime,
# in `libraries`, and the licences of all the code in the folder, in `licences`.
#
#     carry_libraries.sh FOLDER [PACKAGE…]
#
# PACKAGE is a Debian package whose code is part of the modules themselves.
#
# The libraries get names of their own. Under its usual name a process holds a library once: a host that wants a newer
# OpenSSL after us would be given ours, and refuse to go on.
set -euo pipefail

die() { printf 'carry_libraries: %s\n' "$*" >&2; exit 1; }

folder=$1
packages=("${@:2}")
libraries=$folder/libraries licences=$folder/licences
mkdir -p -- "$libraries" "$licences"

# dpkg knows a file by where it was put, which with a merged /usr may not be where it is found.
package_of() {
  local file
  file=$(realpath -- "$1")
  dpkg-query -S "$file" 2>/dev/null || dpkg-query -S "${file#/usr}" || die "no Debian package has $file"
}

needed=$(ldd -- "$folder"/*.so)
[[ $needed != *'not found'* ]] || die "a library is missing: $needed"
names=()
while read -r name path; do
  case $name in libc.so.* | libm.so.* | libstdc++.so.* | libgcc_s.so.*) continue ;; esac
  cp -- "$path" "$libraries/vexo-$name"
  names+=("$name")
  package=$(package_of "$path")
  packages+=("${package%%:*}")
done < <(sed -n 's/^\t\(.*\) => \(.*\) (0x.*/\1 \2/p' <<<"$needed" | sort -u)

# One change at a time: of several, patchelf 0.14 mixes up the values.
for file in "$folder"/*.so "$libraries"/*; do
  while read -r name; do
    [[ " ${names[*]} " != *" $name "* ]] || patchelf --replace-needed "$name" "vexo-$name" "$file"
  done < <(patchelf --print-needed "$file")
done
beside=\$ORIGIN  # what the loader reads
for file in "$libraries"/*; do
  patchelf --set-soname "${file##*/}" "$file"
  patchelf --set-rpath "$beside" "$file"
done
for file in "$folder"/*.so; do
  [[ $(patchelf --print-needed "$file") != *vexo-* ]] || patchelf --set-rpath "$beside/libraries" "$file"
done

# Where such a file names a licence that every Debian has a copy of, the copy comes along.
for package in "${packages[@]}"; do
  cp -L -- "/usr/share/doc/$package/copyright" "$licences/$package.txt"
done
grep -oh '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' -- "$licences"/*.txt | sort -u |
  xargs -r cp -L -t "$licences" --
