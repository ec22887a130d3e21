#!/usr/bin/env bash
# with-display.sh COMMAND...: runs a command on a virtual display of its own and gives its exit status.
set -uo pipefail
# A number picked by the server itself (-displayfd) takes no lock: servers of other network namespaces would share it.
started=
for _ in $(seq 20); do
    number=$((RANDOM + 100))
    [ -e "/tmp/.X11-unix/X$number" ] && continue
    Xvfb ":$number" -screen 0 1920x1920x24 -noreset -nolisten tcp 2>/dev/null &
    server=$!
    for _ in $(seq 400); do
        kill -0 "$server" 2>/dev/null || break
        [ -S "/tmp/.X11-unix/X$number" ] && started=1 && break 2
        sleep 0.025
    done
done
[ -n "$started" ] || { echo "No virtual display could be started (Xvfb)." >&2; exit 1; }
trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null' EXIT
DISPLAY=:$number LIBGL_ALWAYS_SOFTWARE=1 "$@"
