#!/usr/bin/env bash
# Runs fuzz targets, two at a time, each for so many seconds. What they learn stays in build/fuzz/corpus, what they find
# goes to build/fuzz/findings: keep a finding in fuzz/regressions/TARGET, where the tests replay it.
# usage: tools/fuzz.sh [TARGET|all] [SECONDS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

target=${1:-all}
seconds=${2:-600}
at_once=2
out=$PWD/build/fuzz

fuzz_one() {
  local name=$1 learned=$out/corpus/$1 findings=$out/findings/$1 log=$out/$1.log
  mkdir -p "$learned" "$findings"
  if nice "$out/bin/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=2048 \
    -artifact_prefix="$findings/" -print_final_stats=1 "$learned" "fuzz/corpus/$name" "fuzz/regressions/$name" \
    >"$log" 2>&1; then
    echo "ok    $name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs," \
      "$(grep -o 'cov: [0-9]*' "$log" | tail -1)"
  else
    echo "FAIL  $name: build/fuzz/findings/$name; the end of its log:"
    grep -v '^#' "$log" | head -40
    return 1
  fi
}

if [ "$target" = all ]; then
  names=()
  for folder in fuzz/corpus/*; do names+=("${folder##*/}"); done
else
  [ -x "$out/bin/fuzz_$target" ] || { echo "no fuzz target $target" >&2; exit 2; }
  names=("$target")
fi

export -f fuzz_one
export out seconds
export LC_ALL=C.UTF-8 TZ=UTC ASAN_OPTIONS=detect_leaks=1:allow_user_segv_handler=0 UBSAN_OPTIONS=print_stacktrace=1
ASAN_SYMBOLIZER_PATH=$(command -v llvm-symbolizer-16 || true)
export ASAN_SYMBOLIZER_PATH LSAN_OPTIONS=suppressions=$PWD/cmake/lsan.supp:print_suppressions=0
printf '%s\n' "${names[@]}" | xargs -P "$at_once" -I{} bash -euo pipefail -c "fuzz_one {}"
