# SPDX-License-Identifier: Apache-2.0
# Shared by ./run and ./test: what a build needs, and the build. Sourced, never run.
# Everything it says goes to standard error, so that the program's own output stays clean.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/release

say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$@"
    exit 1
}

# install_packages FILE: install those Debian packages of the list that are missing.
install_packages() {
    local listed missing=() package
    mapfile -t listed < <(grep -v '^#' "$1")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is not a Debian system: make sure that the packages of ${1#"$root"/}, or what" \
            "corresponds to them here, are installed."
        return
    fi
    for package in "${listed[@]}"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null \
            || fail "Missing packages: ${missing[*]}. Install them as root, or install sudo."
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get -q update >&2 \
        || fail "The package list could not be fetched; is there a network?"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y \
        --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}" >&2 \
        || fail "These packages could not be installed: ${missing[*]}"
}

# build_targets TARGET...: configure when needed and build incrementally.
build_targets() {
    if [ ! -f "$build/build.ninja" ]; then
        (cd "$root" && cmake --preset release) >&2 || fail "The build could not be configured."
    fi
    cmake --build "$build" --target "$@" >&2 || fail "The build failed."
}
