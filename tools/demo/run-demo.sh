#!/usr/bin/env bash
# Shows the wizard with an emulated printer: in a window where there is a display, else as pictures of every screen.
# usage: tools/demo/run-demo.sh [options of wifitool-demo]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

demo=build/debug/bin/wifitool-demo
if [ $# -gt 0 ] || [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$demo" "$@"
fi

pictures=build/demo
rm -rf "$pictures"
echo "No display here: the demo walks by itself."
status=0
xvfb-run --auto-servernum --server-args='-screen 0 1280x900x24' \
  "$demo" --autopilot "$pictures" || status=$?
echo "Pictures of every screen: $PWD/$pictures"
exit "$status"
