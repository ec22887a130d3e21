#!/usr/bin/env bash
# prepare-flight.sh BUILD HOME [demo|flightgear|xplane]: makes a home with the standard pages over the fictional region,
# which is built beside it when its makers are newer. Its sensor is the recorded demo flight, which is flown and recorded
# here when it is older than its card or plan, or else a simulator. The demo always begins with the same settings; whoever
# comes again with a simulator finds his own. Charts and terrain that somebody has added stay.
set -euo pipefail
build=$(cd "$1" && pwd)
home=$2
source=${3:-demo}
here=$(cd "$(dirname "$0")" && pwd)
region=$build/region
report=$region/ChartData/report.txt
flight=$here/flight
log=$build/demo-flight.dat
chartmaker=$build/tools/chartmaker/chartmaker
flightfeed=$build/tools/flightfeed/flightfeed

# What lies beside the build is made once, also when two ask for it.
exec 9>"$build/flight.lock"
flock 9

if [ ! -e "$report" ] || [ "$report" -ot "$build/tools/demo/demoregion" ] || [ "$report" -ot "$chartmaker" ]; then
    rm -rf "$region"
    mkdir -p "$region/Terrain"
    "$here/build-region.sh" "$build" "$region/ChartData" 1 "$region/Terrain" >"$build/region.log"
    "$chartmaker" levels "$region/Terrain" >>"$build/region.log"
    touch "$report"
fi

record() {
    for maker in "$report" "$flightfeed" "$flight/first.card" "$flight/fpl.ini"; do
        if [ ! -e "$log" ] || [ "$log" -ot "$maker" ]; then
            rm -f "$log"
            "$flightfeed" --card "$flight/first.card" --plan "$flight/fpl.ini" --charts "$region/ChartData" \
                --rate 20 --record "$log"
            return
        fi
    done
}

# The settings of the demo, the panels of the standard document.
config=$build/flight-config.ini
standard=$here/../../source/core/files/documents/config.ini
sed -e '/^\[P0\]/,$d' -e "s/^PanelCount = .*/$(grep '^PanelCount' "$standard")/" "$here/config.ini" >"$config"
# What the source is: its place in the list of kinds, its name, the types of data that only it brings.
case $source in
demo) kind=1 name='LogFileSensor\nfileName = Over\\ Corrie\\ Pass.dat\nlevel = GOOD' types='10|15|16|17' ;;
flightgear) kind=4 name='FlightGear\\ Flight\\ Simulator' types='none' ;;
xplane) kind=5 name='XPlane\\ Flight\\ Simulator' types='10|12|15|16|17' ;;
*) echo "prepare-flight.sh: \"$source\" is none of demo, flightgear, xplane" >&2 && exit 2 ;;
esac
sed -i -E -e "/^\[S1\]/,/^\$/{s/^FactoryIndex = .*/FactoryIndex = $kind/;s/^FactoryName = .*/FactoryName = $name/}" \
    -e "s/^D($types) = 0\$/D\1 = 1/" "$config"
if [ "$source" = demo ]; then # begins with the profile screen; the plan is the one that is flown
    sed -i -e 's/^chooseProfile = .*/chooseProfile = 1\nstartPlan = Over\\ Corrie\\ Pass/' "$config"
    record
fi
sed -n '/^\[P0\]/,$p' "$standard" >>"$config"
mkdir -p "$home/data"
home=$(cd "$home" && pwd)
vendor='Vendor = Skyvane\ demo\ (not\ for\ navigation)'
former=$(cat "$home/data/prepared-for" 2>/dev/null || true)
case $former in
flightgear | xplane)
    mkdir -p "$home/data/of-$former"
    cp "$home"/data/{config,data,fpl}.ini "$home/data/of-$former" || true # as far as they are there
    ;;
esac
own=$home/data/of-$source
if [ -e "$own/config.ini" ]; then
    cp "$own/config.ini" "$config"
    cp "$own/fpl.ini" "$home/data/fpl.ini" || true
    vendor=$(grep '^Vendor = ' "$own/data.ini" || echo "$vendor")
else
    cp "$flight/fpl.ini" "$home/data/fpl.ini"
fi
cp -n "$flight/aircrafts.ini" "$home/data"
"$here/prepare-home.sh" "$build" "$home" "$config"
sed -i '/^Vendor = /d' "$home/data/data.ini"
printf '%s\n' "$vendor" >>"$home/data/data.ini"
echo "$source" >"$home/data/prepared-for"

data=$home/.Skyvane
mkdir -p "$data/Logs" "$data/ChartData" "$data/Terrain"
if [ "$report" -nt "$data/ChartData/report.txt" ]; then
    for set in "$region"/ChartData/*.sci; do
        rm -rf "$data/ChartData/$(basename "$set" .sci)"
        cp -r "${set%.sci}" "$set" "$data/ChartData"
    done
    cp -r "$region/Terrain/." "$data/Terrain"
    # Coarser levels show the tiles of all lists: with others they are to be computed anew.
    [ "$(find "$data/Terrain" -name '*.ti' | wc -l)" = "$(find "$region/Terrain" -name '*.ti' | wc -l)" ] ||
        echo "dirty = 1" >"$data/Terrain/dirty.ini"
    cp "$report" "$data/ChartData"
fi
[ "$source" != demo ] || cp -f --reflink=auto "$log" "$data/Logs/Over Corrie Pass.dat"
