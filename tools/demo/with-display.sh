#!/usr/bin/env bash
# with-display.sh COMMAND...: runs a command on a virtual display of its own and gives its exit status.
set -uo pipefail
number=$(mktemp)
Xvfb -displayfd 3 -screen 0 1920x1920x24 -noreset -nolisten tcp 3>"$number" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null; rm -f "$number"' EXIT
for _ in $(seq 200); do
    [ -s "$number" ] && break
    kill -0 "$server" 2>/dev/null || break
    sleep 0.05
done
[ -s "$number" ] || { echo "No virtual display could be started (Xvfb)." >&2; exit 1; }
DISPLAY=:$(cat "$number") LIBGL_ALWAYS_SOFTWARE=1 "$@"
