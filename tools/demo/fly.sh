#!/usr/bin/env bash
# fly.sh BUILD HOME [WIDTH HEIGHT]: starts the program on a prepared home and feeds it the demo flight.
# Without a display: on a virtual one, for SECONDS_TO_FLY (20) seconds, with screenshots left in the home's folder.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1
home=$2
width=${3:-1280}
height=${4:-720}
started=()
cleanup() {
    for pid in "${started[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
}
trap cleanup EXIT

feed() {
    "$build/tools/flightfeed/flightfeed" --protocol flightgear --loop --card "$here/../flightfeed/cards/islands.card" \
        "$@" >/dev/null &
    started+=($!)
}

if [ -z "${DISPLAY:-}" ]; then
    SKYVANE_VIRTUAL=1 exec "$here/with-display.sh" "$0" "$@"
fi

if [ -z "${SKYVANE_VIRTUAL:-}" ]; then
    feed
    "$home/skyvane" "$width" "$height"
    exit
fi

feed --from 700 --speed 4 # between the mountains
"$home/skyvane" "$width" "$height" >"$home/skyvane.out" 2>&1 &
program=$!
started+=("$program")
window=
for _ in $(seq 200); do
    window=$(xdotool search --name '^Skyvane .*FPS' 2>/dev/null | head -1) && [ -n "$window" ] && break
    kill -0 "$program" 2>/dev/null || { cat "$home/skyvane.out"; echo "The program ended early." >&2; exit 1; }
    sleep 0.1
done
sleep 1
xdotool windowfocus "$window" key Return
seconds=${SECONDS_TO_FLY:-20}
for pages in "" Next "Next Next"; do
    for page in $pages; do
        xdotool windowfocus "$window" key "$page"
    done
    sleep $((seconds / 3))
    xdotool windowfocus "$window" key Insert
    sleep 1
done
echo "No display: flew on a virtual one. Screenshots:"
ls -1 "$(cd "$home" && pwd)"/Screenshots/*.png
