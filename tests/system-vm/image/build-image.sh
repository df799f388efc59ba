#!/usr/bin/env bash
# Builds the guest from Debian packages alone: a kernel, a first file system in memory, a root file system. Needs root.
#     build-image.sh FOLDER
# What is in FOLDER already and was built from the same recipe stays.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
mkdir -p "$1"
output=$(cd "$1" && pwd)
work=$output/work
root=$work/root

recipe=$(cat "$here"/* | sha256sum)
[ ! -f "$output/recipe" ] || [ "$(cat "$output/recipe")" != "$recipe" ] || exit 0
rm -rf "$work" "$output/recipe"
mkdir -p "$work/downloads"

listed() { grep -v '^#' "$here/$1" | tr -s '\n ' '  '; }

# The same Debian archives that this machine uses.
archives() {
  # The placeholders are apt-get's own.
  # shellcheck disable=SC2016
  apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' | sort -u
}

root_file_system() {
  archives | mmdebstrap --quiet --mode=root --variant=minbase --aptopt='APT::Install-Recommends false' \
    --dpkgopt='path-exclude=/usr/share/man/*' --dpkgopt='path-exclude=/usr/share/doc/*' \
    --dpkgopt='path-exclude=/usr/share/locale/*' --dpkgopt='path-exclude=/usr/share/info/*' \
    --include="$(listed packages | xargs | tr ' ' ,)" bookworm "$root" -
}

kernel_and_busybox() {
  kernel_package=$(apt-cache depends linux-image-amd64 | sed -n 's/.*Depends: \(linux-image-6[^ ]*\)/\1/p' | head -1)
  version=${kernel_package#linux-image-}
  (cd "$work/downloads" && apt-get -qq -o APT::Sandbox::User=root download "$kernel_package" busybox-static)
  dpkg -x "$work/downloads/$kernel_package"_*.deb "$work/kernel"
  dpkg -x "$work"/downloads/busybox-static_*.deb "$work/busybox"
  depmod -b "$work/kernel" "$version"
}

# The module files that these modules consist of, in the order of loading.
module_files() {
  local module
  for module in "$@"; do
    modprobe -d "$work/kernel" -S "$version" --show-depends "$module" 2>/dev/null | sed -n 's/^insmod \([^ ]*\).*/\1/p'
  done | awk '!seen[$0]++'
}

install_modules() {
  local from=$work/kernel/lib/modules/$version to=$root/lib/modules/$version file
  mkdir -p "$to"
  # The list is words.
  # shellcheck disable=SC2046
  {
    module_files $(listed modules)
    find "$from/kernel/crypto" "$from/kernel/arch/x86/crypto" -name '*.ko'
  } | sort -u | while read -r file; do
    install -D -m 644 "$file" "$to/${file#"$from/"}"
  done
  cp "$from"/modules.{builtin,builtin.modinfo,order} "$to/"
  depmod -b "$root" "$version"
}

configure() {
  install -m 755 "$here/command_agent.py" "$root/opt/"
  # Its DHCP client is the printer's.
  install -m 755 "$work/busybox/bin/busybox" "$root/usr/bin/"
  install -m 644 "$here/command-agent.service" "$root/etc/systemd/system/"
  install -D -m 644 "$here/network-manager.conf" "$root/etc/NetworkManager/conf.d/system-test.conf"
  chroot "$root" systemctl -q enable command-agent.service
  # What the guest has no use for and would wait for.
  chroot "$root" systemctl -q mask hostapd.service getty@tty1.service serial-getty@ttyS0.service apt-daily.timer \
    apt-daily-upgrade.timer e2scrub_all.timer e2scrub_reap.service fstrim.timer systemd-timesyncd.service \
    systemd-pstore.service systemd-firstboot.service NetworkManager-wait-online.service dpkg-db-backup.timer \
    systemd-hwdb-update.service ldconfig.service systemd-binfmt.service proc-sys-fs-binfmt_misc.automount \
    proc-sys-fs-binfmt_misc.mount 2>/dev/null
  echo guest >"$root/etc/hostname"
  echo '127.0.0.1 localhost guest' >"$root/etc/hosts"
  : >"$root/etc/fstab"
  : >"$root/etc/resolv.conf"
  echo 0123456789abcdef0123456789abcdef >"$root/etc/machine-id"
  mkdir -p "$root/var/log/journal" "$root/mnt/share"
  # In no group but her own: the package's udev rule alone gives her the printer.
  chroot "$root" useradd --create-home --shell /bin/bash alice
  rm -rf "$root"/var/cache/apt/* "$root"/var/lib/apt/lists/*
}

first_file_system() {
  local tree=$work/initrd file
  mkdir -p "$tree"/{bin,modules}
  cp "$work/busybox/bin/busybox" "$tree/bin/"
  install -m 755 "$here/init" "$tree/init"
  module_files virtio_pci virtio_blk ext4 crc32c_generic overlay | while read -r file; do
    cp "$file" "$tree/modules/"
    basename "$file"
  done >"$tree/modules/order"
  (cd "$tree" && find . | cpio --create --format=newc --quiet) >"$output/initrd"
}

root_file_system
kernel_and_busybox
install_modules
configure
first_file_system
"$here/extract_kernel.py" "$work/kernel/boot/vmlinuz-$version" "$output/vmlinux"
rm -f "$output/root.ext4"
mke2fs -q -t ext4 -O ^has_journal -m 0 -d "$root" "$output/root.ext4" "$(($(du -sm "$root" | cut -f1) * 5 / 4 + 64))M" >/dev/null
rm -rf "$work"
echo "$recipe" >"$output/recipe"
