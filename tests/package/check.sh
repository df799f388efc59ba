#!/usr/bin/env bash
# Installs the package in a clean Debian tree, starts the program there as an ordinary user, and removes it again.
#     check.sh PACKAGE.deb
# The tree is kept in build/package-check; what the program shows is left there as window.png.
set -euo pipefail
package=$(realpath "$1")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(cd "$here/../.." && pwd)/build/package-check
passed=0
failed=0
mkdir -p "$work"

check() { # NAME COMMAND...
  local name=$1
  shift
  if "$@" >"$work/output" 2>&1; then
    echo "PASS   : $name"
    passed=$((passed + 1))
  else
    echo "FAIL!  : $name"
    sed 's/^/    /' "$work/output"
    failed=$((failed + 1))
  fi
}

# The same Debian archives that this machine uses.
archives() {
  # The placeholders are apt-get's own.
  # shellcheck disable=SC2016
  apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' | sort -u
}

# Made anew when this recipe has changed.
clean_tree() {
  local recipe
  recipe=$(sha256sum <"${BASH_SOURCE[0]}")
  [ ! -f "$work/recipe" ] || [ "$(cat "$work/recipe")" != "$recipe" ] || return 0
  rm -f "$work/recipe"
  archives | mmdebstrap --mode=root --format=tar --variant=minbase --include=xvfb,xauth,xdotool,imagemagick,udev,passwd \
    --aptopt='APT::Install-Recommends false' bookworm "$work/tree.tar" -
  echo "$recipe" >"$work/recipe"
}

in_tree() { chroot "$tree" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
# Neither what apt keeps about packages, nor logs and caches.
files_of_tree() { (cd "$tree" && find . -xdev \( -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache -o -path ./var/log -o -path ./tmp -o -path ./home \) -prune -o -print | sort); }
starts_as_user() {
  # The shell inside expands these.
  # shellcheck disable=SC2016
  in_tree LANGUAGE=fr LANG=fr_FR.UTF-8 timeout 90 su user -c '
    cd && xvfb-run --auto-servernum sh -c "
      wifitool & program=\$!
      window=\$(xdotool search --sync --onlyvisible --pid \$program | tail -1) &&
        xdotool getwindowname \$window >title && sleep 2 && import -window root window.png
      status=\$?; kill -TERM \$program; exit \$status"'
  cp "$tree/home/user/window.png" "$work/window.png"
}
# Without its language's table the title is the Chinese one; the catalogue's path comes from the information list.
finds_its_resources() {
  cat "$tree/home/user/title"
  grep -qx 'Wi-Fi Tool' "$tree/home/user/title" &&
    grep -rqs 'cfgPath:/usr/share/wifitool/catalogue.json' "$tree/home/user/.local/state/Logs" &&
    [ -f "$tree/usr/share/wifitool/catalogue.json" ]
}
# Where neither a display nor a library for one is in its reach.
runs_without_display() {
  in_tree wifitoolctl --version | grep -q '^wifitoolctl 1' &&
    ! chroot "$tree" ldd /usr/bin/wifitoolctl | grep -E 'Qt6Gui|Qt6Widgets|libX11|wayland' &&
    { in_tree su user -c 'wifitoolctl printers'; [ $? = 3 ]; }
}
leaves_nothing() { in_tree apt-get -qq purge wifitool && files_of_tree >"$work/after" && diff "$work/before" "$work/after"; }

clean_tree
tree=$(mktemp -d "$work/tree.XXXXXX")
trap 'umount -q "$tree/proc" "$tree/dev/shm" 2>/dev/null || true; rm -rf "$tree"' EXIT
tar -C "$tree" -xf "$work/tree.tar"
mkdir -p "$tree/dev/shm" && mount -t tmpfs none "$tree/dev/shm" && mount -t proc none "$tree/proc"
cp "$package" "$tree/tmp/wifitool.deb"
in_tree useradd --create-home user
in_tree apt-get -qq update >/dev/null
# What it depends on stays: only its own files are to go.
in_tree sh -c 'apt-get -qq install --no-install-recommends /tmp/wifitool.deb && dpkg --purge wifitool' >"$work/output" 2>&1 ||
  { cat "$work/output"; exit 1; }
files_of_tree >"$work/before"

unpacked=$work/unpacked
rm -rf "$unpacked"
dpkg-deb --extract "$package" "$unpacked"
id=com.quillmark.wifitool
check 'desktop entry' desktop-file-validate "$unpacked/usr/share/applications/$id.desktop"
check 'metainfo' appstreamcli validate --no-net "$unpacked/usr/share/metainfo/$id.metainfo.xml"
check 'lintian' lintian --fail-on error,warning --allow-root "$package"
for program in wifitool wifitoolctl; do
  check "manual page of $program" sh -c "man --warnings -E UTF-8 -l '$unpacked/usr/share/man/man1/$program.1.gz' 2>&1 >/dev/null | (! grep .)"
  check "hardening of $program" "$here/hardening_test.py" "$unpacked/usr/bin/$program"
done
check 'completion' bash -n "$unpacked/usr/share/bash-completion/completions/wifitoolctl"
check 'installs' in_tree dpkg --install /tmp/wifitool.deb
check 'version' sh -c "chroot '$tree' wifitool --version | grep -q '^Wi-Fi Tool 1'"
check 'starts as an ordinary user' starts_as_user
check 'the command line runs without a display' runs_without_display
check 'finds its resources' finds_its_resources
check 'leaves nothing behind' leaves_nothing
echo "Totals: $passed passed, $failed failed"
[ "$failed" = 0 ]
