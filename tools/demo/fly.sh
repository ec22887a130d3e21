#!/usr/bin/env bash
# fly.sh HOME [WIDTH HEIGHT]: opens the program on a home that prepare-flight.sh made. Without a display: on a virtual one,
# where "Use Last Settings" is pressed, and pictures of the flight are left in the home's folder Screenshots.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
home=$(cd "$1" && pwd)
width=${2:-1280}
height=${3:-720}
if [ -n "${DISPLAY:-}" ] && [ -z "${SKYVANE_VIRTUAL:-}" ]; then
    exec "$home/skyvane" "$width" "$height"
fi
command -v xdotool >/dev/null && command -v Xvfb >/dev/null ||
    { echo "There is no display, and xvfb and xdotool aren't installed: install them, or run where DISPLAY is set." >&2 && exit 1; }
if [ -z "${SKYVANE_VIRTUAL:-}" ]; then
    SKYVANE_VIRTUAL=1 exec "$here/with-display.sh" "$0" "$@"
fi

program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true' EXIT
rm -f "$home"/Screenshots/*.png
"$home/skyvane" "$width" "$height" >"$home/skyvane.out" 2>&1 &
program=$!
window=
for _ in $(seq 300); do
    window=$(xdotool search --name '^Skyvane .*FPS' 2>/dev/null | head -1) && [ -n "$window" ] && break
    kill -0 "$program" 2>/dev/null || { cat "$home/skyvane.out" >&2 && echo "The program ended early." >&2 && exit 1; }
    sleep 0.1
done

# Places on the glass, by the measures that the program lays itself out with: buttons, the profile screen, the menu's rows.
# Those rows always stand there; the replay and the plan add three each.
rows=$(grep -cE '\{L"[^"]+", "[a-zA-Z]+", [a-zA-Z]+(, hasForwarderFactory)?\}' "$here/../../source/gui/menu/MenuRow.cpp")
places=$(awk -v w="$width" -v h="$height" -v rows="$((rows + 6))" 'BEGIN {
    root = sqrt(w * h); button = int(0.049410625 * root + 0.5); gap = int(button / 3)
    portrait = h > w; head = gap + int(button * (portrait ? 5 : 3) / 2)
    lastX = gap + (portrait ? 0.3 : 0.76) * (w - 2 * gap); lastY = gap + (portrait ? 0.75 : 0.5) * (head - gap)
    row = int(button * 5 / 4); margin = int(button / 8) > 2 ? int(button / 8) : 2
    top = h - button - rows * row - 2 * margin; scrolls = top <= 0
    top = margin + (scrolls ? 0 : top); column = 0.379 * root - 2 * margin - (scrolls ? margin + button / 2 : 0)
    # The bar of the replay: what its handle can move.
    handle = 0.95 * row; barLeft = margin + column / 3 + handle / 2; barWide = 2 * column / 3 - handle
    printf "%d %d %d %d %d %d %d %.1f %.1f", lastX, lastY, 0.095 * root, h - button / 2, 0.19 * root,
        top + 4.5 * row, top + 2.5 * row, barLeft, barWide }')
read -r lastX lastY menuX menuY rowX nextY barY barLeft barWide <<<"$places"

touch_at() {
    xdotool mousemove --window "$window" "$1" "$2" sleep 0.1 mousedown 1 sleep 0.1 mouseup 1 sleep 0.3
}
bar_at() {
    touch_at "$(awk -v l="$barLeft" -v w="$barWide" -v t="$1" 'BEGIN { printf "%d", l + w * t / 2070 + 0.5 }')" "$barY"
}
# The flight lasts 2070 s. A touch on the handle only takes hold of it, so it goes to the far end first; a touch beside the
# open menu closes it.
seek() {
    touch_at "$menuX" "$menuY"
    bar_at $(($1 < 1000 ? 2068 : 2))
    bar_at "$1"
    touch_at $((width * 7 / 10)) $((height / 3))
}
next_procedure() {
    touch_at "$menuX" "$menuY"
    touch_at "$rowX" "$nextY"
}
procedure=0
page=1
number=0
# picture NAME SECONDS PROCEDURE PAGE: from there on, with that procedure of the plan, on that page.
picture() {
    seek "$2"
    for (( ; procedure < $3; ++procedure)); do
        next_procedure
    done
    for (( ; page != $4; page = page % 7 + 1)); do
        xdotool windowfocus "$window" key Next
        sleep 0.2
    done
    sleep "${SECONDS_TO_SETTLE:-4}"
    xdotool windowfocus "$window" key Insert
    local taken=
    for _ in $(seq 50); do
        taken=$(find "$home/Screenshots" -name '*.png' ! -name "*-*" | head -1)
        [ -n "$taken" ] && break
        sleep 0.1
    done
    sleep 0.3 # until it is written
    number=$(printf %02d $((10#$number + 1)))
    mv "$taken" "$home/Screenshots/$number-$1.png"
    echo "$home/Screenshots/$number-$1.png"
}

sleep 0.5
touch_at "$lastX" "$lastY"
for _ in $(seq 300); do
    grep -q 'new TerrainManager' "$home/skyvane.out" && break
    sleep 0.1
done
for _ in 1 2 3; do # confirms that nothing here is real
    sleep 1
    xdotool windowfocus "$window" key Return
done
echo "No display: flying on a virtual one. Pictures:"
picture take-off 30 0 1
picture traffic 190 0 1
picture valley 925 5 3
picture pass 1005 6 1
picture highway 1095 7 3
picture map 1480 10 2
picture instruments 1480 10 4
picture entry 1700 11 3
picture approach 1850 11 1
picture landed 1990 11 1
