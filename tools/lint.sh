#!/usr/bin/env bash
# shellcheck disable=SC2317 # The steps are called through step().
# Format, include arrows, shell check, and clang-tidy on the sources that changed.
# usage: tools/lint.sh [--all | --since REV]      (default: since the branch point, else the last commit)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

base=
case ${1:-} in
  --all) base=all ;;
  --since) base=${2:?--since needs a revision} ;;
esac
if [ -z "$base" ]; then
  base=$(git merge-base HEAD origin/main 2>/dev/null || true)
  if [ -z "$base" ] || [ "$base" = "$(git rev-parse HEAD)" ]; then
    base=$(git rev-parse -q --verify HEAD~1 || git hash-object -t tree /dev/null)
  fi
fi

failed=0
step() {
  local name=$1
  shift
  if "$@"; then echo "ok    $name"; else echo "FAIL  $name"; failed=1; fi
}

mapfile -t sources < <(git ls-files -- '*.cpp' '*.h')
mapfile -t scripts < <({ git ls-files -- '*.sh'; echo dev; git ls-files -- .ci/run; })

format() { clang-format --dry-run -Werror "${sources[@]}"; }

tidy() {
  local changed
  if [ "$base" = all ]; then
    mapfile -t changed < <(git ls-files -- 'src/*.cpp' 'tools/*.cpp')
  else
    mapfile -t changed < <(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp' 'tools/*.cpp')
  fi
  [ ${#changed[@]} -gt 0 ] || { echo "clang-tidy: no source changed since $base"; return 0; }
  # The generated sources (moc) and the full compile commands have to exist.
  ./dev build debug >build/lint-build.log 2>&1 || { tail -20 build/lint-build.log; return 1; }
  printf '%s\n' "${changed[@]}" |
    xargs -P "$(nproc)" -n 1 clang-tidy-16 -p build/debug --quiet --extra-arg=-Wno-unknown-warning-option 2>build/lint-tidy.log || { tail -20 build/lint-tidy.log; return 1; }
}

mkdir -p build
step "clang-format (${#sources[@]} files)" format
step "include arrows" python3 tools/check-arrows.py
step "shellcheck (${#scripts[@]} scripts)" shellcheck "${scripts[@]}"
step "clang-tidy" tidy
exit "$failed"
