#!/usr/bin/env bash
# threads.sh BUILD: all tests of the lower floor under ThreadSanitizer.
set -euo pipefail
TSAN_OPTIONS=halt_on_error=1 "$1/tests/lower_tests" --gtest_brief=1
