#!/usr/bin/env bash
# The sources are laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/../.."
find source tools tests benchmarks -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror
