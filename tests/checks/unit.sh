#!/usr/bin/env bash
# unit.sh BUILD: the unit tests of a build. Those that draw run on displays of their own, in two halves beside the others.
set -euo pipefail
build=$1
[ -n "${SKYVANE_DATA:-}" ] || echo "skipped: tests on recorded flights and real airports, since SKYVANE_DATA names no folder"
drawn=$(mktemp -d)
trap 'rm -r "$drawn"' EXIT

# The engine and Mesa keep allocations for the life of the process, and so do the libraries that draw and read geodata
# for the tools; what a test itself leaks is told in lower_tests.
drawnHalf() { # INDEX
    GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$1 ASAN_OPTIONS=detect_leaks=0 \
        tools/demo/with-display.sh "$build/tests/upper_tests" --gtest_brief=1 >"$drawn/$1" 2>&1
}
drawnHalf 0 &
first=$!
drawnHalf 1 &
second=$!
status=0
"$build/tests/lower_tests" --gtest_brief=1 || status=1
ASAN_OPTIONS=detect_leaks=0 "$build/tests/tool_tests" --gtest_brief=1 || status=1
wait "$first" || status=1
wait "$second" || status=1
cat "$drawn"/*
# Tests that draw pass over themselves where there is no display: here there is one, so nobody may.
if grep -q '^no display' "$drawn"/*; then
    echo "ERROR: tests that draw found no display"
    status=1
fi
exit $status
