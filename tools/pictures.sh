#!/usr/bin/env bash
# Takes a picture of every screen in three languages at four scale factors, and of the network list in every language, into
# build/pictures; renews the pictures of the README.
# usage: tools/pictures.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

pictures=build/pictures
rm -rf "$pictures"
mkdir -p "$pictures/runtime"
chmod 700 "$pictures/runtime"
export XDG_RUNTIME_DIR=$PWD/$pictures/runtime
# The platform's own screen is too small for the window at scale 2.
screen=$XDG_RUNTIME_DIR/screen.json
echo '{"screens": [{"name": "pictures", "x": 0, "y": 0, "width": 2560, "height": 1600,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}' >"$screen"

# take DIRECTORY LANGUAGE SCALE [options]
take() {
  local directory=$pictures/$1 language=$2 scale=$3
  shift 3
  QT_QPA_PLATFORM=offscreen:configfile=$screen QT_SCALE_FACTOR=$scale LC_ALL=C.UTF-8 \
    build/debug/tests/screen_pictures "$directory" "$language" "$@"
}

for language in en zh-Hans de; do
  for scale in 1 1.25 1.5 2; do
    take "$language-$scale" "$language" "$scale"
  done
done

list=WTWiFiListView
for language in en zh-Hans zh-Hant ja ko de fr es; do
  take list "$language" 1 --screen "$list"
  mv "$pictures/list/$list.png" "$pictures/list/$language.png"
done

while read -r screen name; do
  cp "$pictures/en-1/$screen.png" "docs/pictures/$name.png"
done <<'EOF'
WTStartView start
WTWiFiListView networks
WTInstallingView run
WTCompleteView done
WTPrinterScreenWPSPBCView wps
WTFailedView failed
EOF

rm -rf "$XDG_RUNTIME_DIR"
echo "Look at $PWD/$pictures (contact-sheet.png shows a folder at once)."
