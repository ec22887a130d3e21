#!/usr/bin/env bash
# fuzz.sh BUILD [SECONDS [SEED]]: every fuzz target over its seeds, then on its own for a few seconds.
#
# The seed is fixed, so that the same tree gives the same verdict twice; 0 draws one, for a hunt.
set -euo pipefail
build=$1
seconds=${2:-8}
seed=${3:-1}
here=$(cd "$(dirname "$0")/../fuzz" && pwd)
found=0
for target in "$build"/tests/fuzz/*_fuzz; do
    name=$(basename "$target" _fuzz)
    work=$(mktemp -d)
    corpus=$here/corpus/$name
    [ -d "$corpus" ] || { echo "no seeds in $corpus"; exit 1; }
    "$target" -seed="$seed" -max_total_time="$seconds" -rss_limit_mb=1024 -timeout=5 -artifact_prefix="$work/" -print_final_stats=1 \
        "$work" "$corpus" 2>&1 | tail -15
    rm -rf "$work"
    found=$((found + 1))
done
echo "$found targets"
[ "$found" -gt 0 ]
