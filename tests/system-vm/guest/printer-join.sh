#!/bin/bash
# The printer's own radio joins a network: name and password come on standard input, each ended by a zero byte; the address
# that DHCP gave goes to standard output. Fails when the access point does not let it in.
set -euo pipefail
umask 077
IFS= read -r -d '' name
IFS= read -r -d '' password
inside="ip netns exec printer"
folder=$(mktemp -d)
leave() {
  local status=$?
  [ $status -eq 0 ] || [ ! -f "$folder/pid" ] || kill "$(cat "$folder/pid")"
  rm -f "$folder/network.conf"
}
trap leave EXIT

hex() { od -An -v -tx1 | tr -d ' \n'; }
# The key is derived here, so that no quote or space of the password can disturb the file.
key=$(printf '%s\0%s' "$name" "$password" | python3 -c '
import hashlib, sys
name, password = sys.stdin.buffer.read().split(b"\0")
print(hashlib.pbkdf2_hmac("sha1", password, name, 4096, 32).hex())')
cat >"$folder/network.conf" <<CONFIGURATION
network={
ssid=$(printf %s "$name" | hex)
psk=$key
}
CONFIGURATION
$inside wpa_supplicant -B -P "$folder/pid" -f "$folder/log" -D nl80211 -i wlan2 -c "$folder/network.conf" >/dev/null
until grep -q 'CTRL-EVENT-CONNECTED' "$folder/log"; do
  ! grep -q 'pre-shared key may be incorrect' "$folder/log" || exit 1
  # A host does not wait for longer.
  [ $SECONDS -lt 40 ] || exit 1
  sleep 0.3
done
# Only the address may go to standard output.
$inside busybox udhcpc -i wlan2 -n -q -s "$(dirname "$0")/lease.sh" >&2
$inside ip -4 -o addr show wlan2 | sed -n 's/.* inet \([0-9.]*\).*/\1/p'
