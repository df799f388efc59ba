#!/usr/bin/env bash
# Measures many printers at once with the release build, prints the tables and draws the first as docs/fleet.svg.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

figures=$(mktemp)
trap 'rm -f "$figures"' EXIT
build/release/bin/bench_fleet | tee "$figures"
# The first table is the one with seven columns.
sed -i -n -E '/^\| [0-9]+ (\| [0-9.]+ ){6}\|$/s/\|//gp' "$figures"
gnuplot -c tools/bench-fleet.gp "$figures" docs/fleet.svg
