#!/usr/bin/env bash
# Measures the network list and the model catalogue with the release build, prints their tables and draws them as
# docs/growth.svg.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

figures=$(mktemp -d)
trap 'rm -rf "$figures"' EXIT
for page in list catalogue; do
  "build/release/bin/bench_$page" | tee "$figures/table"
  echo
  sed -n '/^| [0-9]/s/|//gp' "$figures/table" > "$figures/$page"
done
gnuplot -c tools/bench-growth.gp "$figures/list" "$figures/catalogue" docs/growth.svg
