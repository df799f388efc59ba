#!/usr/bin/env bash
# Takes a picture of every screen in three languages at two scale factors, and of the network list in every language, into
# build/pictures; renews the pictures of the README.
# usage: tools/pictures.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

pictures=build/pictures
rm -rf "$pictures"
mkdir -p -m 700 "$pictures/runtime"
export XDG_RUNTIME_DIR=$PWD/$pictures/runtime

# take DIRECTORY LANGUAGE SCALE [options]
take() {
  local directory=$pictures/$1 language=$2 scale=$3
  shift 3
  QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale LC_ALL=C.UTF-8 \
    build/debug/tests/screen_pictures "$directory" "$language" "$@"
}

for language in en zh-Hans de; do
  for scale in 1 2; do
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

echo "Look at $PWD/$pictures (contact-sheet.png shows a folder at once)."
