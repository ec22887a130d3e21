#!/usr/bin/env bash
# fly.sh BUILD HOME [WIDTH HEIGHT]: starts the program on a prepared home and feeds it the demo flight.
# Without a display: on a virtual one, for SECONDS (20) seconds, with screenshots left in the home's Screenshots folder.
set -euo pipefail
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
    "$build/tools/flightfeed/flightfeed" --protocol flightgear --loop "$@" >/dev/null &
    started+=($!)
}

if [ -n "${DISPLAY:-}" ]; then
    feed
    "$home/skyvane" "$width" "$height"
    exit
fi

seconds=${SECONDS_TO_FLY:-20}
display=$(mktemp)
Xvfb -displayfd 3 -screen 0 1920x1080x24 -noreset -nolisten tcp 3>"$display" 2>/dev/null &
started+=($!)
for _ in $(seq 100); do
    [ -s "$display" ] && break
    sleep 0.1
done
DISPLAY=:$(cat "$display")
export DISPLAY
rm -f "$display"

feed --speed 4
"$home/skyvane" "$width" "$height" >"$home/skyvane.out" 2>&1 &
program=$!
started+=("$program")
window=
for _ in $(seq 100); do
    window=$(xdotool search --name '^Skyvane' 2>/dev/null | head -1) && [ -n "$window" ] && break
    kill -0 "$program" 2>/dev/null || { cat "$home/skyvane.out"; echo "The program ended early." >&2; exit 1; }
    sleep 0.1
done
sleep 2
xdotool windowfocus "$window" 2>/dev/null || true
xdotool key Return
for _ in 1 2 3; do
    sleep $((seconds / 4))
    xdotool key Insert
done
sleep 1
echo "No display: flew on a virtual one. Screenshots:"
ls -1 "$(cd "$home" && pwd)"/Screenshots/*.png
