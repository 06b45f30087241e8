#!/usr/bin/env bash
# Installs the missing packages of sections of packaging/debian-packages.txt, with sudo if the user is not root:
# install-packages.sh SECTION... Asks no questions. Does nothing if all packages are installed.
set -euo pipefail
cd "$(dirname "$0")/.."

list=packaging/debian-packages.txt
[ $# -gt 0 ] || { echo "Usage: scripts/install-packages.sh SECTION... (the sections of $list)" >&2; exit 2; }

# packages_of SECTION: prints the packages of a section; fails if there is no such section or if it is empty.
packages_of() {
    sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$list" | awk -v header="[$1]" '
        /^\[/ { inside = ($0 == header); next }
        inside { print; found = 1 }
        END { exit !found }' || { echo "$list has no packages in a section [$1]." >&2; return 2; }
}

packages=()
for section in "$@"; do
    text=$(packages_of "$section")
    mapfile -t -O "${#packages[@]}" packages <<<"$text"
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no apt-get, so missing packages cannot be installed." >&2
    echo "Install the equivalents of the Debian packages in $list with your package manager. The build continues." >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Packages are missing and there is no sudo. Run as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get -q update >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q -y install --no-install-recommends "${missing[@]}" >&2
