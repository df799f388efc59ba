#!/usr/bin/env bash
# Measures the first window of the release build beside a bare one, on an X server and with a log folder of its own.
# usage: tools/bench-startup.sh [turns]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../build/release/bin"

state=$(mktemp -d)
trap 'rm -rf "$state"' EXIT
export XDG_STATE_HOME=$state XDG_RUNTIME_DIR=$state QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
xvfb-run --auto-servernum --server-args='-screen 0 1280x900x24' ./bench_startup ./wifitool ./bench_bare_window "$@"
