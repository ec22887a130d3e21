#!/usr/bin/env bash
# threads.sh BUILD: the tests of the lower floor under ThreadSanitizer. A process that was forked from one with threads
# can start none there: the test that kills such a one runs in the other builds.
set -euo pipefail
TSAN_OPTIONS=halt_on_error=1 "$1/tests/lower_tests" --gtest_brief=1 --gtest_filter=-TerrainJobs.surviveAKillAtAnyMoment
