#!/usr/bin/env bash
# build-region.sh BUILD OUT [SEED [TERRAIN]]: compiles the fictional region into a chart set in OUT, a folder of chart
# data, and its heights into a tile in TERRAIN, a folder of terrain. The sources stay beside the set, in OUT/sources.
set -euo pipefail
build=$1
out=$2
sources=$out/sources
mkdir -p "$sources"
"$build/tools/demo/demoregion" "$sources" "${3:-1}" ${4:+"$4"}
"$build/tools/chartmaker/chartmaker" compile --out "$out" --vendor "Skyvane demo (not for navigation)" \
    --area "Skyvane Islands (fictional)" --report "$out/report.txt" --tolerance 15 \
    --airports "$sources" --fixes "$sources/earth_fix.dat" --airways "$sources/earth_awy.dat" \
    --airspaces "$sources/airspaces.txt" --obstacles "$sources/obstacles.csv" --ground "$sources/ground.geojson"
