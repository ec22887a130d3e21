#!/usr/bin/env bash
# prepare-flight.sh BUILD HOME: makes a home with the standard pages, fed by a simulator, over the fictional region, which
# is built beside it when its makers are newer.
set -euo pipefail
build=$(cd "$1" && pwd)
home=$2
here=$(cd "$(dirname "$0")" && pwd)
region=$build/region
report=$region/ChartData/report.txt

if [ ! -e "$report" ] || [ "$report" -ot "$build/tools/demo/demoregion" ] ||
    [ "$report" -ot "$build/tools/chartmaker/chartmaker" ]; then
    rm -rf "$region"
    mkdir -p "$region/Terrain"
    "$here/build-region.sh" "$build" "$region/ChartData" 1 "$region/Terrain" >"$build/region.log"
    "$build/tools/chartmaker/chartmaker" levels "$region/Terrain" >>"$build/region.log"
    touch "$report"
fi

# The settings of the demo's dials, the panels of the standard document.
config=$build/flight-config.ini
standard=$here/../../source/core/files/documents/config.ini
sed -e '/^\[P0\]/,$d' -e "s/^PanelCount = .*/$(grep '^PanelCount' "$standard")/" "$here/config.ini" >"$config"
sed -n '/^\[P0\]/,$p' "$standard" >>"$config"
"$here/prepare-home.sh" "$build" "$home" "$config"

home=$(cd "$home" && pwd)/.Skyvane
mkdir -p "$home"
rm -rf "$home/ChartData" "$home/Terrain"
cp -r "$region/ChartData" "$region/Terrain" "$home"
rm -rf "$home/ChartData/sources"
sed -i 's/^Vendor = .*/Vendor = Skyvane\\ demo\\ (not\\ for\\ navigation)/' "$home/../data/data.ini"
