#!/bin/bash
# Installs the packages into a root of their own, whose record of installed packages is this system's, so that their
# dependencies are checked (their scripts, which only renew the cache of libraries, run outside it); compiles and runs a program with them; removes them and looks for what they left.
# Usage: package_test.sh FOLDER-OF-PACKAGES
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
packages=("$1"/*.deb)
[[ ${#packages[@]} -eq 4 && -f ${packages[0]} ]]
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

mkdir -p "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/info" "$root/var/log"
cp /var/lib/dpkg/status "$root/var/lib/dpkg/status"
names=()
for package in "${packages[@]}"; do names+=("$(dpkg-deb -f "$package" Package)"); done
[[ " ${names[*]} " == *" librnxip "* && " ${names[*]} " == *" librnxip-dev "* && " ${names[*]} " == *" rnximg "* ]]
dpkg_here() { dpkg --root="$root" --force-not-root --force-bad-path --force-script-chrootless --log="$root/var/log/dpkg" "$@" \
    2> >(grep -v "files list file for package" >&2); }

# Dependencies on packages that this system lacks are not what is tested.
need=()
[[ $(dpkg-query -W -f='${db:Status-Status}' python3-numpy 2>/dev/null) == installed ]] || need=(--force-depends)
dpkg_here "${need[@]}" --install "${packages[@]}" >"$root/var/log/install"

echo "== hello, compiled with the installed headers"
libraries=$(dirname "$(find "$root/usr/lib" -name librnxip.so)")
export PKG_CONFIG_SYSROOT_DIR=$root PKG_CONFIG_LIBDIR=$libraries/pkgconfig PKG_CONFIG_ALLOW_SYSTEM_CFLAGS=1
read -ra flags < <(pkg-config --cflags --libs rnxip)
gcc "$project/examples/hello.c" -o "$root/hello" "${flags[@]}" -Wl,-rpath-link,"$libraries"
LD_LIBRARY_PATH=$libraries "$root/hello"

echo "== rnximg"
"$root/usr/bin/rnximg" "$project/examples/data/raccoon.png" -o "$root/out.png" brightness 20
[[ -s $root/out.png && -s $root/usr/share/man/man1/rnximg.1 ]]

if /usr/bin/python3 -c 'import numpy' 2>/dev/null; then
  echo "== Python"
  RNXIP_LIBRARY=$libraries/librnxip.so.2021 PYTHONDONTWRITEBYTECODE=1 \
    PYTHONPATH=$root/usr/lib/python3/dist-packages /usr/bin/python3 -c '
import numpy, rnxip
assert (rnxip.add_c(numpy.full((2, 3), 200, "uint8"), 100) == 255).all()
print(rnxip.version()["version"])'
fi

dpkg_here --purge "${names[@]}" >"$root/var/log/remove"
rm "$root/hello" "$root/out.png"
left=$(find "$root" -not -path "$root/var/*" -type f)
[[ -z $left ]] || { echo "left behind: $left"; exit 1; }
for name in "${names[@]}"; do
  if dpkg-query --admindir="$root/var/lib/dpkg" -W "$name" 2>/dev/null | grep -q .; then echo "$name is still there"; exit 1; fi
done
echo "${#packages[@]} packages installed, used and removed"
