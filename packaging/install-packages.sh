#!/usr/bin/env bash
# Installs what is missing of the Debian packages named in the given lists; says nothing when nothing is.
set -euo pipefail
missing=()
for package in $(sed 's/#.*//' "$@"); do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Run this as root, or install by hand: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -20 "$log" >&2
    echo "The packages above could not be installed." >&2
    exit 1
fi
