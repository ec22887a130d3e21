#!/usr/bin/env bash
# unit.sh BUILD: the unit tests of a build. Those that draw run on displays of their own, in two halves beside the others.
set -euo pipefail
build=$1
told=$(mktemp -d)
trap 'rm -r "$told"' EXIT

# The engine and Mesa keep allocations for the life of the process, and so do the libraries that draw and read geodata
# for the tools; what a test itself leaks is told in lower_tests.
drawnHalf() { # INDEX
    GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$1 ASAN_OPTIONS=detect_leaks=0 \
        tools/demo/with-display.sh "$build/tests/upper_tests" --gtest_brief=1 >"$told/drawn$1" 2>&1
}
drawnHalf 0 &
first=$!
drawnHalf 1 &
second=$!
status=0
"$build/tests/lower_tests" --gtest_brief=1 2>&1 | tee "$told/lower" || status=1
ASAN_OPTIONS=detect_leaks=0 "$build/tests/tool_tests" --gtest_brief=1 2>&1 | tee "$told/tool" || status=1
wait "$first" || status=1
wait "$second" || status=1
cat "$told"/drawn*
# Tests that draw pass over themselves where there is no display: here there is one, so nobody may.
if grep -q '^no display' "$told"/drawn*; then
    echo "ERROR: tests that draw found no display"
    status=1
fi
# What passed over itself, and why, for the summary: a skip is told as "FILE:LINE: Skipped", with its reason below.
skipped=$(sed -nE '/: Skipped$/{N;s|^.*/([^/]*):[0-9]+: Skipped\n(.*)$|skipped: \1: \2|p}' "$told"/* | sort -u)
if [ -z "${SKYVANE_DATA:-}" ]; then
    skipped=$(grep -v SKYVANE_DATA <<<"$skipped" || true)
    echo "skipped: tests on recorded flights and real airports, since SKYVANE_DATA names no folder"
fi
echo "$skipped"
exit $status
