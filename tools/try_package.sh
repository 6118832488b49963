#!/usr/bin/env bash
# Tries a Debian package in fresh Debian 12 systems that hold nothing else: once alone, and once with what it recommends.
# Each time it is installed, makes a project that is typed and solved, is asked for its help and both reports (which come
# up, or are missing without harm), and is removed. Prints what passed.
#
#   tools/try_package.sh PACKAGE.deb [BASE]
#
# Needs root, debootstrap and the packages of `tools/set_up.sh build test`: screen, window manager and keyboard are those
# of this machine, so that they bring nothing into the fresh systems. BASE is a folder for a bare system; made when it is
# not there, and kept.
set -uo pipefail

if [ $# -lt 1 ] || [ "$(id -u)" -ne 0 ]; then
  echo "try_package: as root: tools/try_package.sh PACKAGE.deb [BASE]" >&2
  exit 2
fi
package=$(realpath "$1")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")/../tests" && pwd)
work=$(mktemp -d)
base=${2:-$work/base}
root=$work/root
shared=$work/shared # seen at the same place inside: the homes of the tests
program=$work/in_root

finish() {
  leave_root
  rm -rf --one-file-system "$work"
}
trap finish EXIT

fail() {
  echo "try_package: $1" >&2
  tail -n 30 "$work/log" >&2
  exit 1
}

make_base() {
  [ ! -d "$base" ] || return 0
  echo "try_package: making a bare system"
  debootstrap --variant=minbase bookworm "$base" http://deb.debian.org/debian >"$work/log" 2>&1 || fail "no bare system"
}

inside() { DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 chroot "$root" "$@" >>"$work/log" 2>&1; }

# The fresh system asks for packages where this machine does, and starts no services. Its devices are its own: nothing that
# a package does in there reaches this machine's.
enter_root() {
  cp -a "$base" "$root"
  rm -f "$root/etc/apt/sources.list"
  cp -r /etc/apt/sources.list* /etc/apt/apt.conf.d "$root/etc/apt"
  cp /etc/resolv.conf "$root/etc"
  cp -l /var/cache/apt/archives/*.deb "$root/var/cache/apt/archives" 2>/dev/null
  chmod 1777 "$root/dev/shm"
  printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
  chmod +x "$root/usr/sbin/policy-rc.d"
  mkdir -p "$shared" "$root$shared"
  mount -t proc proc "$root/proc" && mount --bind "$shared" "$root$shared" ||
    fail "cannot mount"
  inside useradd --create-home typist || fail "no user"
  cp "$package" "$root/tmp/package.deb"
}

# Office and viewer outlive the program. Nothing is deleted through a mount that did not go.
leave_root() {
  local process mounted
  for process in $(find /proc/[0-9]*/root -maxdepth 0 -lname "$root" 2>/dev/null | cut -d/ -f3); do
    kill -KILL "$process" 2>/dev/null
  done
  for _ in $(seq 50); do
    mounted=$(awk -v root="$root/" 'index($2, root) == 1 { print $2 }' /proc/mounts)
    [ -n "$mounted" ] || break
    for folder in $mounted; do umount "$folder" 2>/dev/null; done
    sleep 0.1
  done
  [ -n "$mounted" ] || rm -rf --one-file-system "$root"
}

# What the tests start as the program: it, in the fresh system, for a user of that system with the test's home.
make_starter() {
  cat >"$program" <<END
#!/bin/sh
chroot "$root" chown -R typist "\$HOME"
exec chroot --userspec=typist:typist "$root" env -i HOME="\$HOME" USER=typist DISPLAY="\$DISPLAY" \\
  XDG_RUNTIME_DIR="\$HOME" LC_ALL=C.UTF-8 PATH=/usr/bin:/bin GullymarkAL
END
  chmod +x "$program"
}

# passes NAME COMMAND ARGUMENT...
passes() {
  "${@:2}" >"$work/log" 2>&1 || fail "$round: $1"
  echo "try_package: $round: $1: passed"
}

install_package() {
  inside apt-get update && inside apt-get install -y "$1" /tmp/package.deb
}
remove_package() {
  inside apt-get purge -y gullymarkal && [ ! -e "$root/usr/lib/gullymarkal" ] && [ ! -e "$root/usr/bin/GullymarkAL" ]
}
no_office() { ! find "$root" -xdev -name 'libuno_*' -o -xdev -name soffice | grep .; }
file_type_known() {
  cp "$tests/files/metric.gmk" "$root/tmp"
  [ "$(chroot "$root" xdg-mime query filetype /tmp/metric.gmk)" = application/x-gullymarkal ]
}

# try_round NAME APT_OPTION all|alone
try_round() {
  round=$1
  enter_root
  passes "installs" install_package "$2"
  if [ "$3" = all ]; then
    passes "knows the type of a project" file_type_known
  else
    passes "brings no office" no_office
  fi
  passes "makes, solves and saves a typed road" "$tests/shell/typed_road.sh" "$program"
  passes "help and reports" "$tests/install/help_and_reports.sh" "$program" "$tests/files/metric.gmk" \
    "$root/usr/lib/gullymarkal" "$3"
  sed -n 's/^help_and_reports: /  /p' "$work/log"
  passes "is removed" remove_package
  leave_root
}

make_base
make_starter
export TMPDIR=$shared
mkdir -p "$shared"
chmod 755 "$work" "$shared"
try_round "alone" --no-install-recommends alone
try_round "with what it recommends" --install-recommends all
echo "try_package: all passed"
