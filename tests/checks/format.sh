#!/usr/bin/env bash
# The sources are laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/../.."
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
