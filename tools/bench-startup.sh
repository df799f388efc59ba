#!/usr/bin/env bash
# Measures the first window of the release build beside a bare one, and beside Debian's tool for one maker's printers
# where it is installed, on an X server, a session bus and with a home of their own.
# usage: tools/bench-startup.sh [turns]
set -euo pipefail
cd "${WT_BENCH_PROGRAMS:-$(dirname "${BASH_SOURCE[0]}")/../build/release/bin}"

state=$(mktemp -d)
trap 'rm -rf "$state"' EXIT
export HOME=$state XDG_STATE_HOME=$state XDG_RUNTIME_DIR=$state QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
programs=(./wifitool ./bench_bare_window)
if peer=$(command -v hp-wificonfig); then
  programs+=("$peer")
else
  echo "hp-wificonfig is not installed (./dev setup bench): measured without it" >&2
fi
xvfb-run --auto-servernum --server-args='-screen 0 1280x900x24' dbus-run-session -- ./bench_startup "${1:-20}" "${programs[@]}"
