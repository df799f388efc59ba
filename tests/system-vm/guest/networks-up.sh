#!/bin/bash
# Three simulated radios: wlan0 is an access point with DHCP, in a network namespace of its own; wlan1 belongs to
# NetworkManager; wlan2 to the printer, in another namespace.
#     networks-up.sh NAME, and the password on standard input
set -euo pipefail
name=$1
IFS= read -r password
# With this rule no 6 GHz channel is scanned, which would take most of the time.
modprobe mac80211_hwsim radios=3 regtest=5 support_p2p_device=0
until [ -e /sys/class/net/wlan2 ]; do sleep 0.1; done
rfkill unblock all || true
for pair in 'access-point wlan0' 'printer wlan2'; do
  read -r space radio <<<"$pair"
  ip netns add "$space"
  iw phy "$(cat "/sys/class/net/$radio/phy80211/name")" set netns name "$space"
  ip netns exec "$space" ip link set lo up
done

mkdir -p /run/access-point
(
  umask 077
  cat >/run/access-point/hostapd.conf <<CONFIGURATION
driver=nl80211
interface=wlan0
ssid=$name
hw_mode=g
channel=1
wpa=2
wpa_key_mgmt=WPA-PSK
rsn_pairwise=CCMP
wpa_passphrase=$password
CONFIGURATION
)
inside="ip netns exec access-point"
$inside hostapd -B /run/access-point/hostapd.conf
$inside ip addr add 10.77.0.1/24 dev wlan0
$inside dnsmasq --conf-file=/dev/null --port=0 --bind-dynamic --interface=wlan0 --dhcp-range=10.77.0.10,10.77.0.50,1h \
  --dhcp-leasefile=/run/access-point/leases --pid-file=/run/access-point/dnsmasq.pid --no-ping
until nmcli -t -f DEVICE,STATE device | grep -q '^wlan1:disconnected'; do sleep 0.2; done
# A scan may come back empty.
until nmcli -t -f SSID device wifi list --rescan yes | grep -Fqx "$name"; do sleep 0.5; done
