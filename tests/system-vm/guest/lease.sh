#!/bin/sh
# Takes over what the DHCP server gave.
# shellcheck disable=SC2154
case $1 in
  deconfig) ip link set "$interface" up ;;
  bound) ip addr replace "$ip/${mask:-24}" dev "$interface" ;;
esac
