#!/bin/sh
# Makes the atlases of media/sdff again. Needed only when the character list, the drawn glyphs, the sizes or the fonts
# change: what it makes is committed, and no build runs it.
#
#   tools/fontatlas/regenerate.sh [path of the built fontatlas]
#
# Roboto comes from Debian's package fonts-roboto-unhinted, Ubuntu from the npm package @fontsource/ubuntu, which is
# fetched into a temporary folder. Needs npm, tar and the tool (libfreetype-dev, libharfbuzz-dev).
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
tool=${1:-$root/build/release/tools/fontatlas/fontatlas}
out=$root/media/sdff
roboto=/usr/share/fonts/truetype/roboto/unhinted/RobotoTTF/Roboto-Regular.ttf
package=@fontsource/ubuntu@5.3.0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
(cd "$work" && npm pack --silent "$package" >/dev/null && tar xzf ./*.tgz)
ubuntu=$work/package/files/ubuntu

mkdir -p "$out"
make_atlas() {
    face=$1
    name=$2
    shift 2
    "$tool" "$face" "$root/tools/fontatlas/characters.txt" "$root/tools/fontatlas/drawn.txt" "$out/$name" "$@"
}
make_atlas "Ubuntu derivative Skyvane" ubuntu-regular \
    "$ubuntu-latin-400-normal.woff2" "$ubuntu-latin-ext-400-normal.woff2" "$ubuntu-greek-400-normal.woff2"
make_atlas "Roboto" roboto-regular "$roboto"

{
    echo "Ubuntu derivative Skyvane, made from Ubuntu Regular:"
    echo "Copyright 2011 Canonical Ltd. Licensed under the Ubuntu Font Licence 1.0"
    echo
    cat "$work/package/LICENSE"
} >"$out/ubuntu-LICENCE.txt"
cp /usr/share/common-licenses/Apache-2.0 "$out/roboto-LICENSE.txt"
chmod 644 "$out"/*
