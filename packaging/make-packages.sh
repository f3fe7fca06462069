#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Makes the Debian packages, all in one go:
#   packaging/make-packages.sh                 builds with Debian's flags; packages in build/packages
#   packaging/make-packages.sh --into DIR      packages in DIR
#   packaging/make-packages.sh --built TREE    packs a tree that is built already, for trying it
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/prepare.sh"

into=$root/build/packages
tree=
while [ $# -gt 0 ]; do
    case $1 in
    --into) into=$2 ;;
    --built) tree=$2 ;;
    *) fail "Unknown argument: $1" ;;
    esac
    shift 2
done

install_packages "$root/packaging/debian-packages.txt"
install_packages "$root/packaging/debian-packages-packaging.txt"

# Debian's tools want `debian` in the sources and leave the packages beside them, hence a copy. What
# was compiled there stays, in `build`.
mkdir -p "$into/making"
into=$(cd "$into" && pwd)
find "$into/making" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
rm -f "$into"/*.deb "$into"/*.changes "$into"/*.buildinfo
tar -C "$root" --exclude=./build --exclude=./.git -c . | tar -C "$into/making" -x
cp -r "$root/packaging/debian" "$into/making/debian"
unset IEC61850EXT_TREE
if [ -n "$tree" ]; then
    tree=$(cd "$tree" && pwd)
    export IEC61850EXT_TREE=$tree DEB_BUILD_OPTIONS="noautodbgsym ${DEB_BUILD_OPTIONS:-}"
    # Outside /usr there is one folder for the libraries of all architectures.
    if grep -q '^CMAKE_INSTALL_LIBDIR:[A-Z]*=lib$' "$tree/CMakeCache.txt"; then
        sed -i '/^Multi-Arch: same$/d' "$into/making/debian/control"
    fi
fi
cd "$into/making"
dpkg-buildpackage --build=binary --no-sign --no-pre-clean >&2 || fail "The packages could not be made."
ls "$into"/*.deb
