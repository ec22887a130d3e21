#!/usr/bin/env bash
# prepare-home.sh BUILD HOME [CONFIG]: makes a home for the program beside a build.
#
# The program's home is the folder of the path it was started by, so a home is a folder with links to the binary and
# the media and the documentation. The data folders lie inside it too, and the documents are the standard ones but for CONFIG.
set -euo pipefail
build=$(cd "$1" && pwd)
home=$2
here=$(cd "$(dirname "$0")" && pwd)
config=${3:-$here/config.ini}
documents=$here/../../source/core/files/documents

mkdir -p "$home/data/Packages" "$home/customElements" "$home/Screenshots"
home=$(cd "$home" && pwd)
ln -sfn "$build/source/skyvane" "$home/skyvane"
ln -sfn "$build/media" "$home/media"
ln -sfn "$here/../../docs" "$home/docs"
for document in aircrafts calibration extSensorConfig hotspot; do
    cp -n "$documents/$document.ini" "$home/data/$document.ini"
done
cp "$config" "$home/data/config.ini"
for root in Backgrounds Terrain Data Logs; do
    echo "$root = $home/"
done >"$home/data/data.ini"
echo "Vendor = Skyvane" >>"$home/data/data.ini"
touch "$home/data/2.9_data_created"
