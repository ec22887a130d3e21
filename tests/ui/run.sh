#!/usr/bin/env bash
# run.sh BUILD [--smoke] [--quick] [--jobs=N] [WORD...]: the window tests of a build. --smoke runs only what a slow
# (sanitized) build can do, --quick leaves out what takes long, --jobs=N several tests at a time, WORD only those that hold it.
set -euo pipefail
build=$1
shift
export ASAN_OPTIONS=detect_leaks=0
exec /usr/bin/python3 "$(dirname "$0")/run_tests.py" "$build" "$@"
